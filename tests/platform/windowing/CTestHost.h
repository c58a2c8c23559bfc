#pragma once

#include <functional>
#include <memory>

/// A host program in whose window a test creates windows. Starts an X server on Linux.
class CTestHost {
public:
    CTestHost();
    CTestHost(const CTestHost &) = delete;
    CTestHost &operator=(const CTestHost &) = delete;
    ~CTestHost();

    /// @return a visible window of 300 by 200 at 50, 60 on the screen, which the test destroys:
    ///         HWND or X window id.
    void *createWindow();
    void destroyWindow(void *window);

    /// Lets the system deliver what it has to report until a condition is met.
    /// @return false if it is not met within five seconds.
    bool pumpUntil(const std::function<bool()> &isMet);

private:
    struct SSystem;
    std::unique_ptr<SSystem> m_system;
};
