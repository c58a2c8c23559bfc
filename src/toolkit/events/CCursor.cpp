#include "toolkit/events/CCursor.h"

#include "platform/NativeMouse.h"

namespace Tessitor::GUI::Windowing {

Tessitor::Basics::TClassRecord<CCursor> CCursor::s_class("CCursor", "CCountedObject");

namespace {

int systemCursorOf(ECursorKind kind) {
    switch (kind) {
    case ECursorKind::Hand:
        return 32649;
    case ECursorKind::Wait:
        return 32514;
    case ECursorKind::ResizeVertical:
        return 32645;
    case ECursorKind::ResizeHorizontal:
        return 32644;
    case ECursorKind::Text:
        return 32513;
    case ECursorKind::ResizeDiagonal:
        return 32642;
    case ECursorKind::Move:
        return 32646;
    case ECursorKind::Arrow:
        break;
    }
    return 32512;
}

}  // namespace

CCursor::CCursor(ECursorKind kind) : m_handle(loadNativeCursor(systemCursorOf(kind))) {
    s_class.incrementInstanceCount();
}

CCursor::CCursor(void *module, int resource, bool isAnimated)
    : m_handle(isAnimated ? loadNativeAnimatedCursor(module, resource)
                          : loadNativeCursor(module, resource)) {
    s_class.incrementInstanceCount();
}

CCursor::~CCursor() {
    destroyNativeCursor(m_handle);
    s_class.decrementInstanceCount();
}

CCursor *CCursor::getDefaultCursor() {
    static CCursor arrow(ECursorKind::Arrow);
    return &arrow;
}

CCursor *CCursor::getHandCursor() {
    static CCursor hand(ECursorKind::Hand);
    return &hand;
}

}  // namespace Tessitor::GUI::Windowing
