#include "platform/win32/drawing/TWin32Surface.h"

#include "platform/win32/drawing/CSelectedObject.h"
#include "platform/win32/drawing/CSmoothDrawing.h"
#include "platform/win32/drawing/CWin32Bitmap.h"
#include "platform/win32/drawing/CWin32Font.h"
#include "platform/win32/drawing/InOrder.h"
#include "platform/win32/drawing/SmoothSession.h"

#include <algorithm>
#include <vector>

namespace {

RECT rectInOrder(const SNativeRect &rect) {
    const SNativeRect ordered = inOrder(rect);
    return {ordered.left, ordered.top, ordered.right, ordered.bottom};
}

}  // namespace

template <typename Interface>
TWin32Surface<Interface>::TWin32Surface(HDC compatibleWith, TGdiObject<HBITMAP> bitmap,
                                        std::int32_t width, std::int32_t height)
    : m_width(width), m_height(height), m_clip{0, 0, width, height}, m_bitmap(std::move(bitmap)),
      m_context(compatibleWith, m_bitmap.get()) {}

template <typename Interface>
void TWin32Surface<Interface>::copyFrom(const INativeSurface &source, const SNativeRect &area) {
    copyArea(getDeviceContext(), source, area);
}

template <typename Interface>
void TWin32Surface<Interface>::setPen(SNativeColour colour, std::int32_t width) {
    selectPen(TGdiObject<HPEN>(CreatePen(PS_SOLID, std::max(width, 1), toColorref(colour))));
}

template <typename Interface>
void TWin32Surface<Interface>::setNullPen() {
    selectPen(TGdiObject<HPEN>(CreatePen(PS_NULL, 0, 0)));
}

template <typename Interface>
void TWin32Surface<Interface>::selectPen(TGdiObject<HPEN> pen) {
    SelectObject(m_context.getHandle(), pen.get());
    m_pen = std::move(pen);
}

template <typename Interface>
void TWin32Surface<Interface>::setBrush(SNativeColour colour) {
    TGdiObject<HBRUSH> brush(CreateSolidBrush(toColorref(colour)));
    SelectObject(m_context.getHandle(), brush.get());
    m_brush = std::move(brush);
}

template <typename Interface>
void TWin32Surface<Interface>::setNullBrush() {
    SelectObject(m_context.getHandle(), GetStockObject(NULL_BRUSH));
    m_brush.reset();
}

template <typename Interface>
void TWin32Surface<Interface>::setClip(const SNativeRect &area) {
    m_clip = rectInOrder(area);
    const TGdiObject<HRGN> region(CreateRectRgnIndirect(&m_clip));
    SelectClipRgn(m_context.getHandle(), region.get());
}

template <typename Interface>
void TWin32Surface<Interface>::setPixel(SNativePoint point, SNativeColour colour) {
    SetPixelV(getDeviceContext(), point.x, point.y, toColorref(colour));
}

