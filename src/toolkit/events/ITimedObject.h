#pragma once

#include <cstdint>

namespace Tessitor::GUI::Windowing {

/// Something that a timer of a window calls; see IWindow::addTimedObject(). [gui thread]
class ITimedObject {
public:
    virtual ~ITimedObject() = default;

    virtual void timerFired() = 0;
    virtual std::int32_t getTimerId() const = 0;  ///< not 0
};

}  // namespace Tessitor::GUI::Windowing
