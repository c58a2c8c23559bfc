#pragma once

#include "platform/INativeWindow.h"
#include "platform/win32/windowing/LowMemory.h"

#include <windows.h>

/// A window of USER. Its user data holds the low 32 bits of the object's address, so the object
/// must lie below 2 GB, which its operator new sees to.
class CWin32Window : public INativeWindow {
public:
    explicit CWin32Window(INativeWindowListener &listener) : m_listener(listener) {}
    ~CWin32Window() override;
    CWin32Window(const CWin32Window &) = delete;
    CWin32Window &operator=(const CWin32Window &) = delete;

    static void *operator new(std::size_t size) { return allocateLowMemory(size); }
    static void operator delete(void *memory) { freeLowMemory(memory); }

    /// @return false if the system refuses; GetLastError() then tells why.
    bool create(const SNativeWindowOptions &options);

    void *getHandle() const override { return m_handle; }
    SNativeRect getScreenArea() const override;
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
    void pump() override {}
    void trackMouseLeave() override;
    void hookWheel() override;
    void unhookWheel() override;

    /// The procedure of the window classes.
    static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

private:
    void handleEnd();

    static CWin32Window *find(HWND handle);
    static void CALLBACK timerProcedure(HWND handle, UINT message, UINT_PTR id, DWORD time);
    static LRESULT CALLBACK hookProcedure(int code, WPARAM wParam, LPARAM lParam);
    static bool sendHookedWheel(const MOUSEHOOKSTRUCTEX &mouse);

    static HWND s_hookWindow;  // the last one that has hooked the wheel

    INativeWindowListener &m_listener;
    HWND m_handle = nullptr;  // null if the window is gone
    std::string m_className;
    HHOOK m_hook = nullptr;
    bool m_reportsEnd = false;  // whether nobody but the system can end the window now
};
