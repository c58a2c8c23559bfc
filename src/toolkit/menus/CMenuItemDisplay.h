#pragma once

#include "toolkit/controls/CControlPanel.h"
#include "toolkit/controls/CImageLabel.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/menus/SMenuColours.h"
#include "toolkit/menus/SMenuLayout.h"

namespace Tessitor::GUI::Controls {

/// Shows an item in a menu window: its icon or tick, its text and the arrow of a sub-menu. Draws a
/// line for a separator. [gui thread]
class CMenuItemDisplay : public CControlPanel {
public:
    CMenuItemDisplay(Windowing::IWindow *window, IControlRoot *root, const MathTools::CRect &area,
                     const SMenuLayout &layout, const SMenuColours &colours);
    ~CMenuItemDisplay() override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Shows an item, and holds a reference to it. Throws CException if it is null.
    /// @param font  null for the library's default font.
    void setMenuItem(CMenuItem *item, Fonts::CFont *font);
    CMenuItem *getMenuItem() const { return m_item.getPointer(); }  ///< null before setMenuItem()
    void setColours(const SMenuColours &colours) { m_colours = colours; }
    /// @param isAntiAliased  whether the arrow has a smooth outline.
    void setDrawAntiAliased(bool isAntiAliased) { m_isAntiAliased = isAntiAliased; }
    void setHovered(bool isHovered) { m_isHovered = isHovered; }
    bool isHovered() const { return m_isHovered; }

    void drawControl(Graphics::CGraphics &graphics) override;

private:
    class CPart;
    class CMenuItemSelectable;
    class CMenuItemSubMenuPointer;

    void addLead();
    void addText(Fonts::CFont *font);
    void addArrow();
    void showState();
    void drawSeparator(Graphics::CGraphics &graphics) const;
    const Basics::CAlphaColour &colourOfText() const;

    static Tessitor::Basics::TClassRecord<CMenuItemDisplay> s_class;

    bool m_isHovered = false;
    bool m_isAntiAliased = true;
    const SMenuLayout m_layout;
    SMenuColours m_colours;
    Collections::TAutomaticPointer<CMenuItem> m_item;
    // Null if the item has none
    Collections::TAutomaticPointer<CImageLabel> m_icon;
    Collections::TAutomaticPointer<CTextLabel> m_text;
    Collections::TAutomaticPointer<CMenuItemSubMenuPointer> m_arrow;
    Collections::TAutomaticPointer<CMenuItemSelectable> m_tick;
};

}  // namespace Tessitor::GUI::Controls