template <typename Interface>
SNativeColour TWin32Surface<Interface>::getPixel(SNativePoint point) const {
    const HDC context = getDeviceContext();
    // Wine also reads outside the clip. What both refuse to read is CLR_INVALID, which is white.
    const bool isVisible = PtVisible(context, point.x, point.y) != 0;
    const COLORREF colour = isVisible ? GetPixel(context, point.x, point.y) : CLR_INVALID;
    return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

template <typename Interface>
void TWin32Surface<Interface>::moveTo(SNativePoint point) {
    MoveToEx(m_context.getHandle(), point.x, point.y, nullptr);
}

template <typename Interface>
void TWin32Surface<Interface>::lineTo(SNativePoint point) {
    LineTo(getDeviceContext(), point.x, point.y);
}

template <typename Interface>
void TWin32Surface<Interface>::drawArc(const SNativeRect &rect, SNativePoint start,
                                       SNativePoint end, bool clockwise) {
    const HDC context = getDeviceContext();
    SetArcDirection(context, clockwise ? AD_CLOCKWISE : AD_COUNTERCLOCKWISE);
    Arc(context, rect.left, rect.top, rect.right, rect.bottom, start.x, start.y, end.x, end.y);
}

template <typename Interface>
void TWin32Surface<Interface>::fillRectangle(const SNativeRect &rect) {
    const HDC context = getDeviceContext();
    const RECT area = rectInOrder(rect);
    FillRect(context, &area, static_cast<HBRUSH>(GetCurrentObject(context, OBJ_BRUSH)));
}

template <typename Interface>
void TWin32Surface<Interface>::drawRectangle(const SNativeRect &rect) {
    Rectangle(getDeviceContext(), rect.left, rect.top, rect.right, rect.bottom);
}

template <typename Interface>
void TWin32Surface<Interface>::drawRoundedRectangle(const SNativeRect &rect, std::int32_t width,
                                                    std::int32_t height) {
    RoundRect(getDeviceContext(), rect.left, rect.top, rect.right, rect.bottom, width, height);
}

template <typename Interface>
void TWin32Surface<Interface>::drawEllipse(const SNativeRect &rect) {
    Ellipse(getDeviceContext(), rect.left, rect.top, rect.right, rect.bottom);
}

template <typename Interface>
void TWin32Surface<Interface>::drawPolygon(std::span<const SNativePoint> points) {
    std::vector<POINT> corners;
    for (const SNativePoint &point : points)
        corners.push_back({point.x, point.y});
    Polygon(getDeviceContext(), corners.data(), static_cast<int>(corners.size()));
}

template <typename Interface>
void TWin32Surface<Interface>::blendFrom(const INativeSurface &source, const SNativeRect &from,
                                         const SNativeRect &to, std::uint8_t alpha) {
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, alpha, 0};
    AlphaBlend(getDeviceContext(), to.left, to.top, to.right - to.left, to.bottom - to.top,
               deviceContextOf(source), from.left, from.top, from.right - from.left,
               from.bottom - from.top, blend);
}

template <typename Interface>
void TWin32Surface<Interface>::copyBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                                          SNativePoint from) {
    const HDC context = getBitmapContext();
    const CMemoryContext source(context, handleOf(bitmap));
    BitBlt(context, to.left, to.top, to.right - to.left, to.bottom - to.top, source.getHandle(),
           from.x, from.y, SRCCOPY);
}

template <typename Interface>
void TWin32Surface<Interface>::stretchBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                                             const SNativeRect &from) {
    const HDC context = getBitmapContext();
    const CMemoryContext source(context, handleOf(bitmap));
    StretchBlt(context, to.left, to.top, to.right - to.left, to.bottom - to.top, source.getHandle(),
               from.left, from.top, from.right - from.left, from.bottom - from.top, SRCCOPY);
}

template <typename Interface>
void TWin32Surface<Interface>::blendBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                                           const SNativeRect &from, std::uint8_t alpha) {
    const HDC context = getBitmapContext();
    const CMemoryContext source(context, handleOf(bitmap));
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, alpha, AC_SRC_ALPHA};
    AlphaBlend(context, to.left, to.top, to.right - to.left, to.bottom - to.top, source.getHandle(),
               from.left, from.top, from.right - from.left, from.bottom - from.top, blend);
}

template <typename Interface>
void TWin32Surface<Interface>::drawText(const char *text, const SNativeRect &rect,
                                        const INativeFont &font, SNativeColour colour,
                                        unsigned format) {
    const HDC context = getDeviceContext();
    const CSelectedObject selected(context, handleOf(font));
    SetTextColor(context, toColorref(colour));
    SetBkMode(context, TRANSPARENT);
    RECT area = toRect(rect);
    DrawTextA(context, text, -1, &area, format);
}

template <typename Interface>
std::unique_ptr<INativeSmoothDrawing> TWin32Surface<Interface>::startSmoothDrawing() {
    if (!isSmoothSessionOpen())
        return nullptr;
    SSmoothGraphics graphics = createGraphics();
    if (graphics.graphics == nullptr)
        return nullptr;
    return std::make_unique<CSmoothDrawing>(std::move(graphics), *this);
}

template <typename Interface>
SSmoothGraphics TWin32Surface<Interface>::createGraphics() {
    Gdiplus::GpGraphics *graphics = nullptr;
    Gdiplus::DllExports::GdipCreateFromHDC(m_context.getHandle(), &graphics);
    return {nullptr, TGdiplusObject<Gdiplus::GpGraphics>(graphics)};
}

template class TWin32Surface<INativeSurface>;
template class TWin32Surface<INativeAlphaSurface>;
