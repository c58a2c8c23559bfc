#include "corvel/plot/CChart.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessitor::Tool {

namespace {

// Around the plot area
constexpr double leftMargin = 64.0, rightMargin = 18.0, topMargin = 34.0, bottomMargin = 50.0;

const SLettering titleLettering{EInk::Text, 15.0, true, EAlign::Left};
const SLettering axisLettering{EInk::Muted, 13.0, false, EAlign::Middle};
const SLettering legendLettering{EInk::Text, 13.0, false, EAlign::Left};

constexpr SLettering tickLettering(EAlign align) {
    return {EInk::Muted, 12.0, false, align};
}

}  // namespace

CChart::CChart(CCanvas &canvas, const SRectangle &area, const std::string &title, SAxis x, SAxis y)
    : m_canvas(canvas), m_x(std::move(x)),
      m_y(std::move(y)), m_plot{area.x + leftMargin, area.y + topMargin,
                                area.width - leftMargin - rightMargin,
                                area.height - topMargin - bottomMargin} {
    const double titleY = area.y + 20.0;
    m_canvas.text({m_plot.x, titleY}, title, titleLettering);
    m_legendX = m_plot.x + m_canvas.textWidth(title, titleLettering) + 28.0;
    m_canvas.fill(m_plot, EInk::Panel);
    drawGrid();
    drawTickLabels();
    m_canvas.text({m_plot.x + m_plot.width / 2.0, m_plot.bottom() + 40.0}, m_x.title,
                  axisLettering);
    m_canvas.textUpwards({area.x + 16.0, m_plot.y + m_plot.height / 2.0}, m_y.title, axisLettering);
}

void CChart::caption(std::string_view text) {
    m_canvas.text({m_plot.right(), m_plot.y - 14.0}, text,
                  {EInk::Muted, 13.0, false, EAlign::Right});
}

SPoint CChart::place(SPoint value) const {
    return {m_plot.x + m_x.position(value.x) * m_plot.width,
            m_plot.bottom() - m_y.position(value.y) * m_plot.height};
}

void CChart::drawGrid() {
    constexpr SStroke grid{EInk::Grid};
    for (const STick &tick : m_x.ticks) {
        const double x = place({tick.value, m_y.low}).x;
        m_canvas.line({{x, m_plot.y}, {x, m_plot.bottom()}}, grid);
    }
    for (const STick &tick : m_y.ticks) {
        const double y = place({m_x.low, tick.value}).y;
        m_canvas.line({{m_plot.x, y}, {m_plot.right(), y}}, grid);
    }
    m_canvas.line({{m_plot.x, m_plot.y},
                   {m_plot.right(), m_plot.y},
                   {m_plot.right(), m_plot.bottom()},
                   {m_plot.x, m_plot.bottom()},
                   {m_plot.x, m_plot.y}},
                  {EInk::Frame});
}

void CChart::drawTickLabels() {
    for (const STick &tick : m_x.ticks)
        m_canvas.text({place({tick.value, m_y.low}).x, m_plot.bottom() + 18.0}, tick.label,
                      tickLettering(EAlign::Middle));
    for (const STick &tick : m_y.ticks)
        m_canvas.text({m_plot.x - 8.0, place({m_x.low, tick.value}).y + 4.0}, tick.label,
                      tickLettering(EAlign::Right));
}

void CChart::draw(const SSeries &series) {
    m_canvas.clip(m_plot);
    std::vector<SPoint> run;
    for (const SPoint &value : series.points) {
        if (std::isnan(value.x) || std::isnan(value.y)) {
            m_canvas.line(run, series.stroke);
            run.clear();
        } else {
            run.push_back(place(value));
        }
    }
    m_canvas.line(run, series.stroke);
    m_canvas.unclip();
    addToLegend(series.label, series.stroke.ink, &series.stroke, 1.0);
}

void CChart::draw(const SBand &band) {
    std::vector<SPoint> outline, low;
    for (const SPoint &value : band.high)
        outline.push_back(place(value));
    for (const SPoint &value : band.low)
        low.push_back(place(value));
    outline.insert(outline.end(), low.rbegin(), low.rend());
    m_canvas.clip(m_plot);
    m_canvas.fill(outline, band.ink, band.opacity);
    m_canvas.unclip();
    addToLegend(band.label, band.ink, nullptr, band.opacity);
}

void CChart::addToLegend(const std::string &label, EInk ink, const SStroke *stroke,
                         double opacity) {
    if (label.empty())
        return;
    constexpr double sample = 30.0;
    const double middle = m_plot.y - 19.0;
    if (stroke != nullptr) {
        m_canvas.line({{m_legendX, middle}, {m_legendX + sample, middle}}, *stroke);
    } else {
        m_canvas.fill({{m_legendX, middle - 5.0},
                       {m_legendX + sample, middle - 5.0},
                       {m_legendX + sample, middle + 5.0},
                       {m_legendX, middle + 5.0}},
                      ink, opacity);
    }
    m_canvas.text({m_legendX + sample + 6.0, m_plot.y - 14.0}, label, legendLettering);
    m_legendX += sample + 6.0 + m_canvas.textWidth(label, legendLettering) + 22.0;
}

void CChart::drawVertical(double x, const SStroke &stroke, std::string_view label) {
    const double at = place({x, m_y.low}).x;
    if (at < m_plot.x || at > m_plot.right())
        return;
    m_canvas.line({{at, m_plot.y}, {at, m_plot.bottom()}}, stroke);
    SLettering lettering = legendLettering;
    const bool isTight = at + 6.0 + m_canvas.textWidth(label, lettering) > m_plot.right();
    lettering.align = isTight ? EAlign::Right : EAlign::Left;
    m_canvas.text({isTight ? at - 6.0 : at + 6.0, m_plot.y + 16.0}, label, lettering);
}

void CChart::drawHorizontal(double y, const SStroke &stroke, std::string_view label) {
    const double at = place({m_x.low, y}).y;
    if (at < m_plot.y || at > m_plot.bottom())
        return;
    m_canvas.line({{m_plot.x, at}, {m_plot.right(), at}}, stroke);
    SLettering lettering = legendLettering;
    lettering.align = EAlign::Right;
    const bool isTight = at - 20.0 < m_plot.y;
    m_canvas.text({m_plot.right() - 8.0, isTight ? at + 16.0 : at - 6.0}, label, lettering);
}

void CChart::note(ECorner corner, const std::vector<std::string> &lines) {
    constexpr double lineHeight = 18.0, padding = 8.0, gap = 10.0;
    double width = 0.0;
    for (const std::string &line : lines)
        width = std::max(width, m_canvas.textWidth(line, legendLettering));
    width += 2.0 * padding;
    const double height = static_cast<double>(lines.size()) * lineHeight + padding;
    SRectangle box{m_plot.x + gap, m_plot.y + gap, width, height};
    if (corner == ECorner::TopRight || corner == ECorner::BottomRight)
        box.x = m_plot.right() - gap - width;
    if (corner == ECorner::BottomLeft || corner == ECorner::BottomRight)
        box.y = m_plot.bottom() - gap - height;
    if (corner == ECorner::Middle) {
        box.x = m_plot.x + (m_plot.width - width) / 2.0;
        box.y = m_plot.y + (m_plot.height - height) / 2.0;
    }
    m_canvas.fill(box, EInk::Panel);
    double baseline = box.y + lineHeight - 1.0;
    for (const std::string &line : lines) {
        m_canvas.text({box.x + padding, baseline}, line, legendLettering);
        baseline += lineHeight;
    }
}

}  // namespace Tessitor::Tool
