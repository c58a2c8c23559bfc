#include "platform/win32/drawing/CSmoothDrawing.h"

#include "platform/win32/drawing/GdiObjects.h"
#include "platform/win32/drawing/SmoothText.h"
#include "platform/win32/drawing/Widen.h"

#include <algorithm>
#include <vector>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

namespace {

TGdiplusObject<GpPen> createPen(const SNativeSmoothPen &pen) {
    GpPen *created = nullptr;
    GdipCreatePen1(toArgb(pen.colour), static_cast<REAL>(pen.width), UnitPixel, &created);
    const auto cap = static_cast<LineCap>(pen.cap);
    GdipSetPenLineCap197819(created, cap, cap, DashCapFlat);
    return TGdiplusObject<GpPen>(created);
}

/// @param width   of the ellipse that the corners are quarters of.
/// @param height  of that ellipse.
TGdiplusObject<GpPath> createRoundedRectangle(const SNativeRect &rect, std::int32_t width,
                                              std::int32_t height) {
    const auto left = static_cast<REAL>(rect.left), top = static_cast<REAL>(rect.top);
    const auto right = static_cast<REAL>(rect.right), bottom = static_cast<REAL>(rect.bottom);
    const auto across = static_cast<REAL>(std::clamp(width, 0, rect.right - rect.left));
    const auto down = static_cast<REAL>(std::clamp(height, 0, rect.bottom - rect.top));
    GpPath *path = nullptr;
    GdipCreatePath(FillModeAlternate, &path);
    GdipAddPathLine(path, left + across / 2, top, right - across / 2, top);
    GdipAddPathArc(path, right - across, top, across, down, 270, 90);
    GdipAddPathLine(path, right, top + down / 2, right, bottom - down / 2);
    GdipAddPathArc(path, right - across, bottom - down, across, down, 0, 90);
    GdipAddPathLine(path, right - across / 2, bottom, left + across / 2, bottom);
    GdipAddPathArc(path, left, bottom - down, across, down, 90, 90);
    GdipAddPathLine(path, left, bottom - down / 2, left, top + down / 2);
    GdipAddPathArc(path, left, top, across, down, 180, 90);
    GdipClosePathFigure(path);
    return TGdiplusObject<GpPath>(path);
}

/// Smooth edges for a text, and what was set before for the shapes after it.
class CTextSettings {
public:
    explicit CTextSettings(GpGraphics *graphics) : m_graphics(graphics) {
        GdipGetSmoothingMode(graphics, &m_smoothing);
        GdipGetTextRenderingHint(graphics, &m_hint);
        GdipSetSmoothingMode(graphics, SmoothingModeHighQuality);
        if (GdipSetTextRenderingHint(graphics, TextRenderingHintClearTypeGridFit) != Ok)
            GdipSetTextRenderingHint(graphics, TextRenderingHintAntiAlias);
    }
    ~CTextSettings() {
        GdipSetSmoothingMode(m_graphics, m_smoothing);
        GdipSetTextRenderingHint(m_graphics, m_hint);
    }
    CTextSettings(const CTextSettings &) = delete;
    CTextSettings &operator=(const CTextSettings &) = delete;

private:
    GpGraphics *m_graphics;
    SmoothingMode m_smoothing = SmoothingModeDefault;
    TextRenderingHint m_hint = TextRenderingHintSystemDefault;
};

/// GDI+ leaves out characters and lines that do not fit wholly, which the clip is to cut instead.
/// So the rectangle is enlarged on the sides that the text may leave it on.
RectF widened(const SNativeRect &rect, int horizontal, int vertical) {
    constexpr REAL more = 10000;
    const auto before = [](int alignment) { return static_cast<REAL>(alignment) * more / 2; };
    return {static_cast<REAL>(rect.left) - before(horizontal),
            static_cast<REAL>(rect.top) - before(vertical),
            static_cast<REAL>(rect.right - rect.left) + more,
            static_cast<REAL>(rect.bottom - rect.top) + more};
}

}  // namespace

GpGraphics *CSmoothDrawing::prepare(const std::optional<SNativeRect> &area) {
    RECT clip = m_surface.prepareForGraphics();
    for (const std::optional<SNativeRect> &limit : {m_clip, area}) {
        if (limit) {
            const RECT inside = toRect(*limit);
            IntersectRect(&clip, &clip, &inside);
        }
    }
    const TGdiObject<HRGN> region(CreateRectRgnIndirect(&clip));
    GdipSetClipHrgn(m_graphics.graphics.get(), region.get(), CombineModeReplace);
    return m_graphics.graphics.get();
}

void CSmoothDrawing::setSmoothing(ENativeSmoothing smoothing) {
    GdipSetSmoothingMode(m_graphics.graphics.get(), static_cast<SmoothingMode>(smoothing));
}

void CSmoothDrawing::drawLine(const SNativeSmoothPen &pen, SNativePoint from, SNativePoint to) {
    GdipDrawLineI(prepare(), createPen(pen).get(), from.x, from.y, to.x, to.y);
}

void CSmoothDrawing::drawRectangle(const SNativeSmoothPen &pen, const SNativeRect &rect) {
    GdipDrawRectangleI(prepare(), createPen(pen).get(), rect.left, rect.top, rect.right - rect.left,
                       rect.bottom - rect.top);
}

void CSmoothDrawing::fillRectangle(SNativeColour colour, const SNativeRect &rect) {
    GdipFillRectangleI(prepare(), createSolidFill(colour).get(), rect.left, rect.top,
                       rect.right - rect.left, rect.bottom - rect.top);
}

void CSmoothDrawing::fillRoundedRectangle(SNativeColour colour, const SNativeRect &rect,
                                          std::int32_t width, std::int32_t height) {
    if (rect.right <= rect.left || rect.bottom <= rect.top)
        return;
    GdipFillPath(prepare(), createSolidFill(colour).get(),
                 createRoundedRectangle(rect, width, height).get());
}

void CSmoothDrawing::fillEllipse(SNativeColour colour, const SNativeRect &rect) {
    GdipFillEllipseI(prepare(), createSolidFill(colour).get(), rect.left, rect.top,
                     rect.right - rect.left, rect.bottom - rect.top);
}

void CSmoothDrawing::fillPolygon(SNativeColour colour, std::span<const SNativePoint> points) {
    std::vector<Point> corners;
    for (const SNativePoint &point : points)
        corners.emplace_back(point.x, point.y);
    GdipFillPolygonI(prepare(), createSolidFill(colour).get(), corners.data(),
                     static_cast<INT>(corners.size()), FillModeAlternate);
}

void CSmoothDrawing::drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                              SNativeColour colour, int horizontal, int vertical) {
    // Wine does not cut the text at its rectangle, and to GDI+ one without an area has no limits.
    GpGraphics *graphics = prepare(rect);
    const CTextSettings settings(graphics);
    const std::wstring wide = widen(text);
    const RectF layout = widened(rect, horizontal, vertical);
    GdipDrawString(graphics, wide.c_str(), static_cast<INT>(wide.size()),
                   createSmoothFont(font).get(), &layout,
                   createStringFormat(StringFormatFlagsNoWrap, horizontal, vertical).get(),
                   createSolidFill(colour).get());
}
