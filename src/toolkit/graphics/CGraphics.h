#pragma once

#include "foundation/CPolygon.h"
#include "foundation/CString.h"
#include "toolkit/graphics/CBrush.h"
#include "toolkit/graphics/CClip.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/graphics/CNativeImage.h"
#include "toolkit/graphics/CPen.h"
#include "toolkit/graphics/IImage.h"

#include <functional>
#include <memory>
#include <vector>

namespace Tessitor::GUI::Graphics {

/// What everything on screen is drawn with. It draws onto the off-screen image of one painting, or
/// straight onto a surface. Before initialise() and after uninitialise() nothing is drawn.
///
/// Coordinates are shifted by the drawing offset. A shape is drawn by the system's smooth drawing,
/// which knows translucent colours, where its comment says so and the system has one; otherwise by
/// plain drawing, which ignores alpha. See INativeSurface and INativeSmoothDrawing for the pixels
/// that each of them covers. [gui thread]
class CGraphics {
public:
    CGraphics() : CGraphics(true) {}
    /// @param usesSmoothDrawing  false to draw as if the system had no smooth drawing.
    explicit CGraphics(bool usesSmoothDrawing);
    CGraphics(const CGraphics &) = delete;
    CGraphics &operator=(const CGraphics &) = delete;
    virtual ~CGraphics();

    /// Starts a painting on an off-screen image filled with the background colour of the native
    /// image. Ends a painting that is still open. The pen is black and 1 wide, the brush white.
    /// @param target  what the image will be copied to; null for the screen.
    void initialise(const INativePaintTarget *target, const MathTools::CDimension &size);
    /// Starts a painting straight on a surface. There is then no native image, so the clip and
    /// alpha sections do nothing.
    /// @param surface  must outlive the painting.
    void initialise(INativeSurface &surface, const MathTools::CDimension &size);
    void uninitialise();  ///< ends the painting and frees its image

    // Pixels and lines
    void drawPixel(const MathTools::CPoint &point);  ///< in the colour of the pen
    /// Blends the colour of the pen over a pixel.
    /// @param alpha  0 to 255.
    void drawAntiAliasedPixel(const MathTools::CPoint &point, std::int32_t alpha);
    void moveTo(const MathTools::CPoint &point);
    void drawLine(const MathTools::CPoint &from, const MathTools::CPoint &to);
    void drawLineTo(const MathTools::CPoint &point);  ///< from the last position
    /// A smooth line, which includes its last pixel. Without smooth drawing see
    /// AntiAliasedLine.h.
    void drawAntiAliasedLine(const MathTools::CPoint &from, const MathTools::CPoint &to);

    // Outlines, in the colour of the pen
    void drawRectangle(const MathTools::CRect &rect);  ///< smooth
    /// @param corner  the size of the ellipse that the corners are quarters of.
    void drawRoundedRectangle(const MathTools::CRect &rect, const MathTools::CDimension &corner);
    void drawPolygon(const MathTools::CPolygon &polygon);  ///< lines; not closed
    /// Smooth lines; not closed. Needs at least three points.
    void drawAntiAliasedPolygon(const MathTools::CPolygon &polygon);
    /// See INativeSurface::drawArc().
    void drawArc(const MathTools::CRect &rect, const MathTools::CPoint &start,
                 const MathTools::CPoint &end, bool clockwise);
    void drawEllipse(const MathTools::CRect &rect);

    // Filled shapes, in the colour of the brush; smooth
    void fillRectangle(const MathTools::CRect &rect);
    void fillRoundedRectangle(const MathTools::CRect &rect, const MathTools::CDimension &corner);
    void fillEllipse(const MathTools::CRect &rect);
    void fillPolygon(const MathTools::CPolygon &polygon);

    // Shapes of several colours
    void drawFilledBorderedRectangle(const MathTools::CRect &rect);  ///< fills, then outlines
    /// A bordered rectangle with a second edge inside, if there is room: light at the left and top,
    /// dark at the right and bottom.
    void drawRaisedRectangle(const MathTools::CRect &rect);
    void drawSunkenRectangle(const MathTools::CRect &rect);  ///< raised, with the light reversed
    /// Rows that run from the colour of the pen towards white and back. Kept: drawn at 0, 0, since
    /// only the size of the rectangle counts. Draws nothing if the height is below 2.
    void drawGradient(const MathTools::CRect &rect);

