#pragma once

#include "corvel/plot/Palette.h"
#include "corvel/plot/PictureFile.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// A place on a picture, in units from its top left corner.
struct SPoint {
    double x, y;
};

struct SRectangle {
    double x, y, width, height;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
};

enum class EDash { Solid, Dashed, Dotted };

/// How a line is drawn.
struct SStroke {
    EInk ink;
    double width = 1.0;
    EDash dash = EDash::Solid;
};

enum class EAlign { Left, Middle, Right };

/// How text is drawn.
struct SLettering {
    EInk ink = EInk::Text;
    double size = 13.0;
    bool bold = false;
    EAlign align = EAlign::Left;  // where the text lies seen from its place
};

struct SPictureOptions {
    EPictureFormat format = EPictureFormat::Svg;
    ETheme theme = ETheme::Viewer;
    double scale = 2.0;  // pixels per unit; PNG only
};

/// A picture in the making, SVG or PNG. Needs no display. [one thread at a time]
class CCanvas {
public:
    /// @param width, height  in units.
    CCanvas(double width, double height, const SPictureOptions &options);
    ~CCanvas();
    CCanvas(const CCanvas &) = delete;
    CCanvas &operator=(const CCanvas &) = delete;

    double width() const { return m_width; }
    double height() const { return m_height; }

    void fill(const SRectangle &area, EInk ink);
    /// @param outline  at least three points, or nothing is drawn.
    /// @param opacity  0 to 1.
    void fill(const std::vector<SPoint> &outline, EInk ink, double opacity);
    /// @param points  at least two, or nothing is drawn.
    void line(const std::vector<SPoint> &points, const SStroke &stroke);
    /// @param place  on the baseline. @param text  is made printable.
    void text(SPoint place, std::string_view text, const SLettering &lettering);
    /// Upwards, centred on the place.
    void textUpwards(SPoint place, std::string_view text, const SLettering &lettering);
    double textWidth(std::string_view text, const SLettering &lettering);
    /// @return the text, printable, cut to the width with an ellipsis at its end if necessary.
    std::string shortened(std::string_view text, double width, const SLettering &lettering);

    /// Until unclip() nothing is drawn outside the area. Not nested.
    void clip(const SRectangle &area);
    void unclip();

    /// Ends the drawing.
    /// @param title, description  the text of an SVG for those who cannot see it.
    /// @return the bytes of the file. The same drawing gives the same bytes.
    /// @throws CJobError if there is not enough memory.
    std::string finish(const std::string &title, const std::string &description);

private:
    struct SDrawing;

    void setInk(EInk ink, double opacity = 1.0);
    void path(const std::vector<SPoint> &points);

    double m_width, m_height;
    SPictureOptions m_options;
    std::unique_ptr<SDrawing> m_drawing;
};

}  // namespace Tessitor::Tool
