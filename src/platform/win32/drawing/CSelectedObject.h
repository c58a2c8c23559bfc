#pragma once

#include <windows.h>

/// Selects an object into a device context for as long as this lives.
class CSelectedObject {
public:
    CSelectedObject(HDC context, HGDIOBJ object)
        : m_context(context), m_previous(SelectObject(context, object)) {}
    ~CSelectedObject() { SelectObject(m_context, m_previous); }
    CSelectedObject(const CSelectedObject &) = delete;
    CSelectedObject &operator=(const CSelectedObject &) = delete;

private:
    HDC m_context;
    HGDIOBJ m_previous;
};
