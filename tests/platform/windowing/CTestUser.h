#pragma once

#include "platform/INativeTextField.h"
#include "platform/windowing/CTestHost.h"

#include <memory>

/// Somebody who types into a text field.
class CTestUser {
public:
    explicit CTestUser(CTestHost &host);
    CTestUser(const CTestUser &) = delete;
    CTestUser &operator=(const CTestUser &) = delete;
    ~CTestUser();

    /// @param text  small letters, digits and blanks.
    void type(const INativeTextField &field, const char *text);
    void pressReturn(const INativeTextField &field);
    void pressEscape(const INativeTextField &field);
    /// Gives the keyboard to a window of the host.
    void goTo(void *window);
    SNativeRect screenAreaOf(const INativeTextField &field);
    /// @return 0xRRGGBB, as it is on the screen.
    std::uint32_t pixelOf(const INativeTextField &field, int x, int y);

private:
    struct SSystem;
    CTestHost &m_host;
    std::unique_ptr<SSystem> m_system;
};
