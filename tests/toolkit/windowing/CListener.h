#pragma once

#include "toolkit/controls/CSpyControl.h"
#include "toolkit/events/IDropFileListener.h"
#include "toolkit/events/IFocusListener.h"
#include "toolkit/events/IKeyboardListener.h"
#include "toolkit/events/IMouseListener.h"
#include "toolkit/events/IWindowChangeListener.h"

#include <functional>
#include <string>

/// Listens to everything and notes it in a log.
class CListener : public Tessitor::GUI::Listeners::IWindowChangeListener,
                  public Tessitor::GUI::Listeners::IFocusListener,
                  public Tessitor::GUI::Listeners::IMouseListener,
                  public Tessitor::GUI::Listeners::IKeyboardListener,
                  public Tessitor::GUI::Listeners::IDropFileListener {
public:
    using IWindow = Tessitor::GUI::Windowing::IWindow;
    using CMouseEvent = Tessitor::GUI::Events::CMouseEvent;
    using CKeyboardEvent = Tessitor::GUI::Events::CKeyboardEvent;

    explicit CListener(EventLog &log) : m_log(log) {}

    bool mayClose = true;
    bool usesKeys = true;
    std::function<void()> onEvent;  // called after each note
    CMouseEvent *lastMouseEvent = nullptr;

    void windowSizeChanged(IWindow *, const Tessitor::MathTools::CDimension &size) override {
        note("size " + std::to_string(size.getWidth()) + "x" + std::to_string(size.getHeight()));
    }
    void windowMoved(IWindow *, const Tessitor::MathTools::CPoint &position) override {
        note("moved " + textOf(position));
    }
    bool windowClosed(IWindow *) override {
        note("closed");
        return mayClose;
    }
    void gainedFocus(IWindow *) override { note("gained focus"); }
    void lostFocus(IWindow *) override { note("lost focus"); }

    void handleLeftButtonDown(CMouseEvent &event) override { noteMouse("left down", event); }
    void handleLeftButtonUp(CMouseEvent &event) override { noteMouse("left up", event); }
    void handleRightButtonDown(CMouseEvent &event) override { noteMouse("right down", event); }
    void handleRightButtonUp(CMouseEvent &event) override { noteMouse("right up", event); }
    void handleDoubleClick(CMouseEvent &event) override { noteMouse("double click", event); }
    void handleMouseScroll(CMouseEvent &event) override {
        noteMouse("scroll " + std::to_string(event.getWheelAmount()), event);
    }
    void handleMouseMovement(CMouseEvent &event) override { noteMouse("movement", event); }
    void handleMouseLeaving(CMouseEvent &event) override { noteMouse("leaving", event); }

    bool handleKeyDown(const CKeyboardEvent &event) override { return noteKey("down", event); }
    bool handleKeyUp(const CKeyboardEvent &event) override { return noteKey("up", event); }

    void handleFileDrop(const Tessitor::GUI::Events::CDropEvent &event) override {
        std::string text = "drop " + textOf(event.getPosition());
        for (int i = 0; i < event.getNumberOfFiles(); ++i)
            text += std::string(" ") + event.getFilename(i)->getString();
        note(text);
    }

private:
    void note(const std::string &text) {
        m_log.push_back(text);
        if (onEvent)
            onEvent();
    }
    void noteMouse(const std::string &what, CMouseEvent &event) {
        lastMouseEvent = &event;
        note(what + " " + std::to_string(static_cast<int>(event.getType())) + " at " +
             textOf(event.getMousePosition()) +
             keys(event.isControlDown(), event.isShiftDown(), event.isAltDown()));
    }
    bool noteKey(const std::string &what, const CKeyboardEvent &event) {
        const char character = event.getCharacter();
        note(what + " '" + (character != '\0' ? std::string(1, character) : "") + "' " +
             std::to_string(static_cast<int>(event.getKeyCode())) +
             (event.isSpecialKey() ? " special" : "") +
             keys(event.isControlDown(), event.isShiftDown(), event.isAltDown()));
        return usesKeys;
    }
    static std::string keys(bool isControlDown, bool isShiftDown, bool isAltDown) {
        return std::string(isControlDown ? " control" : "") + (isShiftDown ? " shift" : "") +
               (isAltDown ? " alt" : "");
    }

    EventLog &m_log;
};
