#pragma once

#include "platform/INativeTextField.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/events/IActionListener.h"
#include "toolkit/events/INativeChildHolder.h"

namespace Tessitor::GUI::Controls {

/// A label whose text the user can edit in a native text field that is laid over it. The return key
/// takes the new text over and reports it; the escape key, or a loss of the focus, abandons it.
class CTextEdit : public CTextLabel,
                  public Listeners::IActionListener,
                  public Windowing::INativeChildHolder,
                  private INativeTextFieldListener {
public:
    CTextEdit(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
              const Tessitor::Basics::CString &text, Listeners::IActionListener *listener);
    ~CTextEdit() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleDoubleClick(Events::CMouseEvent &event) override;
    /// Ends editing, and unless it has been cancelled, takes over the text and passes the event on
    /// to the listener. Does nothing if nothing is being edited.
    void handleActionEvent(const Events::CActionEvent &event) override;

    // INativeChildHolder
    bool holdsNativeChild(void *child) const override;
    std::intptr_t colourNativeChild(void *deviceContext) override;

    // Settings for the next time that editing starts.
    /// @param isLimited  whether more than maximumLength bytes can be typed. Kept: without a limit,
    ///                   too, only that many are taken over.
    /// @param maximumLength  0 to 32767; a number outside becomes the nearest of these.
    virtual void setLimit(bool isLimited, std::int32_t maximumLength);
    virtual void setStyleBits(std::int32_t bits) { m_styleBits = bits; }  ///< for Windows
    virtual void setEditable(bool isEditable) { m_isEditable = isEditable; }
    /// @param isSingle  false to start at a double click.
    virtual void setEditOnSingleClick(bool isSingle) { m_isEditOnSingleClick = isSingle; }

    /// @return the text in the field while it is being edited, otherwise that of the label.
    virtual Tessitor::Basics::CString getEditedText() const;
    /// Decides what handleActionEvent() does with the text.
    virtual void setCancelled(bool isCancelled) { m_isCancelled = isCancelled; }
    virtual void setReservedFlag(bool isSet) { m_reservedFlag = isSet; }  ///< only stored
    bool getReservedFlag() const { return m_reservedFlag; }
    bool isEditing() const { return m_field != nullptr; }
    const INativeTextField *getField() const { return m_field.get(); }  ///< null unless editing

private:
    void handleTextFieldEnd(ENativeTextFieldEnd end) override;
    void startEditing();
    void stopEditing();
    IControlRoot &windowRoot() const;
    Tessitor::Basics::CString readField() const;

    static Tessitor::Basics::TClassRecord<CTextEdit> s_class;

    std::unique_ptr<INativeTextField> m_field;  // while editing
    Collections::TAutomaticPointer<IControl> m_lockedBefore;
    bool m_isCancelled = false;
    bool m_reservedFlag = false;
    bool m_isLengthLimited = true;
    std::int32_t m_maximumLength = 50;  // bytes
    std::int32_t m_styleBits = 0;
    bool m_isEditable = true;
    bool m_isEditOnSingleClick = true;
    Basics::CAlphaColour m_fieldColour{85, 86, 200};
};

}  // namespace Tessitor::GUI::Controls
