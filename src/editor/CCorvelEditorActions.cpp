// What the controls and menus of the editor do.
#include "editor/CCorvelEditor.h"
#include "foundation/CHtmlString.h"
#include "hostlayer/AudioEffect.h"
#include "platform/NativeMouse.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/graphics/StaticColours.h"
#include "toolkit/menus/CMenuEvent.h"

#include <string_view>

namespace Tessitor::Corvel {

using GUI::Controls::IControl;
using GUI::Windowing::CMenuWindow;
namespace StaticColours = GUI::Basics::StaticColours;

namespace {

/// While it exists, changes are the editor's own.
class CEditing {
public:
    explicit CEditing(Vst::CVstWindow &window) : m_window(window) { m_window.setIsEditing(true); }
    CEditing(const CEditing &) = delete;
    CEditing &operator=(const CEditing &) = delete;
    ~CEditing() { m_window.setIsEditing(false); }

private:
    Vst::CVstWindow &m_window;
};

bool isHotSpot(const IControl &control) {
    return std::string_view(control.getClass().getClassName()) == "CClickableLabel";
}

/// The items of a menu that set a parameter, in steps of equal size from 0 to 1.
struct SChoices {
    std::int32_t firstItemId;  // for the value 0; the other ids follow
    int number;
    long parameter;
};

}  // namespace

void CCorvelEditor::handleActionEvent(const GUI::Events::CActionEvent &event) {
    if (m_owner == nullptr)
        return;
    const IControl &control = *event.getSender();
    // The ids of hot spots are also those of parameters.
    if (isHotSpot(control)) {
        handleHotSpot(control.getUniqueId());
        return;
    }
    switch (control.getUniqueId()) {
    case kDlySync:
        openAtMouse(m_delay->getMenu());
        break;
    case kMod1Type:
        openAtMouse(m_modulator1->getMenu());
        break;
    case kMod2Type:
        openAtMouse(m_modulator2->getMenu());
        break;
    case kInMono:
        openStereoMenu(true);
        break;
    case kOutMono:
        openStereoMenu(false);
        break;
    case helpId:
        openHelp();
        break;
    default:
        sendParameter(control);
    }
}

// Kept: the cache still has the value from before, so a host that goes back to it is ignored.
void CCorvelEditor::sendParameter(const IControl &control) {
    const std::int32_t id = control.getUniqueId();
    {
        const CEditing editing(*this);
        effect->setParameterAutomated(id, static_cast<float>(control.getValue()));
    }
    showValueText(id);
}

void CCorvelEditor::openHelp() {
    Basics::CSystemString path = resourceFolder();
    path.appendPath("Corvel.htm");
    Basics::CHtmlString(path).openInBrowser(true);
}

void CCorvelEditor::openStereoMenu(bool isInput) {
    m_stereoTargetIsInput = isInput;
    openAtMouse(m_stereoMenu);
}

// Hot spots

void CCorvelEditor::handleHotSpot(std::int32_t id) {
    showChainChange();
    const int slot = id & 15;
    switch (id & 240) {
    case kMoveLeft:
        moveLeft(slot);
        break;
    case kMoveRight:
        moveRight(slot);
        break;
    case kInsert:
        openInsertMenu(slot);
        break;
    case kReplace:
        openReplaceMenu(slot);
        break;
    default:
        break;
    }
}

void CCorvelEditor::moveLeft(int slot) {
    const int module = m_slotModule[std::size_t(slot)];
    if (module == kNoSlot)
        return;
    strip().moveFXBefore(m_slotModule[std::size_t(slot - 1)], module);
    refreshChainDisplay();
}

void CCorvelEditor::moveRight(int slot) {
    const int module = m_slotModule[std::size_t(slot)];
    const int next = m_slotModule[std::size_t(slot) + 1];
    if (module == kNoSlot || next == kNoSlot)
        return;
    strip().moveFXBefore(module, next);
    refreshChainDisplay();
}

void CCorvelEditor::openInsertMenu(int slot) {
    m_insertMode = true;
    m_selectedSlot = slot;
    prepareFxMenu(strip().getFXCount() >= slotCount);
    GUI::Controls::SMenuColours colours = editorMenuColours(StaticColours::alphaBlue);
    colours.selectionFill = StaticColours::alphaGreen;
    m_fxMenu.getWindow().setMenuColours(colours);
    openAtMouse(m_fxMenu);
}

void CCorvelEditor::openReplaceMenu(int slot) {
    if (m_slotModule[std::size_t(slot)] == kNoSlot)
        return;
    m_insertMode = false;
    m_selectedSlot = slot;
    prepareFxMenu(false);
    m_fxMenu.getWindow().setMenuColours(editorMenuColours(StaticColours::alphaBlue));
    openAtMouse(m_fxMenu);
}

void CCorvelEditor::prepareFxMenu(bool disableAll) {
    GUI::Controls::CMenu &menu = m_fxMenu.getMenu();
    menu.setMenuTitle(m_insertMode ? "Insert FX" : "Replace FX");
    for (int module = kFirstModuleSlot; module <= kLastModuleSlot; ++module)
        menu.getMenuItem(module - kFirstModuleSlot)->setEnabled(!isInChain(module) && !disableAll);
}

// Menus

// Only one menu is open at a time, even if the user turns the wheel over a knob beside it.
void CCorvelEditor::openAtMouse(CEditorMenu &menu) {
    closeMenus();
    CMenuWindow &window = menu.getWindow();
    window.setMenuListener(this);
    window.setParentWindow(this);
    const SNativePoint mouse = nativeMousePosition();
    window.openPopupWindow({mouse.x, mouse.y});
}

void CCorvelEditor::closeMenus() {
    for (CEditorMenu *menu : {&m_fxMenu, &m_stereoMenu, &m_modulator1->getMenu(),
                              &m_modulator2->getMenu(), &m_delay->getMenu()})
        menu->close();
}

// Choices

void CCorvelEditor::menuSelected(GUI::Events::CMenuEvent &event) {
    if (m_owner == nullptr || event.getMenuItem() == nullptr)
        return;
    const std::int32_t id = event.getMenuItem()->getId();
    if (id < noModuleId)
        chooseValue(id);
    else
        chooseModule(id);
}

void CCorvelEditor::chooseValue(std::int32_t itemId) {
    const SChoices choices[] = {
        {-13, 4, m_stereoTargetIsInput ? kInMono : kOutMono},
        {-34, 3, kMod1Type},
        {-41, 3, kMod2Type},
        {-50, 3, kDlySync},
    };
    for (const auto &[firstItemId, number, parameter] : choices) {
        const std::int32_t choice = itemId - firstItemId;
        if (choice < 0 || choice >= number)
            continue;
        const double value = choice / (number - 1.0);
        {
            const CEditing editing(*this);
            effect->setParameterAutomated(static_cast<int>(parameter), static_cast<float>(value));
        }
        setParameter(parameter, value);
        return;
    }
}

// Kept: "--No FX--" removes the module in both modes. Neither appending nor replacing resets the
// new module.
void CCorvelEditor::chooseModule(int chosen) {
    showChainChange();
    const int present = m_slotModule[std::size_t(m_selectedSlot)];
    // The host may have replaced the chain while the menu was open.
    if (chosen != noModuleId && isInChain(chosen))
        return;
    if (m_insertMode && chosen != noModuleId)
        insertModule(present, chosen);
    else if (present == kNoSlot)
        return;
    else if (chosen == noModuleId)
        strip().removeFX(present);
    else
        strip().replaceFX(present, chosen);
    refreshChainDisplay();
}

void CCorvelEditor::insertModule(int present, int chosen) {
    if (present == kNoSlot)
        strip().appendFX(chosen);
    else
        strip().insertFX(present, chosen, true, true);
}

}  // namespace Tessitor::Corvel
