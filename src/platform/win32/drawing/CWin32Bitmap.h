#pragma once

#include "platform/INativeBitmap.h"
#include "platform/win32/drawing/GdiObjects.h"

class CWin32Bitmap : public INativeBitmap {
public:
    CWin32Bitmap(TGdiObject<HBITMAP> handle, std::int32_t width, std::int32_t height)
        : m_handle(std::move(handle)), m_width(width), m_height(height) {}
    std::int32_t getWidth() const override { return m_width; }
    std::int32_t getHeight() const override { return m_height; }
    HBITMAP getHandle() const { return m_handle.get(); }

private:
    TGdiObject<HBITMAP> m_handle;
    std::int32_t m_width, m_height;
};

inline HBITMAP handleOf(const INativeBitmap &bitmap) {
    return static_cast<const CWin32Bitmap &>(bitmap).getHandle();
}
