#pragma once

#include "platform/INativeSurface.h"

#include <windows.h>

/// A surface or window that GDI draws on. Every INativePaintTarget of this system is one too.
class IDeviceContext {
public:
    /// @return the context, ready for GDI operations until something else draws.
    virtual HDC getDeviceContext() const = 0;

protected:
    ~IDeviceContext() = default;
};

inline HDC deviceContextOf(const INativePaintTarget &target) {
    return dynamic_cast<const IDeviceContext &>(target).getDeviceContext();
}

/// What INativePaintTarget::copyFrom() does.
inline void copyArea(HDC to, const INativeSurface &source, const SNativeRect &area) {
    BitBlt(to, area.left, area.top, area.right - area.left, area.bottom - area.top,
           deviceContextOf(source), area.left, area.top, SRCCOPY);
}
