#pragma once

#include "foundation/TPointerCollection.h"
#include "toolkit/controls/CControlRoot.h"
#include "toolkit/events/CKeyboardEvent.h"
#include "toolkit/events/CMouse.h"
#include "toolkit/events/CMouseEvent.h"
#include "toolkit/events/ITimedObject.h"
#include "toolkit/events/IWindow.h"
#include "toolkit/events/SWindowHandle.h"
#include "toolkit/graphics/CGraphics.h"

#include <memory>

namespace Tessitor::GUI::Windowing {

/// What the code that handles a message uses. The window shares it with each message in progress,
/// so that a handler may delete the window.
struct SWindowParts {
    explicit SWindowParts(std::unique_ptr<Controls::CControlRoot> windowRoot)
        : root(std::move(windowRoot)) {}

    /// Gives the controls another window, which does nothing, because theirs is being deleted.
    void replaceWindow(std::unique_ptr<IWindow> window);
    bool isWindowGone() const { return replacement != nullptr; }

    std::unique_ptr<IWindow> replacement;  // null while the window exists
    SWindowHandle handle;
    CMouse mouse;
    Graphics::CGraphics graphics;
    Events::CMouseEvent mouseEvent{&mouse};  // both reused for every message
    Events::CKeyboardEvent keyboardEvent;
    Collections::TObjectNuller<ITimedObject> nuller;
    Collections::TPointerCollection<ITimedObject> timedObjects{&nuller};
    std::unique_ptr<Controls::CControlRoot> root;  // last: its controls may use all the others
};

}  // namespace Tessitor::GUI::Windowing
