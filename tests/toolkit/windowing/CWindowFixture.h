#pragma once

#include "toolkit/controls/CSpyControl.h"
#include "toolkit/events/FakeNativeMouse.h"
#include "toolkit/windowing/CWindow.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using EventLog = std::vector<std::string>;

/// Writes what its listeners hear, and what derived windows are asked, into the log of the natives.
class CTestWindow : public Tessitor::GUI::Windowing::CWindow {
public:
    using CWindow::createWindow;
    using CWindow::CWindow;
    using CWindow::getTimedObjects;
    using CWindow::handleKeyboardHook;
    ~CTestWindow() override {
        if (onDeletion)
            onDeletion();
    }

    std::function<void()> onDeletion;
    std::function<void()> onDestroying;  // called after the note

    void windowDestroying() override {
        note("destroying");
        if (onDestroying)
            onDestroying();
    }
    void windowCreating() override { note("creating"); }
    void windowCreated() override { note("created"); }

private:
    static void note(const char *what) { fakeNatives().log.emplace_back(what); }
};

/// Listens to everything and notes it in the log of the natives.
class CListener : public Tessitor::GUI::Listeners::IWindowChangeListener,
                  public Tessitor::GUI::Listeners::IFocusListener,
                  public Tessitor::GUI::Listeners::IMouseListener,
                  public Tessitor::GUI::Listeners::IKeyboardListener,
                  public Tessitor::GUI::Listeners::IDropFileListener {
public:
    using IWindow = Tessitor::GUI::Windowing::IWindow;
    using CMouseEvent = Tessitor::GUI::Events::CMouseEvent;
    using CKeyboardEvent = Tessitor::GUI::Events::CKeyboardEvent;

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
        fakeNatives().log.push_back(text);
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
};

/// A window of 100 by 50 at 10, 20 that exists, and what listens to it.
class CWindowFixture : public testing::Test {
protected:
    using CRect = Tessitor::MathTools::CRect;
    using CPoint = Tessitor::MathTools::CPoint;
    using CDimension = Tessitor::MathTools::CDimension;
    using CWindowAttributes = Tessitor::GUI::Windowing::CWindowAttributes;
    using Result = std::optional<std::intptr_t>;

    CWindowFixture() {
        fakeNatives() = SFakeNatives();
        fakeNativeMouse().captureWindow = nullptr;
        fakeNativeMouse().position = {};
        window = new CTestWindow(CRect(10, 20, 100, 50));
    }
    ~CWindowFixture() override {
        if (!isDeleted)
            delete window;
    }

    void create() {
        window->setWindowAttributes(&attributes, false);
        fakeNatives().takeLog();
    }
    void listen() {
        window->setWindowChangeListener(&listener);
        window->setFocusListener(&listener);
        window->setMouseListener(&listener);
        window->setKeyboardListener(&listener);
        window->setDropFileListener(&listener);
    }
    void createAndListen() {
        create();
        listen();
    }
    void deleteWindow() {
        isDeleted = true;
        delete window;
    }

    static CFakeNativeWindow &native() { return *fakeNatives().windows.back(); }
    static Result send(unsigned message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) {
        return native().listener.handleMessage(message, wParam, lParam);
    }
    static std::intptr_t packed(int x, int y) {
        return static_cast<std::intptr_t>((static_cast<std::uint32_t>(y) << 16) |
                                          (static_cast<std::uint32_t>(x) & 0xFFFF));
    }
    static EventLog takeLog() { return fakeNatives().takeLog(); }

    /// A control in the window's root, which holds the only reference to it.
    CSpyControl *addControl(const CRect &area) {
        auto *control = new CSpyControl(window->getControlRoot(), "control", area, events);
        window->getControlRoot()->addControl(control);
        return control;
    }

    CListener listener;
    CWindowAttributes attributes;
    EventLog events;  // of the controls
    CTestWindow *window;
    bool isDeleted = false;
};
