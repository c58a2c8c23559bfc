#include "platform/linux/drawing/CSmoothDrawing.h"

#include "platform/linux/drawing/Blend.h"
#include "platform/linux/drawing/CCoverage.h"
#include "platform/linux/drawing/DrawText.h"
#include "platform/linux/drawing/FillInside.h"
#include "platform/linux/drawing/FillPolygon.h"
#include "platform/linux/drawing/PlainLines.h"
#include "platform/linux/drawing/RoundedShapes.h"

#include <algorithm>
#include <limits>

namespace {

constexpr SArea everything{
    std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::min(),
    std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::max()};

/// Lines and polygons run through the centres of pixels.
SOutline::SPoint centreOf(SNativePoint point) {
    return {point.x + 0.5, point.y + 0.5};
}

}  // namespace

CNativeSmoothSession::CNativeSmoothSession() : m_isAvailable(true) {}
CNativeSmoothSession::~CNativeSmoothSession() = default;

CSmoothDrawing::CSmoothDrawing(CMemorySurface &surface) : m_surface(surface), m_clip(everything) {}

void CSmoothDrawing::resetClip() {
    m_clip = everything;
}

void CSmoothDrawing::drawLine(const SNativeSmoothPen &pen, SNativePoint from, SNativePoint to) {
    if (from == to)
        return;
    const bool isStraight = from.x == to.x || from.y == to.y;
    if (pen.width <= 1 && (isStraight || !isSmooth()))
        return drawWholeLine(clipped(), from, to, translucentPixel(pen.colour));
    draw(pen.colour, SOutline::line(centreOf(from), centreOf(to), std::max(pen.width, 1), pen.cap));
}

void CSmoothDrawing::drawRectangle(const SNativeSmoothPen &pen, const SNativeRect &rect) {
    if (SArea(rect).isEmpty())
        return;
    if (pen.width <= 1) {
        const SArea area(rect.left, rect.top, rect.right + std::int64_t{1},
                         rect.bottom + std::int64_t{1});
        outlineRounded(clipped(), area, 0, 0, translucentPixel(pen.colour));
        return;
    }
    const SOutline::SPoint topLeft = centreOf({rect.left, rect.top});
    const SOutline::SPoint bottomRight = centreOf({rect.right, rect.bottom});
    const double half = pen.width / 2.0;
    SOutline outline = SOutline::rectangle(topLeft.x - half, topLeft.y - half, bottomRight.x + half,
                                           bottomRight.y + half);
    if (bottomRight.x - topLeft.x > pen.width && bottomRight.y - topLeft.y > pen.width) {
        const SOutline hole = SOutline::rectangle(topLeft.x + half, topLeft.y + half,
                                                  bottomRight.x - half, bottomRight.y - half);
        outline.polygons.push_back(hole.polygons.front());
    }
    draw(pen.colour, outline);
}

void CSmoothDrawing::fillRectangle(SNativeColour colour, const SNativeRect &rect) {
    fillArea(clipped(), rect, translucentPixel(colour));
}

void CSmoothDrawing::fillRoundedRectangle(SNativeColour colour, const SNativeRect &rect,
                                          std::int32_t width, std::int32_t height) {
    const SArea area(rect);
    if (area.isEmpty())
        return;
    const std::int64_t roundWidth = std::clamp<std::int64_t>(width, 0, area.width());
    const std::int64_t roundHeight = std::clamp<std::int64_t>(height, 0, area.height());
    if (!isSmooth())
        fillInside(clipped(), area, roundWidth, roundHeight, translucentPixel(colour));
    else
        draw(colour, SOutline::roundedRectangle(area, static_cast<double>(roundWidth) / 2,
                                                static_cast<double>(roundHeight) / 2));
}

void CSmoothDrawing::fillEllipse(SNativeColour colour, const SNativeRect &rect) {
    constexpr std::int32_t wholeSize = std::numeric_limits<std::int32_t>::max();
    fillRoundedRectangle(colour, rect, wholeSize, wholeSize);
}

void CSmoothDrawing::fillPolygon(SNativeColour colour, std::span<const SNativePoint> points) {
    if (!isSmooth()) {
        const SPixels pixels = clipped();
        const std::uint32_t pixel = translucentPixel(colour);
        ::fillPolygon(pixels.clip, points,
                      [&](std::int32_t y, std::int32_t left, std::int32_t right) {
                          fillSpan(pixels, y, left, right, pixel);
                      });
        return;
    }
    SOutline::Polygon polygon;
    for (const SNativePoint point : points)
        polygon.push_back(centreOf(point));
    draw(colour, {{std::move(polygon)}});
}

void CSmoothDrawing::drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                              SNativeColour colour, int horizontal, int vertical) {
    drawSmoothText(clipped(), text, rect, font, colour, horizontal, vertical);
}

void CSmoothDrawing::draw(SNativeColour colour, const SOutline &outline) {
    const SPixels pixels = clipped();
    // Coverage is found for the whole shape, so that no clip changes a pixel.
    const SNativeRect area = intersection({0, 0, pixels.width, pixels.height}, outline.extents());
    const SNativeRect visible = intersection(pixels.clip, area);
    if (SArea(visible).isEmpty())
        return;
    const CCoverage coverage(area, outline);
    const std::uint32_t pixel = translucentPixel(colour);
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        std::uint32_t *row = pixels.row(y);
        for (std::int32_t x = visible.left; x < visible.right; ++x) {
            const std::uint32_t covered = coverage.at(x, y);
            const std::uint32_t weight = isSmooth() ? covered : covered >= 128 ? 255 : 0;
            row[x] = blendedPixel(scaledPixel(pixel, weight), row[x]);
        }
    }
}
