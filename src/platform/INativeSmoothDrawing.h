#pragma once

#include "platform/INativeFont.h"
#include "platform/SNativeColour.h"
#include "platform/SNativePoint.h"
#include "platform/SNativeRect.h"

#include <cstdint>
#include <span>

/// Keeps the system's smooth drawing running: GDI+ on Windows. On Linux it is always there.
/// Objects may be nested. [gui thread]
class CNativeSmoothSession {
public:
    CNativeSmoothSession();
    ~CNativeSmoothSession();  // NOLINT(performance-trivially-destructible): not on Windows
    CNativeSmoothSession(const CNativeSmoothSession &) = delete;
    CNativeSmoothSession &operator=(const CNativeSmoothSession &) = delete;

    bool isAvailable() const { return m_isAvailable; }

private:
    std::uintptr_t m_token = 0;
    bool m_isAvailable = false;
};

/// What lines are drawn with. The numbers of the cap are those of GDI+; 0 is a flat cap.
struct SNativeSmoothPen {
    SNativeColour colour;
    std::int32_t width = 1;  // pixels
    std::int32_t cap = 0;
};

/// How the edges of shapes are drawn; the numbers are those of GDI+.
enum class ENativeSmoothing { None = 0, HighQuality = 2, AntiAliased = 4 };

/// A second way to draw on a surface: translucent colours, smooth edges, text. Without smoothing,
/// a filled shape covers the same pixels on every system. It draws inside its own clip and that of
/// the surface. Coordinates are those of the surface. [gui thread]
class INativeSmoothDrawing {
public:
    virtual ~INativeSmoothDrawing() = default;

    virtual void setSmoothing(ENativeSmoothing smoothing) = 0;  ///< None at first
    virtual void setClip(const SNativeRect &area) = 0;
    virtual void resetClip() = 0;  ///< to the whole surface

    virtual void drawLine(const SNativeSmoothPen &pen, SNativePoint from, SNativePoint to) = 0;
    /// The outline passes through the pixels of the right and bottom edges, which lie one pixel
    /// outside a filled rectangle of the same size.
    virtual void drawRectangle(const SNativeSmoothPen &pen, const SNativeRect &rect) = 0;
    virtual void fillRectangle(SNativeColour colour, const SNativeRect &rect) = 0;
    /// @param width   of the ellipse that the corners are quarters of.
    /// @param height  of that ellipse.
    virtual void fillRoundedRectangle(SNativeColour colour, const SNativeRect &rect,
                                      std::int32_t width, std::int32_t height) = 0;
    virtual void fillEllipse(SNativeColour colour, const SNativeRect &rect) = 0;
    /// Closes the polygon. Fills by the even-odd rule.
    virtual void fillPolygon(SNativeColour colour, std::span<const SNativePoint> points) = 0;

    /// Draws a text with smooth edges whatever the smoothing of shapes, cut at the rectangle. A
    /// line feed starts a new line; other lines are not broken.
    /// @param text        in the system's narrow encoding.
    /// @param horizontal  0 left, 1 centre, 2 right.
    /// @param vertical    0 top, 1 centre, 2 bottom.
    virtual void drawText(const char *text, const SNativeRect &rect, const INativeFont &font,
                          SNativeColour colour, int horizontal, int vertical) = 0;
};
