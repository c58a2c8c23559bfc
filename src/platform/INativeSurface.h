#pragma once

#include "platform/INativeBitmap.h"
#include "platform/INativeFont.h"
#include "platform/INativeSmoothDrawing.h"
#include "platform/SNativeColour.h"
#include "platform/SNativePoint.h"
#include "platform/SNativeRect.h"

#include <cstdint>
#include <memory>
#include <span>

class INativeSurface;

/// Something that finished pictures are copied to: a surface, or a window while it is painted.
/// [gui thread]
class INativePaintTarget {
public:
    virtual ~INativePaintTarget() = default;
    /// Copies an area to the same position, inside the target's clip.
    virtual void copyFrom(const INativeSurface &source, const SNativeRect &area) = 0;
};

/// A picture in memory, and what draws on it by the rules of GDI. The same calls set the same
/// pixels on every system; the alpha of a colour is ignored. Nothing is drawn outside the picture
/// or its clip. [gui thread]
///
/// Lines run through the centres of pixels and lack their last pixel. Filled shapes and outlines
/// lack the right and bottom edges of their rectangles. A rectangle whose right edge lies left of
/// its left edge is drawn with both exchanged; top and bottom likewise.
class INativeSurface : public INativePaintTarget {
public:
    virtual std::int32_t getWidth() const = 0;
    virtual std::int32_t getHeight() const = 0;

    /// The pen of lines and outlines; a solid black one at first.
    /// @param width  in pixels; below 2 is one pixel. A wider pen has round ends and joins.
    virtual void setPen(SNativeColour colour, std::int32_t width) = 0;
    virtual void setNullPen() = 0;  ///< draws no lines
    /// The brush that shapes are filled with; solid white at first.
    virtual void setBrush(SNativeColour colour) = 0;
    virtual void setNullBrush() = 0;  ///< fills nothing

    virtual void setClip(const SNativeRect &area) = 0;

    virtual void setPixel(SNativePoint point, SNativeColour colour) = 0;
    /// @return white for a point outside the picture or its clip.
    virtual SNativeColour getPixel(SNativePoint point) const = 0;

    virtual void moveTo(SNativePoint point) = 0;  ///< sets the current position; 0, 0 at first
    /// Draws to a point with the pen and makes it the current position.
    virtual void lineTo(SNativePoint point) = 0;
    /// A part of the ellipse in the rectangle, with the pen.
    /// @param start      the arc starts where the line from the centre to this point crosses it.
    /// @param end        and ends here. The same direction as start gives the whole ellipse.
    /// @param clockwise  or counter-clockwise, from start to end.
    virtual void drawArc(const SNativeRect &rect, SNativePoint start, SNativePoint end,
                         bool clockwise) = 0;
    virtual void fillRectangle(const SNativeRect &rect) = 0;  ///< with the brush alone

    // Fill with the brush and outline with the pen.
    virtual void drawRectangle(const SNativeRect &rect) = 0;
    /// @param width   of the ellipse that the corners are quarters of.
    /// @param height  of that ellipse.
    virtual void drawRoundedRectangle(const SNativeRect &rect, std::int32_t width,
                                      std::int32_t height) = 0;
    virtual void drawEllipse(const SNativeRect &rect) = 0;
    /// Closes the polygon. Fills by the even-odd rule.
    virtual void drawPolygon(std::span<const SNativePoint> points) = 0;

    /// Draws the source over the picture, everywhere with the same weight. Nothing happens if the
    /// source rectangle does not lie inside the source or if a size is negative. Different sizes
    /// scale by repeating or leaving out pixels.
    /// @param alpha  0 to 255; the alpha of the source's pixels is ignored.
    virtual void blendFrom(const INativeSurface &source, const SNativeRect &from,
                           const SNativeRect &to, std::uint8_t alpha) = 0;
    /// Copies a part of a bitmap, colours as stored, to a rectangle of the same size.
    /// @param from  the top left corner in the bitmap. What would come from outside the bitmap is
    ///              not drawn.
    virtual void copyBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                            SNativePoint from) = 0;
    /// Copies a part of a bitmap, colours as stored, and scales it: repeats pixels or, where
    /// several fall on one, combines their bits by AND. Negative sizes mirror.
    virtual void stretchBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                               const SNativeRect &from) = 0;
    /// Like blendFrom(), with each pixel's own alpha times the given one.
    virtual void blendBitmap(const INativeBitmap &bitmap, const SNativeRect &to,
                             const SNativeRect &from, std::uint8_t alpha) = 0;

    /// Draws a text, cut at the rectangle.
    /// @param text    in the system's narrow encoding.
    /// @param format  the sum of 1 centre or 2 right, 4 vertical centre or 8 bottom, and 32 for a
    ///                single line, as for DrawText() on Windows. 4 and 8 need 32. On Windows "&" is
    ///                not drawn but underlines the next character.
    virtual void drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                          SNativeColour colour, unsigned format) = 0;

    /// @return null unless a CNativeSmoothSession is available. Must not outlive the surface.
    virtual std::unique_ptr<INativeSmoothDrawing> startSmoothDrawing() = 0;
};

/// A surface with an alpha channel, transparent at first.
class INativeAlphaSurface : public INativeSurface {
public:
    /// @return a copy of the picture; null if there is no memory.
    virtual std::unique_ptr<INativeBitmap> makeBitmap() = 0;
};

/// @param compatibleWith  the target that the picture will be copied to; null for the screen.
/// @param background      what the whole picture is filled with.
/// @return null if a dimension is below 1, or if there is no memory.
std::unique_ptr<INativeSurface> createNativeSurface(const INativePaintTarget *compatibleWith,
                                                    std::int32_t width, std::int32_t height,
                                                    SNativeColour background);

/// @return null if a dimension is below 1, if there is no memory, or if no CNativeSmoothSession is
///         available.
std::unique_ptr<INativeAlphaSurface> createNativeAlphaSurface(std::int32_t width,
                                                              std::int32_t height);
