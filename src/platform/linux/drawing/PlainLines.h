#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/drawing/SPixels.h"

/// Draws a premultiplied pixel over those of a line one pixel wide, without its last one. A long
/// line costs no more than the part of it inside the clip.
void drawPlainLine(const SPixels &pixels, SNativePoint from, SNativePoint to, std::uint32_t pixel);

/// The same with the last pixel, as GDI+ draws it.
void drawWholeLine(const SPixels &pixels, SNativePoint from, SNativePoint to, std::uint32_t pixel);
