#pragma once

#include "platform/win32/drawing/GdiplusObjects.h"

/// What GDI+ draws with, and the picture that it draws on unless that is a device context.
struct SSmoothGraphics {
    TGdiplusObject<Gdiplus::GpBitmap> picture;  // outlives the graphics
    TGdiplusObject<Gdiplus::GpGraphics> graphics;
};

/// What smooth drawing needs of a surface.
class ISmoothSurface {
public:
    /// @return null graphics if GDI+ refuses.
    virtual SSmoothGraphics createGraphics() = 0;
    /// Makes the pixels ready for GDI+. Called before each operation.
    /// @return the clip of the surface.
    virtual RECT prepareForGraphics() = 0;

protected:
    ~ISmoothSurface() = default;
};
