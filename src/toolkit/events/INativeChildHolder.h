#pragma once

#include <cstdint>

namespace Tessitor::GUI::Windowing {

/// A control that has laid a native child window over itself, such as a field to type in. [gui
/// thread]
class INativeChildHolder {
public:
    virtual ~INativeChildHolder() = default;

    virtual bool holdsNativeChild(void *child) const = 0;  ///< child is a native handle
    /// Sets the colours of the child window.
    /// @param deviceContext  what the child is drawn on.
    /// @return the handle of the brush for the child's background.
    virtual std::intptr_t colourNativeChild(void *deviceContext) = 0;
};

}  // namespace Tessitor::GUI::Windowing
