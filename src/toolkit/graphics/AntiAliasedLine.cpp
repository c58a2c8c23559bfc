#include "toolkit/graphics/AntiAliasedLine.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Tessitor::GUI::Graphics {

namespace {

double greyValue(SNativeColour colour) {
    return 0.299 * colour.red + 0.587 * colour.green + 0.114 * colour.blue;
}

/// @param weight  of the background where it is the larger of the two, else of the line.
std::uint8_t blended(std::uint8_t background, std::uint8_t line, int weight) {
    const int difference = std::abs(background - line), smaller = std::min(background, line);
    return static_cast<std::uint8_t>(weight / 255.0 * difference + smaller);
}

/// Draws over one of the two pixels beside the ideal line.
/// @param distance  from the ideal line: 0 draws the line's colour, 255 leaves the background.
void drawBeside(INativeSurface &surface, SNativePoint point, SNativeColour line, int distance) {
    const SNativeColour background = surface.getPixel(point);
    // Kept: one comparison for all channels. A channel that runs against it is blended the wrong
    // way.
    const int weight = greyValue(background) > greyValue(line) ? distance : 255 - distance;
    surface.setPixel(point, {blended(background.red, line.red, weight),
                             blended(background.green, line.green, weight),
                             blended(background.blue, line.blue, weight)});
}

void drawPlainLine(INativeSurface &surface, SNativePoint point, SNativePoint step,
                   std::int64_t steps, SNativeColour colour) {
    for (std::int64_t i = 0; i < steps; ++i) {
        point.x += step.x;
        point.y += step.y;
        surface.setPixel(point, colour);
    }
}

/// All pixels but the first and the last of a line that runs downwards.
/// @param along   the step that every pixel takes, along the longer distance.
/// @param across  the step to the neighbour, along the shorter distance.
void drawBetween(INativeSurface &surface, SNativePoint point, SNativePoint along,
                 SNativePoint across, std::int64_t longer, std::int64_t shorter,
                 SNativeColour colour) {
    const auto increment = static_cast<std::uint16_t>((shorter << 16) / longer);
    std::uint16_t error = 0;
    for (std::int64_t i = 1; i < longer; ++i) {
        const std::uint16_t before = error;
        error = static_cast<std::uint16_t>(error + increment);
        if (error < before) {  // the sum overflowed
            point.x += across.x;
            point.y += across.y;
        }
        point.x += along.x;
        point.y += along.y;
        const int distance = error >> 8;
        drawBeside(surface, point, colour, distance);
        drawBeside(surface, {point.x + across.x, point.y + across.y}, colour, 255 - distance);
    }
}

}  // namespace

void drawAntiAliasedLine(INativeSurface &surface, SNativePoint from, SNativePoint to,
                         SNativeColour colour) {
    if (from.y > to.y)
        std::swap(from, to);
    surface.setPixel(from, colour);
    const std::int64_t width = std::int64_t{to.x} - from.x, dy = std::int64_t{to.y} - from.y;
    const std::int64_t dx = std::abs(width);
    const SNativePoint sideways{width < 0 ? -1 : 1, 0}, down{0, 1};

    if (dx == 0)
        drawPlainLine(surface, from, down, dy, colour);
    else if (dy == 0)
        drawPlainLine(surface, from, sideways, dx, colour);
    else if (dx == dy)
        drawPlainLine(surface, from, {sideways.x, 1}, dx, colour);
    else if (dy < dx)
        drawBetween(surface, from, sideways, down, dx, dy, colour);
    else
        drawBetween(surface, from, down, sideways, dy, dx, colour);
    surface.setPixel(to, colour);
}

}  // namespace Tessitor::GUI::Graphics
