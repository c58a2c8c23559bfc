#pragma once

#include "toolkit/controls/CControl.h"
#include "toolkit/events/CDropEvent.h"
#include "toolkit/events/CKeyboardEvent.h"
#include "toolkit/graphics/CGraphics.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

using EventLog = std::vector<std::string>;

inline std::string textOf(const Tessitor::MathTools::CPoint &point) {
    return std::to_string(point.getXPosition()) + "," + std::to_string(point.getYPosition());
}

inline std::string textOf(const Tessitor::MathTools::CRect &rect) {
    return rect.toString().getString();
}

/// Writes what it receives into a log, as "name: event x,y".
class CSpyControl : public Tessitor::GUI::Controls::CControl {
public:
    CSpyControl(Tessitor::GUI::Controls::IControlRoot *root, const char *name,
                const Tessitor::MathTools::CRect &area, EventLog &log,
                Tessitor::GUI::Listeners::IActionListener *listener = nullptr)
        : CControl(root, 0, area, listener), m_log(log) {
        setDescription(name);
    }
    ~CSpyControl() override {
        if (isDestroyed)
            *isDestroyed = true;
    }

    std::function<void(Tessitor::GUI::Events::CMouseEvent &)> onMouse;
    std::function<bool()> onKey = [] { return true; };
    std::function<void()> onDrop;
    std::function<void(Tessitor::GUI::Graphics::CGraphics &)> onDraw;
    std::shared_ptr<bool> isDestroyed;  // set by the destructor; may outlive a test's body

    using CControl::sendActionEvent;

    void handleLeftButtonDown(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("left down", event);
    }
    void handleLeftButtonUp(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("left up", event);
    }
    void handleRightButtonDown(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("right down", event);
    }
    void handleRightButtonUp(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("right up", event);
    }
    void handleDoubleClick(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("double click", event);
    }
    void handleMouseScroll(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("scroll", event);
    }
    void handleMouseMovement(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("move", event);
    }
    void handleMouseLeaving(Tessitor::GUI::Events::CMouseEvent &event) override {
        note("leave", event);
    }
    bool handleKeyDown(const Tessitor::GUI::Events::CKeyboardEvent &) override {
        m_log.push_back(name() + ": key down");
        return onKey();
    }
    bool handleKeyUp(const Tessitor::GUI::Events::CKeyboardEvent &) override {
        m_log.push_back(name() + ": key up");
        return onKey();
    }
    void handleFileDrop(const Tessitor::GUI::Events::CDropEvent &event) override {
        m_log.push_back(name() + ": drop " + textOf(event.getPosition()) + " " +
                        event.getFilename(0)->getString());
        if (onDrop)
            onDrop();
    }
    void drawControl(Tessitor::GUI::Graphics::CGraphics &graphics) override {
        m_log.push_back(name() + ": draw " + textOf(graphics.getUpdateArea()));
        if (onDraw)
            onDraw(graphics);
    }

private:
    std::string name() const { return getDescription().getString(); }
    void note(const char *what, Tessitor::GUI::Events::CMouseEvent &event) {
        m_log.push_back(name() + ": " + what + " " + textOf(event.getMousePosition()));
        if (onMouse)
            onMouse(event);
    }

    EventLog &m_log;
};
