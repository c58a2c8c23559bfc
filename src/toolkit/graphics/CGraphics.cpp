#include "toolkit/graphics/CGraphics.h"

#include "foundation/WrappingArithmetic.h"
#include "toolkit/graphics/AntiAliasedLine.h"
#include "toolkit/graphics/StaticColours.h"
#include "values/Truncation.h"

#include <utility>

namespace Tessitor::GUI::Graphics {

using Basics::CAlphaColour;
using MathTools::CDimension;
using MathTools::CPoint;
using MathTools::CPolygon;
using MathTools::CRect;
using MathTools::wrappedDifference;
using MathTools::wrappedSum;

namespace {

CRect wholeArea(const CDimension &size) {
    return {CPoint(0, 0), size};
}

/// A weight from 0 to 1 as a byte. Only the low byte of a result outside counts.
std::uint8_t toByte(double alpha) {
    return static_cast<std::uint8_t>(truncated(alpha * 255.0));
}

/// Where drawText() puts a text: 0 is left or top, 1 the middle, 2 right or bottom.
struct SAlignment {
    int horizontal, vertical;

    /// What plain drawing calls it. Anything but the top needs a single line.
    unsigned plainFormat() const {
        constexpr unsigned singleLine = 32, middle = 4, bottom = 8;
        constexpr unsigned formats[] = {0, singleLine | middle, singleLine | bottom};
        return formats[vertical] | static_cast<unsigned>(horizontal);
    }
};

SAlignment alignmentOf(std::int32_t number) {
    if (number == 9 || number == 10)
        return {number - 9, 1};
    if (number < 0 || number > 8)
        return {0, 0};
    return {number % 3, number / 3};
}

SNativeRect smallerByOne(const SNativeRect &rect) {
    return {rect.left, rect.top, wrappedDifference(rect.right, 1),
            wrappedDifference(rect.bottom, 1)};
}

}  // namespace

void CGraphics::SLayer::open(INativeSurface *onto, const CGraphics &graphics,
                             const CAlphaColour &penColour, const CAlphaColour &brushColour) {
    surface = onto;
    if (surface == nullptr)
        return;
    pen.initialise(1, surface, penColour);
    brush.initialise(surface, brushColour);
    if (graphics.m_usesSmoothDrawing && graphics.m_smoothSession.isAvailable())
        smooth = surface->startSmoothDrawing();
    if (smooth != nullptr)
        smooth->setSmoothing(graphics.m_smoothing);
    if (image.isInitialised())
        clip.initialise(&image, wholeArea(image.getSize()), smooth.get());
}

void CGraphics::SLayer::close() {
    clip.uninitialise();
    pen.uninitialise();
    brush.uninitialise();
    smooth.reset();
    surface = nullptr;
    image.uninitialise();
}

CGraphics::CGraphics(bool usesSmoothDrawing) : m_usesSmoothDrawing(usesSmoothDrawing) {
    m_textColour = Basics::StaticColours::alphaBlack;
}

CGraphics::~CGraphics() {
    uninitialise();
}

// Painting

void CGraphics::initialise(const INativePaintTarget *target, const CDimension &size) {
    uninitialise();
    m_size = size;
    m_smoothing = ENativeSmoothing::None;
    m_layer.image.initialise(target, size);
    m_layer.open(m_layer.image.getSurface(), *this, Basics::StaticColours::alphaBlack,
                 Basics::StaticColours::alphaWhite);
}

void CGraphics::initialise(INativeSurface &surface, const CDimension &size) {
    uninitialise();
    m_size = size;
    m_smoothing = ENativeSmoothing::None;
    m_layer.open(&surface, *this, Basics::StaticColours::alphaBlack,
                 Basics::StaticColours::alphaWhite);
}

void CGraphics::uninitialise() {
    if (m_section != nullptr)
        m_section->close();
    m_section.reset();
    m_layer.close();
}

// Pixels and lines

void CGraphics::drawPixel(const CPoint &point) {
    if (surface() != nullptr)
        surface()->setPixel(shifted(point), getPen().getColour().toNative());
}

void CGraphics::drawAntiAliasedPixel(const CPoint &point, std::int32_t alpha) {
    if (surface() == nullptr)
        return;
    const SNativeColour background = surface()->getPixel(shifted(point));
    const CAlphaColour blended = CAlphaColour::blend(
        {background.red, background.green, background.blue}, getPen().getColour(), alpha);
    surface()->setPixel(shifted(point), blended.toNative());
}

void CGraphics::moveTo(const CPoint &point) {
    if (surface() != nullptr)
        surface()->moveTo(shifted(point));
}

void CGraphics::drawLine(const CPoint &from, const CPoint &to) {
    moveTo(from);
    drawLineTo(to);
}

void CGraphics::drawLineTo(const CPoint &point) {
    if (surface() != nullptr)
        surface()->lineTo(shifted(point));
}

void CGraphics::drawAntiAliasedLine(const CPoint &from, const CPoint &to) {
    if (smooth() != nullptr)
        smooth()->drawLine(getPen().toNative(), shifted(from), shifted(to));
    else if (surface() != nullptr)
        Graphics::drawAntiAliasedLine(*surface(), shifted(from), shifted(to),
                                      getPen().getColour().toNative());
}

// Outlines

void CGraphics::drawRectangle(const CRect &rect) {
    if (smooth() != nullptr) {
        smooth()->drawRectangle(getPen().toNative(), smallerByOne(shifted(rect)));
    } else if (surface() != nullptr) {
        const CAlphaColour brushColour = getBrush().getColour();
        getBrush().useNullBrush();
        surface()->drawRectangle(shifted(rect));
        getBrush().setColour(brushColour);
    }
}

void CGraphics::drawRoundedRectangle(const CRect &rect, const CDimension &corner) {
    if (surface() == nullptr)
        return;
    const CAlphaColour brushColour = getBrush().getColour();
    getBrush().useNullBrush();
    surface()->drawRoundedRectangle(shifted(rect), corner.getWidth(), corner.getHeight());
    getBrush().setColour(brushColour);
}

void CGraphics::drawPolygon(const CPolygon &polygon) {
    for (int i = 0; i < polygon.getNumberOfPoints(); ++i) {
        const CPoint &point = *polygon.getPoint(i);
        i == 0 ? moveTo(point) : drawLineTo(point);
    }
}

void CGraphics::drawAntiAliasedPolygon(const CPolygon &polygon) {
    if (polygon.getNumberOfPoints() < 3)
        return;
    for (int i = 1; i < polygon.getNumberOfPoints(); ++i)
        drawAntiAliasedLine(*polygon.getPoint(i - 1), *polygon.getPoint(i));
}

void CGraphics::drawArc(const CRect &rect, const CPoint &start, const CPoint &end, bool clockwise) {
    if (surface() != nullptr)
        surface()->drawArc(shifted(rect), shifted(start), shifted(end), clockwise);
}

void CGraphics::drawEllipse(const CRect &rect) {
    drawArc(rect, CPoint(0, 0), CPoint(0, 0), false);
}

// Filled shapes

void CGraphics::fillRectangle(const CRect &rect) {
    if (smooth() != nullptr) {
        smooth()->fillRectangle(getBrush().getColour().toNativeWithAlpha(), shifted(rect));
    } else if (surface() != nullptr) {
        fillPlain([&] { surface()->fillRectangle(shifted(rect)); });
    }
}

void CGraphics::fillRoundedRectangle(const CRect &rect, const CDimension &corner) {
    if (smooth() != nullptr) {
        smooth()->fillRoundedRectangle(getBrush().getColour().toNativeWithAlpha(), shifted(rect),
                                       corner.getWidth(), corner.getHeight());
    } else if (surface() != nullptr) {
        fillPlain([&] {
            surface()->drawRoundedRectangle(shifted(rect), corner.getWidth(), corner.getHeight());
        });
    }
}

void CGraphics::fillEllipse(const CRect &rect) {
    if (smooth() != nullptr)
        smooth()->fillEllipse(getBrush().getColour().toNativeWithAlpha(), shifted(rect));
    else if (surface() != nullptr)
        fillPlain([&] { surface()->drawEllipse(shifted(rect)); });
}

void CGraphics::fillPolygon(const CPolygon &polygon) {
    if (smooth() != nullptr)
        smooth()->fillPolygon(getBrush().getColour().toNativeWithAlpha(), shifted(polygon));
    else if (surface() != nullptr)
        fillPlain([&] { surface()->drawPolygon(shifted(polygon)); });
}

// Shapes of several colours

void CGraphics::drawFilledBorderedRectangle(const CRect &rect) {
    fillRectangle(rect);
    drawRectangle(rect);
}

void CGraphics::drawRaisedRectangle(const CRect &rect) {
    drawFilledBorderedRectangle(rect);
    drawInnerEdges(rect, true);
}

void CGraphics::drawSunkenRectangle(const CRect &rect) {
    drawFilledBorderedRectangle(rect);
    drawInnerEdges(rect, false);
}

void CGraphics::drawInnerEdges(const CRect &rect, bool isRaised) {
    const CAlphaColour penColour = getPen().getColour(), brushColour = getBrush().getColour();
    const auto useShade = [&](bool isLight) {
        CAlphaColour pen = penColour, brush = brushColour;
        for (CAlphaColour *colour : {&pen, &brush}) {
            if (isLight) {
                colour->lighten();
                colour->lighten();
            } else {
                colour->darken();
            }
        }
        getPen().setColour(pen);
        getBrush().setColour(brush);
    };

    CRect inner = rect;
    inner.inset(1);
    if (inner.getWidth() < 1 || inner.getHeight() < 1)
        return;
    const std::int32_t left = inner.getLeft(), right = inner.getRight() - 1;
    const std::int32_t top = inner.getTop(), bottom = inner.getBottom() - 1;
    // Lines lack their last pixel.
    useShade(!isRaised);
    drawLine(CPoint(left, bottom), CPoint(right + 1, bottom));
    drawLine(CPoint(right, top), CPoint(right, bottom + 1));
    useShade(isRaised);
    drawLine(CPoint(left, top), CPoint(left, bottom + 1));
    drawLine(CPoint(left, top), CPoint(right + 1, top));
    getPen().setColour(penColour);
    getBrush().setColour(brushColour);
}

void CGraphics::drawGradient(const CRect &rect) {
    const std::int32_t half = rect.getHeight() / 2;
    if (half < 1)
        return;
    const CAlphaColour penColour = getPen().getColour();
    const std::int32_t redStep = (255 - penColour.getRed()) / half;
    const std::int32_t greenStep = (255 - penColour.getGreen()) / half;
    const std::int32_t blueStep = (255 - penColour.getBlue()) / half;
    CAlphaColour colour = penColour;
    for (std::int32_t row = 0; row < rect.getHeight(); ++row) {
        getPen().setColour(colour);
        drawLine(CPoint(0, row), CPoint(rect.getWidth(), row));
        const std::int32_t direction = row < half ? 1 : -1;
        colour.setAllColours(colour.getRed() + direction * redStep,
                             colour.getGreen() + direction * greenStep,
                             colour.getBlue() + direction * blueStep);
    }
    getPen().setColour(penColour);
}

// Images

void CGraphics::drawImage(IImage *image, const CRect &destination, const CRect &source) {
    if (image == nullptr || surface() == nullptr)
        return;
    const INativeBitmap *bitmap = image->getImageHandle();
    if (bitmap == nullptr)  // not loaded
        return;
    if (image->hasAlpha()) {
        drawImage(image, destination, source, 1.0);
        return;
    }
    const CDimension size = image->getImageSize();
    if (size.getWidth() == destination.getWidth() && size.getHeight() == destination.getHeight())
        surface()->copyBitmap(*bitmap, shifted(destination), {source.getLeft(), source.getTop()});
    else
        surface()->stretchBitmap(*bitmap, shifted(destination), source.toNative());
}

void CGraphics::drawImage(IImage *image, const CRect &destination, const CRect &source,
                          double alpha) {
    if (image == nullptr || surface() == nullptr)
        return;
    if (!image->hasAlpha())
        drawImage(image, destination, source);
    else if (const INativeBitmap *bitmap = image->getImageHandle())
        surface()->blendBitmap(*bitmap, shifted(destination), source.toNative(), toByte(alpha));
}

// Text

void CGraphics::drawText(const Tessitor::Basics::CString &text, const CRect &rect,
                         Fonts::CFont *font, std::int32_t alignment) {
    if (font == nullptr)
        font = Fonts::CFont::getDefaultFont();
    if (font == nullptr || surface() == nullptr)
        return;
    const SAlignment where = alignmentOf(alignment);
    if (smooth() != nullptr) {
        smooth()->drawText(text.getString(), shifted(rect), font->getNativeFont(),
                           m_textColour.toNativeWithAlpha(), where.horizontal, where.vertical);
    } else {
        surface()->drawText(text.getString(), shifted(rect), font->getNativeFont(),
                            m_textColour.toNative(), where.plainFormat());
    }
}

bool CGraphics::getTextExtent(const Tessitor::Basics::CString &text, CDimension &extent,
                              Fonts::CFont *font) {
    if (font == nullptr)
        font = Fonts::CFont::getDefaultFont();
    const CNativeSmoothSession session;
    std::optional<SNativeTextSize> size;
    if (session.isAvailable() && font != nullptr)
        size = nativeSmoothTextSize(text.getString(), font->getNativeFont());
    const bool isSmooth = size.has_value();
    if (!isSmooth)
        size = nativeTextSize(text.getString(), nullptr);
    extent.setDimension(truncated(size->width), truncated(size->height));
    return isSmooth;
}

// Alpha sections

void CGraphics::beginAlphaDrawing(double alpha) {
    if (m_section != nullptr || !m_layer.image.isInitialised())
        return;
    m_sectionAlpha = alpha;
    auto section = std::make_unique<SLayer>();
    section->image.initialise(m_layer.surface, m_size);
    section->image.copyFrom(m_layer.image);
    section->open(section->image.getSurface(), *this, m_layer.pen.getColour(),
                  m_layer.brush.getColour());
    m_section = std::move(section);
}

void CGraphics::endAlphaDrawing(const CRect &destination, const CRect &source) {
    if (m_section == nullptr)
        return;
    CRect from = source, to = destination;
    from.offset(m_offset);
    to.offset(m_offset);
    m_section->image.blendTo(m_layer.image, from, to, toByte(m_sectionAlpha));
    m_section->close();
    m_section.reset();
    if (smooth() != nullptr)
        smooth()->setSmoothing(m_smoothing);
}

void CGraphics::setAntiAliasMode(std::int32_t mode) {
    if (surface() == nullptr)
        return;
    m_antiAliasMode = mode;
    constexpr ENativeSmoothing smoothings[] = {
        ENativeSmoothing::HighQuality, ENativeSmoothing::None, ENativeSmoothing::AntiAliased};
    if (mode < 0 || mode > 2)
        return;
    m_smoothing = smoothings[mode];
    if (smooth() != nullptr)
        smooth()->setSmoothing(m_smoothing);
}

// Helpers

void CGraphics::fillPlain(const std::function<void()> &fill) {
    const CAlphaColour penColour = getPen().getColour();
    getPen().useNullPen();
    fill();
    getPen().setColour(penColour);
}

SNativePoint CGraphics::shifted(const CPoint &point) const {
    return {wrappedSum(point.getXPosition(), m_offset.getXPosition()),
            wrappedSum(point.getYPosition(), m_offset.getYPosition())};
}

SNativeRect CGraphics::shifted(const CRect &rect) const {
    CRect moved = rect;
    moved.offset(m_offset);
    return moved.toNative();
}

std::vector<SNativePoint> CGraphics::shifted(const CPolygon &polygon) const {
    std::vector<SNativePoint> points;
    points.reserve(static_cast<std::size_t>(polygon.getNumberOfPoints()));
    for (int i = 0; i < polygon.getNumberOfPoints(); ++i)
        points.push_back(shifted(*polygon.getPoint(i)));
    return points;
}

}  // namespace Tessitor::GUI::Graphics
