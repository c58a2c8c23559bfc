#pragma once

namespace Tessitor::GUI::Events {
class CDropEvent;
}

namespace Tessitor::GUI::Listeners {

/// Receives dropped files. [gui thread]
class IDropFileListener {
public:
    virtual ~IDropFileListener() = default;

    virtual void handleFileDrop(const Events::CDropEvent &event) = 0;
};

}  // namespace Tessitor::GUI::Listeners
