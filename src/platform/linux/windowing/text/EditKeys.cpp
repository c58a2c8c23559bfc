#include "platform/linux/windowing/text/EditKeys.h"

namespace {

// Virtual keys
constexpr std::uintptr_t backspaceKey = 8, returnKey = 13, escapeKey = 27, endKey = 35,
                         homeKey = 36, leftKey = 37, rightKey = 39, insertKey = 45, deleteKey = 46;

}  // namespace

EEditCommand editCommandOf(std::uintptr_t key, const SNativeModifiers &modifiers) {
    const auto [isControlDown, isShiftDown, isAltDown] = modifiers;
    if (key == returnKey)
        return EEditCommand::Accept;
    if (key == escapeKey)
        return EEditCommand::Abandon;
    if (isAltDown)
        return EEditCommand::None;
    if (isControlDown && (key == 'C' || key == insertKey))
        return EEditCommand::Copy;
    if ((isControlDown && key == 'X') || (isShiftDown && !isControlDown && key == deleteKey))
        return EEditCommand::Cut;
    if ((isControlDown && key == 'V') || (isShiftDown && !isControlDown && key == insertKey))
        return EEditCommand::Paste;
    return EEditCommand::None;
}

bool applyEditKey(CEditLine &line, std::uintptr_t key, const SNativeModifiers &modifiers) {
    const bool isShiftDown = modifiers.isShiftDown;
    const EEditReach reach = modifiers.isControlDown ? EEditReach::Word : EEditReach::Character;
    switch (key) {
    case 'A':
        if (!modifiers.isControlDown || modifiers.isAltDown)
            return false;
        line.selectAll();
        return true;
    case backspaceKey:
        line.eraseBefore(reach);
        return true;
    case deleteKey:
        line.eraseAfter(reach);
        return true;
    case leftKey:
        line.moveLeft(reach, isShiftDown);
        return true;
    case rightKey:
        line.moveRight(reach, isShiftDown);
        return true;
    case homeKey:
        line.moveLeft(EEditReach::Line, isShiftDown);
        return true;
    case endKey:
        line.moveRight(EEditReach::Line, isShiftDown);
        return true;
    default:
        return false;
    }
}
