#pragma once

#include <windows.h>

/// A memory device context that a bitmap is selected into: a bitmap fits into one at a time.
class CMemoryContext {
public:
    CMemoryContext(HDC compatibleWith, HBITMAP bitmap)
        : m_handle(CreateCompatibleDC(compatibleWith)), m_previous(SelectObject(m_handle, bitmap)) {
    }
    ~CMemoryContext() {
        SelectObject(m_handle, m_previous);
        DeleteDC(m_handle);
    }
    CMemoryContext(const CMemoryContext &) = delete;
    CMemoryContext &operator=(const CMemoryContext &) = delete;

    HDC getHandle() const { return m_handle; }
    bool isUsable() const { return m_previous != nullptr; }

private:
    HDC m_handle;
    HGDIOBJ m_previous;
};
