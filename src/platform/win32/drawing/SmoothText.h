#pragma once

#include "platform/INativeFont.h"
#include "platform/win32/drawing/GdiplusObjects.h"

/// The font of GDI+ for a font of GDI.
/// @return null if GDI+ has no such font: it knows TrueType and OpenType fonts only.
TGdiplusObject<Gdiplus::GpFont> createSmoothFont(const INativeFont &font);

/// @param flags       those of GdipCreateStringFormat().
/// @param horizontal  0 left, 1 centre, 2 right.
/// @param vertical    0 top, 1 centre, 2 bottom.
TGdiplusObject<Gdiplus::GpStringFormat> createStringFormat(int flags, int horizontal, int vertical);
