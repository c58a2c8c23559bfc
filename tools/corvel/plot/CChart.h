#pragma once

#include "corvel/plot/CCanvas.h"
#include "corvel/plot/SAxis.h"

#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// A line of a chart, in the units of its axes.
struct SSeries {
    std::vector<SPoint> points;  // a value that is not a number leaves a gap
    SStroke stroke{};
    std::string label{};  // in the legend; empty for none
};

/// A filled area between two lines, such as a waveform.
struct SBand {
    std::vector<SPoint> low, high;  // of finite values
    EInk ink;
    double opacity = 1.0;
    std::string label{};
};

/// A chart with a title, axes and a grid, in a part of a canvas. Charts of the same x and width
/// have their vertical axes in line.
///
///     title  -- a line  -- another
///     |           ____
///     |__________/
///      0    1    2    3
///          time (s)
class CChart {
public:
    /// Draws everything but the data.
    /// @param canvas  must outlive this.
    CChart(CCanvas &canvas, const SRectangle &area, const std::string &title, SAxis x, SAxis y);

    /// @return the part of the canvas that holds the data.
    const SRectangle &plotArea() const { return m_plot; }
    /// @return the place of a value, possibly outside the plot area.
    SPoint place(SPoint value) const;

    /// A remark at the right end of the title's line.
    void caption(std::string_view text);

    // What is drawn is cut at the plot area.

    void draw(const SSeries &series);
    void draw(const SBand &band);
    /// A line across the whole chart, with a label at its upper or right end.
    void drawVertical(double x, const SStroke &stroke, std::string_view label);
    void drawHorizontal(double y, const SStroke &stroke, std::string_view label);
    /// A note in a corner or the middle of the plot area, on a background that hides lines.
    enum class ECorner { TopLeft, TopRight, BottomLeft, BottomRight, Middle };
    void note(ECorner corner, const std::vector<std::string> &lines);

private:
    void drawGrid();
    void drawTickLabels();
    void addToLegend(const std::string &label, EInk ink, const SStroke *stroke, double opacity);

    CCanvas &m_canvas;
    SAxis m_x, m_y;
    SRectangle m_plot;
    double m_legendX;  // where the next entry begins
};

}  // namespace Tessitor::Tool
