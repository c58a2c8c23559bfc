#pragma once

#include "CListener.h"
#include "toolkit/controls/CSpyControl.h"
#include "toolkit/events/FakeNativeMouse.h"
#include "toolkit/windowing/CWindow.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

    CListener listener{fakeNatives().log};
    CWindowAttributes attributes;
    EventLog events;  // of the controls
    CTestWindow *window;
    bool isDeleted = false;
};
