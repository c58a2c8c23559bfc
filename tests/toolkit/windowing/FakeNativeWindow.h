#pragma once

#include "platform/INativeWindow.h"
#include "platform/NativeDrop.h"
#include "platform/NativeKeyboard.h"

#include <string>
#include <vector>

/// A native window that notes what it is asked to do and reports what a test wants.
class CFakeNativeWindow : public INativeWindow {
public:
    CFakeNativeWindow(const SNativeWindowOptions &windowOptions,
                      INativeWindowListener &windowListener);
    ~CFakeNativeWindow() override;

    void *getHandle() const override;
    SNativeRect getScreenArea() const override { return screenArea; }
    void show() override;
    void hide() override;
    void enable(bool isEnabled) override;
    void bringToFront() override;
    void setTitle(const std::string &title) override;
    void setAlpha(std::uint8_t alpha) override;
    void move(SNativePoint position) override;
    void moveAndResize(const SNativeRect &bounds) override;
    void invalidate(const SNativeRect &area) override;
    void update() override;
    void paint(const PaintCallback &callback) override;
    bool startTimer(int id, int milliseconds) override;
    void stopTimer(int id) override;
    void pump() override;
    void trackMouseLeave() override;
    void hookWheel() override;
    void unhookWheel() override;

    const SNativeWindowOptions options;
    INativeWindowListener &listener;
    SNativeRect screenArea;
    SNativeRect dirty;  // what paint() has painted

private:
    void change(const std::string &what);
};

/// The window system, keyboard and drops of a program that links FakeNativeWindow.cpp, which
/// replaces the platform's functions.
struct SFakeNatives {
    std::vector<std::string> log;
    std::vector<CFakeNativeWindow *> windows;  // that exist, in order of creation
    SNativeWindowOptions lastOptions;
    bool refusesWindows = false;
    std::string reason;  // of a refusal
    /// Called while a window is created, while one is destroyed, and while one is shown, hidden,
    /// moved or resized.
    std::function<void(INativeWindowListener &)> onCreate, onDestroy, onChange;
    std::function<void(INativeWindowListener &)> onPump;  // called by pump()
    std::unique_ptr<INativeSurface> screen;               // what windows paint on

    SNativeModifiers modifiers;
    SNativeCharacter character;
    SNativeDrop drop;

    std::vector<std::string> takeLog() { return std::exchange(log, {}); }
};

SFakeNatives &fakeNatives();
