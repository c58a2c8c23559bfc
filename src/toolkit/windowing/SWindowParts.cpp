#include "toolkit/windowing/SWindowParts.h"

#include <utility>

namespace Tessitor::GUI::Windowing {

namespace {

void moveToWindow(Controls::IControlRoot &root, IWindow &window) {
    root.setParentWindow(&window);
    const auto movePanel = [&](Controls::IControl *control) {
        if (auto *panel = dynamic_cast<Controls::IControlRoot *>(control))
            moveToWindow(*panel, window);
    };
    for (std::int32_t i = 0; i < root.getNumberOfControls(); ++i)
        movePanel(root.getControlAtIndex(i, true));
    movePanel(root.getModalControl());
}

}  // namespace

void SWindowParts::replaceWindow(std::unique_ptr<IWindow> window) {
    moveToWindow(*root, *window);
    replacement = std::move(window);
}

}  // namespace Tessitor::GUI::Windowing
