#pragma once

#include "platform/linux/drawing/SPixels.h"
#include "platform/linux/drawing/Spans.h"

/// Fills a rounded rectangle as GDI+ does without smoothing: the pixels whose upper left corners
/// lie inside it or on its left edge.
/// @param width  of the ellipse that the corners are quarters of; so is height. Not larger than the
///               area.
void fillInside(const SPixels &pixels, const SArea &area, std::int64_t width, std::int64_t height,
                std::uint32_t pixel);
