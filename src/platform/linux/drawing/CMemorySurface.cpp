#include "platform/linux/drawing/CMemorySurface.h"

#include "platform/linux/drawing/Arcs.h"
#include "platform/linux/drawing/CMemoryBitmap.h"
#include "platform/linux/drawing/CSmoothDrawing.h"
#include "platform/linux/drawing/DrawText.h"
#include "platform/linux/drawing/FillPolygon.h"
#include "platform/linux/drawing/PlainLines.h"
#include "platform/linux/drawing/RoundedShapes.h"
#include "platform/linux/drawing/WideLines.h"

#include <algorithm>
#include <new>

namespace {

constexpr std::int32_t greatestSize = 32767;  // pixels; more than any screen

/// All surfaces of this back-end are of this class.
const CMemorySurface &memorySurface(const INativeSurface &surface) {
    return static_cast<const CMemorySurface &>(surface);
}

SSource sourceOf(const INativeBitmap &bitmap) {
    const auto &memory = static_cast<const CMemoryBitmap &>(bitmap);
    return {memory.getPixels().data(), memory.getWidth(), memory.getHeight()};
}

bool contains(const SNativeRect &area, SNativePoint point) {
    return point.x >= area.left && point.x < area.right && point.y >= area.top &&
           point.y < area.bottom;
}

bool contains(const SNativeRect &area, const SNativeRect &part) {
    return part.left >= area.left && part.top >= area.top && part.right <= area.right &&
           part.bottom <= area.bottom;
}

}  // namespace

std::unique_ptr<CMemorySurface> CMemorySurface::create(std::int32_t width, std::int32_t height,
                                                       std::uint32_t background) {
    if (width < 1 || height < 1 || width > greatestSize || height > greatestSize)
        return nullptr;
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::unique_ptr<std::uint32_t[]> data(new (std::nothrow) std::uint32_t[count]);
    if (data == nullptr)
        return nullptr;
    return std::unique_ptr<CMemorySurface>(
        new CMemorySurface(std::move(data), width, height, background));
}

CMemorySurface::CMemorySurface(std::unique_ptr<std::uint32_t[]> data, std::int32_t width,
                               std::int32_t height, std::uint32_t background)
    : m_data(std::move(data)), m_pixels{m_data.get(), width, height, {0, 0, width, height}},
      m_background(background) {}

void CMemorySurface::setPen(SNativeColour colour, std::int32_t width) {
    m_pen = {opaquePixel(colour), std::max(width, 1)};
}

void CMemorySurface::setClip(const SNativeRect &area) {
    m_pixels.clip = intersection({0, 0, m_pixels.width, m_pixels.height}, inOrder(area));
}

void CMemorySurface::setPixel(SNativePoint point, SNativeColour colour) {
    if (contains(m_pixels.clip, point))
        clipped().row(point.y)[point.x] = opaquePixel(colour);
}

SNativeColour CMemorySurface::getPixel(SNativePoint point) const {
    if (!contains(m_pixels.clip, point))
        return {255, 255, 255, 255};
    const std::uint32_t pixel = clipped().row(point.y)[point.x];
    const auto channel = [pixel](int shift) {
        return static_cast<std::uint8_t>(pixel >> shift & 255);
    };
    return {channel(16), channel(8), channel(0), 255};
}

void CMemorySurface::lineTo(SNativePoint point) {
    drawSegment(clipped(), m_position, point);
    m_position = point;
}

void CMemorySurface::drawArc(const SNativeRect &rect, SNativePoint start, SNativePoint end,
                             bool clockwise) {
    if (m_pen.width > 0)
        drawPlainArc(clipped(), inOrder(rect), start, end, clockwise, m_pen.width, m_pen.pixel);
}

void CMemorySurface::fillRectangle(const SNativeRect &rect) {
    if (m_brush.isVisible)
        fillArea(clipped(), inOrder(rect), m_brush.pixel);
}

void CMemorySurface::drawRectangle(const SNativeRect &rect) {
    drawRounded(rect, 0, 0);
}

void CMemorySurface::drawRoundedRectangle(const SNativeRect &rect, std::int32_t width,
                                          std::int32_t height) {
    drawRounded(rect, std::abs(std::int64_t{width}), std::abs(std::int64_t{height}));
}

void CMemorySurface::drawEllipse(const SNativeRect &rect) {
    const SArea area = inOrder(rect);
    drawRounded(rect, area.width(), area.height());
}

void CMemorySurface::drawPolygon(std::span<const SNativePoint> points) {
    if (points.size() < 2)
        return;
    const SPixels pixels = clipped();
    if (m_brush.isVisible) {
        fillPolygon(pixels.clip, points,
                    [&](std::int32_t y, std::int32_t left, std::int32_t right) {
                        fillSpan(pixels, y, left, right, m_brush.pixel);
                    });
    }
    for (std::size_t i = 0; i < points.size(); ++i)
        drawSegment(pixels, points[i], points[(i + 1) % points.size()]);
}

void CMemorySurface::copyFrom(const INativeSurface &source, const SNativeRect &area) {
    const SPixels pixels = pixelsInside(area);
    copyPixels(pixels, memorySurface(source).source(pixels.clip), area, {area.left, area.top});
}

void CMemorySurface::blendFrom(const INativeSurface &source, const SNativeRect &from,
                               const SNativeRect &to, std::uint8_t alpha) {
    blendPixels(pixelsInside(to), memorySurface(source).source(from), to, from, alpha, false);
}

