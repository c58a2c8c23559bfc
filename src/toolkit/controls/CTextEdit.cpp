#include "toolkit/controls/CTextEdit.h"

#include "toolkit/controls/CHeldControl.h"
#include "toolkit/controls/IControlRoot.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/events/IWindow.h"
#include "toolkit/events/SWindowHandle.h"

#include <algorithm>
#include <vector>

namespace Tessitor::GUI::Controls {

using Events::CMouseEvent;
using MathTools::CRect;
using Tessitor::Basics::CString;

Tessitor::Basics::TClassRecord<CTextEdit> CTextEdit::s_class("CTextEdit", "CTextLabel");

CTextEdit::CTextEdit(IControlRoot *root, std::int32_t id, const CRect &area, const CString &text,
                     Listeners::IActionListener *listener)
    : CTextLabel(root, id, area, text),
      m_lockedBefore(Collections::TCountedObjectDeleter<IControl>::getStaticDeleter()) {
    CControl::registerActionListener(listener);
    CControl::setMouseEnabled(true);
    s_class.incrementInstanceCount();
}

void CTextEdit::handleLeftButtonDown(CMouseEvent &) {
    if (m_isEditable && m_isEditOnSingleClick)
        startEditing();
}

void CTextEdit::handleDoubleClick(CMouseEvent &) {
    if (m_isEditable && !m_isEditOnSingleClick)
        startEditing();
}

void CTextEdit::setLimit(bool isLimited, std::int32_t maximumLength) {
    m_isLengthLimited = isLimited;
    m_maximumLength = std::clamp(maximumLength, 0, 32767);
}

IControlRoot &CTextEdit::windowRoot() const {
    return *getControlRoot()->getParentWindow()->getControlRoot();
}

void CTextEdit::startEditing() {
    // A field that is left over has the mouse locked for this control already.
    if (!isEditing())
        m_lockedBefore.setPointer(windowRoot().getLockedControl());
    windowRoot().lockControl(this);
    m_field.reset();

    SNativeTextFieldSettings settings;
    settings.area = getAbsoluteRect().toNative();
    settings.text = getText().getString();
    if (getFont() != nullptr)
        settings.font = &getFont()->getNativeFont();
    settings.textColour = getTextColour().toNative();
    settings.background = m_fieldColour.toNative();
    settings.styleBits = static_cast<std::uint32_t>(m_styleBits);
    settings.maximumLength = m_isLengthLimited ? m_maximumLength : 0;
    const Windowing::IWindow *window = getControlRoot()->getParentWindow();
    m_field = createNativeTextField(window->getWindowHandle()->native, settings, *this);
    if (!isEditing())
        stopEditing();
}

void CTextEdit::handleTextFieldEnd(ENativeTextFieldEnd end) {
    setCancelled(end != ENativeTextFieldEnd::ReturnKey);
    handleActionEvent(Events::CActionEvent(this));
}

void CTextEdit::handleActionEvent(const Events::CActionEvent &event) {
    if (!isEditing())
        return;
    // The listener may remove the panel around this control. No event that is being handed over
    // holds the panel, as it does in other controls.
    IControl *const panel = getParentControl();
    const CHeldControl held(this), heldPanel(panel != nullptr ? panel : this);
    if (!m_isCancelled) {
        const CString text = readField();
        setText(text == "" ? CString(" ") : text);
        if (getActionListener() != nullptr)
            getActionListener()->handleActionEvent(event);
    }
    stopEditing();
}

// May destroy the control, unless somebody else holds it.
void CTextEdit::stopEditing() {
    const CHeldControl held(this);
    m_field.reset();
    windowRoot().unlockControl();
    if (IControl *before = m_lockedBefore.getPointer())
        windowRoot().lockControl(before);
    m_lockedBefore.freePointer();
    update();
}

bool CTextEdit::holdsNativeChild(void *child) const {
    return isEditing() && m_field->getHandle() == child;
}

std::intptr_t CTextEdit::colourNativeChild(void *deviceContext) {
    return m_field->colour(deviceContext);
}

CString CTextEdit::getEditedText() const {
    return isEditing() ? readField() : getText();
}

CString CTextEdit::readField() const {
    std::vector<char> text(static_cast<std::size_t>(m_maximumLength) + 1);
    m_field->getText(text.data(), static_cast<std::int32_t>(text.size()));
    return CString(text.data());
}

}  // namespace Tessitor::GUI::Controls
