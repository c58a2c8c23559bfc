#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/drawing/SPixels.h"

#include <functional>
#include <span>

/// Calls draw(y, left, right) for all runs of pixels inside a polygon, by the even-odd rule: those
/// whose centres lie inside it, on its left or on its top edge. The polygon closes itself.
/// @param clip   runs are cut at it.
/// @param right  lies outside the run.
void fillPolygon(
    const SNativeRect &clip, std::span<const SNativePoint> points,
    const std::function<void(std::int32_t y, std::int32_t left, std::int32_t right)> &draw);