void CMemorySurface::copyBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                                SNativePoint from) {
    copyPixels(pixelsInside(to), sourceOf(bitmap), to, from);
}

void CMemorySurface::stretchBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                                   const SNativeRect &from) {
    stretchPixels(clipped(), sourceOf(bitmap), to, from);
}

void CMemorySurface::blendBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                                 const SNativeRect &from, std::uint8_t alpha) {
    blendPixels(pixelsInside(to), sourceOf(bitmap), to, from, alpha, true);
}

void CMemorySurface::drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                              SNativeColour colour, unsigned format) {
    drawPlainText(clipped(), text, rect, font, colour, format);
}

std::unique_ptr<INativeSmoothDrawing> CMemorySurface::startSmoothDrawing() {
    return std::make_unique<CSmoothDrawing>(*this);
}

std::unique_ptr<INativeBitmap> CMemorySurface::makeBitmap() {
    const SSource all = source({0, 0, m_pixels.width, m_pixels.height});
    const auto count = static_cast<std::size_t>(all.width) * static_cast<std::size_t>(all.height);
    try {
        return std::make_unique<CMemoryBitmap>(
            all.width, all.height, std::vector<std::uint32_t>(all.data, all.data + count));
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

SPixels CMemorySurface::pixelsInside(const SArea &area) const {
    SPixels pixels = m_pixels;
    pixels.clip = intersection(m_pixels.clip, area);
    // Filled by the clip, not by the area: most clips are filled only once.
    if (!SArea(pixels.clip).isEmpty())
        fillBackground(m_pixels.clip);
    return pixels;
}

SSource CMemorySurface::source(const SArea &area) const {
    fillBackground(intersection({0, 0, m_pixels.width, m_pixels.height}, area));
    return {m_pixels.data, m_pixels.width, m_pixels.height};
}

void CMemorySurface::drawSegment(const SPixels &pixels, SNativePoint from, SNativePoint to) const {
    if (m_pen.width == 1)
        drawPlainLine(pixels, from, to, m_pen.pixel);
    else if (m_pen.width > 1)
        drawWideLine(pixels, from, to, m_pen.width, m_pen.pixel);
}

/// @param width  of the ellipse of the corners; so is height.
void CMemorySurface::drawRounded(const SNativeRect &rect, std::int64_t width, std::int64_t height) {
    SArea area = inOrder(rect);
    const bool isRound = std::min(width, area.width()) > 2 && std::min(height, area.height()) > 2;
    if (m_pen.width == 0 && !isRound) {
        --area.right;
        --area.bottom;
    }
    if (area.isEmpty() || (m_pen.width > 0 && area.width() == 1 && area.height() == 1))
        return;
    const SPixels pixels = clipped();
    if (m_brush.isVisible)
        fillRounded(pixels, area, width, height, m_brush.pixel);
    if (m_pen.width == 1) {
        outlineRounded(pixels, area, width, height, m_pen.pixel);
    } else if (m_pen.width > 1 && !isRound) {
        drawFrame(pixels, area);
    } else if (m_pen.width > 1) {
        visitRing(pixels.clip, area, width, height, m_pen.width,
                  [&](std::int32_t y, std::int64_t left, std::int64_t right) {
                      fillSpan(pixels, y, left, right, m_pen.pixel);
                  });
    }
}

/// The outline of a rectangle with a wide pen, whose joins are round.
void CMemorySurface::drawFrame(const SPixels &pixels, const SArea &area) const {
    const auto left = static_cast<std::int32_t>(area.left);
    const auto top = static_cast<std::int32_t>(area.top);
    const auto right = static_cast<std::int32_t>(area.right - 1);
    const auto bottom = static_cast<std::int32_t>(area.bottom - 1);
    drawSegment(pixels, {left, top}, {right, top});
    drawSegment(pixels, {right, top}, {right, bottom});
    drawSegment(pixels, {right, bottom}, {left, bottom});
    drawSegment(pixels, {left, bottom}, {left, top});
}

/// Widens the filled part, a rectangle, until it contains the area.
void CMemorySurface::fillBackground(const SNativeRect &area) const {
    if (SArea(area).isEmpty() || contains(m_filled, area))
        return;
    const SNativeRect old = SArea(m_filled).isEmpty()
                                ? SNativeRect{area.left, area.top, area.left, area.top}
                                : m_filled;
    m_filled = {std::min(old.left, area.left), std::min(old.top, area.top),
                std::max(old.right, area.right), std::max(old.bottom, area.bottom)};
    storeBackground({m_filled.left, m_filled.top, m_filled.right, old.top});
    storeBackground({m_filled.left, old.top, old.left, old.bottom});
    storeBackground({old.right, old.top, m_filled.right, old.bottom});
    storeBackground({m_filled.left, old.bottom, m_filled.right, m_filled.bottom});
}

void CMemorySurface::storeBackground(const SNativeRect &area) const {
    for (std::int32_t y = area.top; y < area.bottom; ++y)
        std::fill_n(m_pixels.row(y) + area.left, area.right - area.left, m_background);
}

std::unique_ptr<INativeSurface> createNativeSurface(const INativePaintTarget *, std::int32_t width,
                                                    std::int32_t height, SNativeColour background) {
    return CMemorySurface::create(width, height, opaquePixel(background));
}

std::unique_ptr<INativeAlphaSurface> createNativeAlphaSurface(std::int32_t width,
                                                              std::int32_t height) {
    return CMemorySurface::create(width, height, 0);
}
