#pragma once

namespace Tessitor::GUI::Windowing {

/// What the platform knows a window by.
struct SWindowHandle {
    void *native = nullptr;  // null while there is no native window
};

}  // namespace Tessitor::GUI::Windowing
