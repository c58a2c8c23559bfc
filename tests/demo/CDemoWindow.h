#pragma once

#include "foundation/TAutomaticPointer.h"
#include "toolkit/controls/CControl.h"
#include "toolkit/controls/CTextEdit.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/events/IActionListener.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/windowing/CWindow.h"

/// A window with every control of the toolkit in every state, each with a caption. Its last line
/// says what the controls report.
class CDemoWindow : public Tessitor::GUI::Windowing::CWindow,
                    public Tessitor::GUI::Listeners::IActionListener {
public:
    CDemoWindow();

    void handleActionEvent(const Tessitor::GUI::Events::CActionEvent &event) override;
    /// Opens the text field of a CTextEdit, as a click on it does.
    void startEditing();

private:
    using CControl = Tessitor::GUI::Controls::CControl;
    using CRect = Tessitor::MathTools::CRect;

    void addAnimations();
    void addKnobs();
    void addLabels();
    void addButtons();
    void addSliders();
    void addSliderArrays();
    void addTextEdits();
    void addImageLabels();
    void addClickables();

    /// Starts a row with the name of a class.
    void startRow(const char *className, int height);
    /// @return the area of the row's next control.
    CRect placeOf(int width, int height);
    /// Adds a control that lies at the last place, with what it shows below it.
    void add(CControl *control, const char *caption);
    void addText(const CRect &area, const char *text, Tessitor::GUI::Fonts::CFont *font);
    /// Sends the mouse to a position in a control, with or without its left button down.
    void pointAt(CControl &control, int x, int y, bool isPressed);

    Tessitor::Collections::TAutomaticPointer<Tessitor::GUI::Fonts::CFont> m_captionFont, m_nameFont;
    Tessitor::GUI::Controls::CTextLabel *m_report;
    Tessitor::GUI::Controls::CTextEdit *m_edit = nullptr;
    int m_x = 0, m_y = 0, m_rowHeight = 0;
    CRect m_place;
};
