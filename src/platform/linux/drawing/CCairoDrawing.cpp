#include "platform/linux/drawing/CCairoDrawing.h"

#include "platform/linux/drawing/Blend.h"
#include "platform/linux/drawing/CCoverage.h"
#include "platform/linux/drawing/DrawText.h"
#include "platform/linux/drawing/FillInside.h"
#include "platform/linux/drawing/FillPolygon.h"
#include "platform/linux/drawing/PlainLines.h"
#include "platform/linux/drawing/RoundedShapes.h"

#include <algorithm>
#include <limits>
#include <numbers>

namespace {

constexpr SArea everything{
    std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::min(),
    std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::max()};

/// Cairo counts in fractions of 1/256 pixel, in 32 bits: what lies beyond is not drawn right there.
double cairoCoordinate(double value) {
    return std::clamp(value, -4e6, 4e6);
}

void addEllipsePart(cairo_t *cairo, double centreX, double centreY, double radiusX, double radiusY,
                    double from, double to) {
    if (radiusX <= 0 || radiusY <= 0)
        return cairo_line_to(cairo, centreX, centreY);
    cairo_save(cairo);
    cairo_translate(cairo, centreX, centreY);
    cairo_scale(cairo, radiusX, radiusY);
    cairo_arc(cairo, 0, 0, 1, from, to);
    cairo_restore(cairo);
}

/// @param width  of the ellipse that the corners are quarters of; so is height. Not larger than the
///               rectangle.
void addRoundedRectangle(cairo_t *cairo, const SArea &area, double width, double height) {
    constexpr double quarter = std::numbers::pi / 2;
    const double radiusX = width / 2, radiusY = height / 2;
    const double left = cairoCoordinate(static_cast<double>(area.left) + radiusX);
    const double top = cairoCoordinate(static_cast<double>(area.top) + radiusY);
    const double right = cairoCoordinate(static_cast<double>(area.right) - radiusX);
    const double bottom = cairoCoordinate(static_cast<double>(area.bottom) - radiusY);
    cairo_new_sub_path(cairo);
    addEllipsePart(cairo, left, top, radiusX, radiusY, 2 * quarter, 3 * quarter);
    addEllipsePart(cairo, right, top, radiusX, radiusY, 3 * quarter, 4 * quarter);
    addEllipsePart(cairo, right, bottom, radiusX, radiusY, 0, quarter);
    addEllipsePart(cairo, left, bottom, radiusX, radiusY, quarter, 2 * quarter);
    cairo_close_path(cairo);
}

/// Lines and polygons run through the centres of pixels.
void addPoint(cairo_t *cairo, SNativePoint point) {
    cairo_line_to(cairo, cairoCoordinate(point.x + 0.5), cairoCoordinate(point.y + 0.5));
}

cairo_line_cap_t cairoCap(std::int32_t cap) {
    constexpr std::int32_t square = 1, round = 2;
    return cap == square  ? CAIRO_LINE_CAP_SQUARE
           : cap == round ? CAIRO_LINE_CAP_ROUND
                          : CAIRO_LINE_CAP_BUTT;
}

}  // namespace

CNativeSmoothSession::CNativeSmoothSession() : m_isAvailable(true) {}
CNativeSmoothSession::~CNativeSmoothSession() = default;

CCairoDrawing::CCairoDrawing(CMemorySurface &surface) : m_surface(surface), m_clip(everything) {}

void CCairoDrawing::resetClip() {
    m_clip = everything;
}

void CCairoDrawing::drawLine(const SNativeSmoothPen &pen, SNativePoint from, SNativePoint to) {
    if (from == to)
        return;
    const bool isStraight = from.x == to.x || from.y == to.y;
    if (pen.width <= 1 && (isStraight || !isSmooth()))
        return drawWholeLine(clipped(), from, to, translucentPixel(pen.colour));
    stroke(pen, [&](cairo_t *cairo) {
        addPoint(cairo, from);
        addPoint(cairo, to);
    });
}