    /// Draws a part of an image, scaled to the destination. An image with alpha is blended. Any
    /// other is copied; if it is as large as the destination, only the origin of the source counts.
    /// Null, or an image that is not loaded, draws nothing.
    void drawImage(IImage *image, const MathTools::CRect &destination,
                   const MathTools::CRect &source);
    /// @param alpha  0 to 1, for the image as a whole; an image without alpha ignores it.
    void drawImage(IImage *image, const MathTools::CRect &destination,
                   const MathTools::CRect &source, double alpha);

    /// Draws a text in the text colour, cut at the rectangle.
    /// @param font       null for the library's default font.
    /// @param alignment  left, centre, right: 0 to 2 at the top, 3 to 5 in the middle, 6 to 8 at
    ///                   the bottom; 9 is as 3, 10 as 4, any other number as 0.
    void drawText(const Tessitor::Basics::CString &text, const MathTools::CRect &rect,
                  Fonts::CFont *font, std::int32_t alignment);
    /// Measures a text as drawText() draws it.
    /// @param font  null for the library's default font.
    /// @return false if there is no smooth drawing: the size is then that in the system's font.
    static bool getTextExtent(const Tessitor::Basics::CString &text, MathTools::CDimension &extent,
                              Fonts::CFont *font);

    /// Redirects drawing to a copy of the image until endAlphaDrawing(). Does nothing if a section
    /// is open.
    /// @param alpha  0 to 1, the weight of the copy when it is blended back.
    void beginAlphaDrawing(double alpha);
    /// Blends a part of the copy into the image. Does nothing if no section is open.
    /// @param source  in the coordinates that the section was drawn in.
    void endAlphaDrawing(const MathTools::CRect &destination, const MathTools::CRect &source);

    /// How smooth shapes are drawn: 0 high quality, 1 without smoothing, 2 anti-aliased. Any other
    /// mode is only stored. Kept: every painting starts without smoothing and leaves the stored
    /// mode as it was.
    void setAntiAliasMode(std::int32_t mode);
    std::int32_t getAntiAliasMode() const { return m_antiAliasMode; }

    CPen &getPen() { return current().pen; }
    CBrush &getBrush() { return current().brush; }
    CClip &getClip() { return current().clip; }
    CNativeImage &getNativeImage() { return m_layer.image; }
    const MathTools::CDimension &getSize() const { return m_size; }

    void setDrawingOffset(const MathTools::CPoint &offset) { m_offset = offset; }
    const MathTools::CPoint &getDrawingOffset() const { return m_offset; }
    /// The part of what is drawn that will be seen, so that controls can leave out the rest.
    void setUpdateArea(const MathTools::CRect &area) { m_updateArea = area; }
    const MathTools::CRect &getUpdateArea() const { return m_updateArea; }
    void setTextColour(const Basics::CAlphaColour &colour) { m_textColour = colour; }
    const Basics::CAlphaColour &getTextColour() const { return m_textColour; }

private:
    /// A picture and what draws on it: that of the painting, or the copy of an alpha section.
    struct SLayer {
        CNativeImage image;
        INativeSurface *surface = nullptr;  // the image's, or the one given; null if not open
        std::unique_ptr<INativeSmoothDrawing> smooth;  // null if the system has none
        CClip clip;
        CPen pen;
        CBrush brush;

        void open(INativeSurface *onto, const CGraphics &graphics, const Basics::CAlphaColour &pen,
                  const Basics::CAlphaColour &brush);
        void close();
    };

    SLayer &current() { return m_section != nullptr ? *m_section : m_layer; }
    INativeSurface *surface() { return current().surface; }
    INativeSmoothDrawing *smooth() { return current().smooth.get(); }
    SNativePoint shifted(const MathTools::CPoint &point) const;
    SNativeRect shifted(const MathTools::CRect &rect) const;
    std::vector<SNativePoint> shifted(const MathTools::CPolygon &polygon) const;
    void fillPlain(const std::function<void()> &fill);  ///< with the brush alone
    void drawInnerEdges(const MathTools::CRect &rect, bool isRaised);

    CNativeSmoothSession m_smoothSession;
    bool m_usesSmoothDrawing;
    SLayer m_layer;
    std::unique_ptr<SLayer> m_section;  // while an alpha section is open
    double m_sectionAlpha = 1.0;
    MathTools::CPoint m_offset;
    MathTools::CRect m_updateArea;
    MathTools::CDimension m_size;
    Basics::CAlphaColour m_textColour;
    std::int32_t m_antiAliasMode = 1;
    ENativeSmoothing m_smoothing = ENativeSmoothing::None;  // in this painting
};

}  // namespace Tessitor::GUI::Graphics
