// The values and the chain that the editor shows. See CCorvelEditorBuilding.cpp for how it is put
// together, and CCorvelEditorActions.cpp for what its controls and menus do.
#include "editor/CCorvelEditor.h"

#include "hostlayer/AudioEffect.h"
#include "toolkit/controls/IControlRoot.h"
#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::Corvel {

using Basics::CString;
using GUI::Controls::CControlPanel;
using MathTools::CRect;
namespace StaticColours = GUI::Basics::StaticColours;

// Values

// Kept: compares with the value as a float, so a value that no float equals is always shown again.
void CCorvelEditor::setParameter(long id, double value) {
    float &shown = m_parameterCache[std::size_t(id)];
    if (m_isBuilt && double{shown} == value)
        return;
    shown = static_cast<float>(value);
    if (!m_isBuilt)
        return;
    if (GUI::Controls::IControl *control = m_controlTable.at(id).control) {
        control->setValue(value);
        control->update();
    }
    showValueText(id);
}

void CCorvelEditor::updateParameterControls() {
    for (long id = 0; id < kParameterCount; ++id)
        updateParameterControl(id);
}

void CCorvelEditor::updateParameterControl(long id) {
    GUI::Controls::IControl *control = m_controlTable.at(id).control;
    if (control == nullptr || m_owner == nullptr)
        return;
    const float value = effect->getParameter(static_cast<int>(id));
    m_parameterCache[std::size_t(id)] = value;
    control->setValue(value);
    showValueText(id);
}

void CCorvelEditor::showValueText(long id) {
    if (GUI::Controls::CTextLabel *label = m_controlTable.at(id).valueLabel)
        label->setText(textOf(id));
}

CString CCorvelEditor::textOf(long id) const {
    char text[24] = {};
    if (m_owner == nullptr)
        return text;
    effect->getParameterDisplay(static_cast<int>(id), text);
    CString result(text);
    result.appendString(m_owner->getParameterUnit(static_cast<int>(id)));
    return result;
}

// The chain

void CCorvelEditor::showChainChange() {
    if (m_chainChanged.exchange(false))
        refreshChainDisplay();
}

// Kept: the panel of a seventh module is neither placed nor parked.
void CCorvelEditor::refreshChainDisplay() {
    if (m_owner == nullptr)
        return;
    int module = strip().orderEntry(kInMonoSlot).next;
    for (int slot = 0; slot < slotCount; ++slot) {
        showSlot(slot, module);
        if (module != kNoSlot)
            module = strip().orderEntry(module).next;
    }
    for (int unused = kFirstModuleSlot; unused <= kLastModuleSlot; ++unused)
        if (!isInChain(unused))
            placePanel(unused, parkedLeft, false);
    redrawWindow();
}

void CCorvelEditor::showSlot(int slot, int module) {
    m_slotModule[std::size_t(slot)] = module;
    GUI::Controls::CTextLabel &name = *m_slotName[std::size_t(slot)];
    if (module == kNoSlot) {
        name.setTextColour(StaticColours::alphaLightGrey);
        name.setText("--No FX--");
        return;
    }
    placePanel(module, leftOfSlot(slot), true);
    char text[32] = {};
    strip().getFXName(module, text);
    name.setTextColour(StaticColours::alphaWhite);
    name.setText(text);
}

void CCorvelEditor::placePanel(int module, std::int32_t left, bool isInUse) {
    CControlPanel *panel = m_panels[std::size_t(module)];
    if (panel == nullptr)
        return;
    panel->setArea(CRect(left, panelTop, panelWidth, panelHeight));
    if (isInUse)
        panel->enableControl();
    else
        panel->disableControl();
}

}  // namespace Tessitor::Corvel
