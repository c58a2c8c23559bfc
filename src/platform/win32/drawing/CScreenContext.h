#pragma once

#include <windows.h>

/// The device context of the whole screen.
class CScreenContext {
public:
    CScreenContext() : m_handle(GetDC(nullptr)) {}
    ~CScreenContext() { ReleaseDC(nullptr, m_handle); }
    CScreenContext(const CScreenContext &) = delete;
    CScreenContext &operator=(const CScreenContext &) = delete;

    HDC getHandle() const { return m_handle; }

private:
    HDC m_handle;
};
