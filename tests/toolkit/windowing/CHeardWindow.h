#pragma once

#include "toolkit/windowing/CListener.h"
#include "toolkit/windowing/CWindow.h"

#include <memory>
#include <utility>

/// A real window and what listens to it, for the fixtures of both systems.
class CHeardWindow {
protected:
    using CRect = Tessitor::MathTools::CRect;
    using CWindow = Tessitor::GUI::Windowing::CWindow;
    using CWindowAttributes = Tessitor::GUI::Windowing::CWindowAttributes;

    ~CHeardWindow() = default;

    /// Lets the windows hear of all that has happened.
    virtual void deliverMessages() = 0;

    /// Opens a child window in a native window of the host.
    static void openInNative(CWindow &opened, void *parent) {
        CWindowAttributes attributes;
        attributes.setWindowStyles(0x50000000, 16);
        CWindow host(CRect(0, 0, 10, 10));
        host.getMutableWindowHandle()->native = parent;
        opened.setParentWindow(&host);
        opened.setWindowAttributes(&attributes, true);
        opened.setParentWindow(nullptr);
        host.getMutableWindowHandle()->native = nullptr;
    }
    void listenTo(CWindow &heard) {
        heard.setWindowChangeListener(&listener);
        heard.setFocusListener(&listener);
        heard.setMouseListener(&listener);
        heard.setKeyboardListener(&listener);
        heard.setDropFileListener(&listener);
    }
    /// @return what has been heard since the last call.
    EventLog take() {
        deliverMessages();
        return std::exchange(log, {});
    }
    /// Likewise, without the movements: systems repeat them, and report some that nobody has made.
    EventLog takeWithoutMovements() {
        EventLog events = take();
        std::erase_if(events, [](const auto &event) { return event.starts_with("movement"); });
        return events;
    }

    EventLog log;
    CListener listener{log};
    std::unique_ptr<CWindow> window;
};
