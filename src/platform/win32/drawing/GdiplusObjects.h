#pragma once

#include "platform/win32/drawing/GdiObjects.h"

#include <gdiplus.h>  // needs windows.h before it
#include <memory>

struct SGdiplusDelete {
    void operator()(Gdiplus::GpGraphics *graphics) const {
        Gdiplus::DllExports::GdipDeleteGraphics(graphics);
    }
    void operator()(Gdiplus::GpPen *pen) const { Gdiplus::DllExports::GdipDeletePen(pen); }
    void operator()(Gdiplus::GpBrush *brush) const { Gdiplus::DllExports::GdipDeleteBrush(brush); }
    void operator()(Gdiplus::GpPath *path) const { Gdiplus::DllExports::GdipDeletePath(path); }
    void operator()(Gdiplus::GpFont *font) const { Gdiplus::DllExports::GdipDeleteFont(font); }
    void operator()(Gdiplus::GpStringFormat *format) const {
        Gdiplus::DllExports::GdipDeleteStringFormat(format);
    }
    void operator()(Gdiplus::GpImage *image) const { Gdiplus::DllExports::GdipDisposeImage(image); }
};

/// Owns an object of GDI+. GDI+ takes a null object for an error and does nothing.
template <typename Object>
using TGdiplusObject = std::unique_ptr<Object, SGdiplusDelete>;

inline Gdiplus::ARGB toArgb(SNativeColour colour) {
    return Gdiplus::Color::MakeARGB(colour.alpha, colour.red, colour.green, colour.blue);
}

inline TGdiplusObject<Gdiplus::GpSolidFill> createSolidFill(SNativeColour colour) {
    Gdiplus::GpSolidFill *fill = nullptr;
    Gdiplus::DllExports::GdipCreateSolidFill(toArgb(colour), &fill);
    return TGdiplusObject<Gdiplus::GpSolidFill>(fill);
}
