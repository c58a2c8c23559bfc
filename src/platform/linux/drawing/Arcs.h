#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/drawing/Spans.h"

/// Sets the pixels of an arc counter-clockwise from start to end, or clockwise. An arc lacks its
/// last pixel; the whole ellipse, for two equal directions, lacks none.
/// @param area      what the ellipse fills, with its edges in order.
/// @param start     a point in the direction of the start, seen from the centre; end likewise.
/// @param penWidth  at least 1.
void drawPlainArc(const SPixels &pixels, const SArea &area, SNativePoint start, SNativePoint end,
                  bool clockwise, std::int64_t penWidth, std::uint32_t pixel);
