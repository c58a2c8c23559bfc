#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/drawing/SPixels.h"

/// Fills a disc about a point: the round end of a wide line.
/// @param width  at least 2.
void fillDisc(const SPixels &pixels, SNativePoint centre, std::int64_t width, std::uint32_t pixel);

/// Fills a line with round ends, inclusive of both points.
/// @param width  at least 2.
void drawWideLine(const SPixels &pixels, SNativePoint from, SNativePoint to, std::int64_t width,
                  std::uint32_t pixel);