void CCairoDrawing::drawRectangle(const SNativeSmoothPen &pen, const SNativeRect &rect) {
    if (SArea(rect).isEmpty())
        return;
    if (pen.width <= 1) {
        const SArea area(rect.left, rect.top, rect.right + std::int64_t{1},
                         rect.bottom + std::int64_t{1});
        outlineRounded(clipped(), area, 0, 0, translucentPixel(pen.colour));
        return;
    }
    stroke(pen, [&](cairo_t *cairo) {
        addPoint(cairo, {rect.left, rect.top});
        addPoint(cairo, {rect.right, rect.top});
        addPoint(cairo, {rect.right, rect.bottom});
        addPoint(cairo, {rect.left, rect.bottom});
        cairo_close_path(cairo);
    });
}

void CCairoDrawing::fillRectangle(SNativeColour colour, const SNativeRect &rect) {
    fillArea(clipped(), rect, translucentPixel(colour));
}

void CCairoDrawing::fillRoundedRectangle(SNativeColour colour, const SNativeRect &rect,
                                         std::int32_t width, std::int32_t height) {
    const SArea area(rect);
    if (area.isEmpty())
        return;
    const std::int64_t roundWidth = std::clamp<std::int64_t>(width, 0, area.width());
    const std::int64_t roundHeight = std::clamp<std::int64_t>(height, 0, area.height());
    if (!isSmooth())
        fillInside(clipped(), area, roundWidth, roundHeight, translucentPixel(colour));
    else
        fill(colour, [&](cairo_t *cairo) {
            addRoundedRectangle(cairo, area, static_cast<double>(roundWidth),
                                static_cast<double>(roundHeight));
        });
}

void CCairoDrawing::fillEllipse(SNativeColour colour, const SNativeRect &rect) {
    constexpr std::int32_t wholeSize = std::numeric_limits<std::int32_t>::max();
    fillRoundedRectangle(colour, rect, wholeSize, wholeSize);
}

void CCairoDrawing::fillPolygon(SNativeColour colour, std::span<const SNativePoint> points) {
    if (!isSmooth()) {
        const SPixels pixels = clipped();
        const std::uint32_t pixel = translucentPixel(colour);
        ::fillPolygon(pixels.clip, points,
                      [&](std::int32_t y, std::int32_t left, std::int32_t right) {
                          fillSpan(pixels, y, left, right, pixel);
                      });
        return;
    }
    fill(colour, [&](cairo_t *cairo) {
        for (const SNativePoint point : points)
            addPoint(cairo, point);
        cairo_close_path(cairo);
    });
}

void CCairoDrawing::drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                             SNativeColour colour, int horizontal, int vertical) {
    drawSmoothText(clipped(), text, rect, font, colour, horizontal, vertical);
}

void CCairoDrawing::stroke(const SNativeSmoothPen &pen, const Path &path) {
    const std::int32_t width = std::clamp(pen.width, 1, 100'000);
    draw(pen.colour, path, width, [&](cairo_t *cairo) {
        cairo_set_line_width(cairo, width);
        cairo_set_line_cap(cairo, cairoCap(pen.cap));
        cairo_stroke(cairo);
    });
}

void CCairoDrawing::fill(SNativeColour colour, const Path &path) {
    draw(colour, path, 0, [](cairo_t *cairo) {
        cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
        cairo_fill(cairo);
    });
}

void CCairoDrawing::draw(SNativeColour colour, const Path &path, std::int32_t margin,
                         const Path &paint) {
    const SPixels pixels = clipped();
    const SArea touched = CCoverage::extents(path);
    const SNativeRect area = intersection({0, 0, pixels.width, pixels.height},
                                          {touched.left - margin, touched.top - margin,
                                           touched.right + margin, touched.bottom + margin});
    const SNativeRect visible = intersection(pixels.clip, area);
    if (SArea(visible).isEmpty())
        return;

    const CCoverage coverage(area, [&](cairo_t *cairo) {
        cairo_set_antialias(cairo, isSmooth() ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
        path(cairo);
        paint(cairo);
    });
    const std::uint32_t pixel = translucentPixel(colour);
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        std::uint32_t *row = pixels.row(y);
        for (std::int32_t x = visible.left; x < visible.right; ++x)
            row[x] = blendedPixel(scaledPixel(pixel, coverage.at(x, y)), row[x]);
    }
}
