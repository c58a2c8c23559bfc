#pragma once

#include "platform/INativeFont.h"
#include "platform/win32/drawing/GdiObjects.h"

class CWin32Font : public INativeFont {
public:
    explicit CWin32Font(TGdiObject<HFONT> handle) : m_handle(std::move(handle)) {}
    HFONT getHandle() const { return m_handle.get(); }

private:
    TGdiObject<HFONT> m_handle;
};

inline HFONT handleOf(const INativeFont &font) {
    return static_cast<const CWin32Font &>(font).getHandle();
}
