#include "corvel/plot/CCanvas.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Printable.h"
#include "corvel/plot/CCairo.h"
#include "corvel/plot/SvgText.h"

#include <cmath>
#include <numbers>

namespace Tessitor::Tool {

namespace {

const CCairo &cairo() {
    return CCairo::get();
}

cairo_status_t append(void *bytes, const unsigned char *data, unsigned length) {
    static_cast<std::string *>(bytes)->append(reinterpret_cast<const char *>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

cairo_surface_t *makeSurface(double width, double height, const SPictureOptions &options,
                             std::string &bytes) {
    if (options.format == EPictureFormat::Png) {
        return cairo().imageSurfaceCreate(CAIRO_FORMAT_RGB24,
                                          static_cast<int>(std::lround(width * options.scale)),
                                          static_cast<int>(std::lround(height * options.scale)));
    }
    cairo_surface_t *surface = cairo().svgSurfaceCreateForStream(append, &bytes, width, height);
    cairo().svgSurfaceSetDocumentUnit(surface, CAIRO_SVG_UNIT_PX);
    return surface;
}

// Letters keep their widths whatever the size of the pixels, so nothing moves with the scale.
void useFreeMetrics(cairo_t *context) {
    cairo_font_options_t *options = cairo().fontOptionsCreate();
    cairo().fontOptionsSetHintMetrics(options, CAIRO_HINT_METRICS_OFF);
    cairo().fontOptionsSetHintStyle(options, CAIRO_HINT_STYLE_NONE);
    cairo().fontOptionsSetAntialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo().setFontOptions(context, options);
    cairo().fontOptionsDestroy(options);
}

void selectFont(cairo_t *context, const SLettering &lettering) {
    cairo().selectFontFace(context, "sans-serif", CAIRO_FONT_SLANT_NORMAL,
                           lettering.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo().setFontSize(context, lettering.size);
}

double advance(cairo_t *context, const std::string &text) {
    cairo_text_extents_t extents;
    cairo().textExtents(context, text.c_str(), &extents);
    return extents.x_advance;
}

void setDash(cairo_t *context, EDash dash) {
    static constexpr double dashed[] = {8.0, 5.0}, dotted[] = {2.0, 4.0};
    if (dash == EDash::Solid)
        cairo().setDash(context, nullptr, 0, 0.0);
    else
        cairo().setDash(context, dash == EDash::Dashed ? dashed : dotted, 2, 0.0);
}

}  // namespace

struct CCanvas::SDrawing {
    SDrawing(double width, double height, const SPictureOptions &options)
        : surface(makeSurface(width, height, options, bytes)), context(cairo().create(surface)) {}
    ~SDrawing() {
        cairo().destroy(context);
        cairo().surfaceDestroy(surface);
    }
    SDrawing(const SDrawing &) = delete;
    SDrawing &operator=(const SDrawing &) = delete;

    std::string bytes;
    cairo_surface_t *surface;
    cairo_t *context;
};

CCanvas::CCanvas(double width, double height, const SPictureOptions &options)
    : m_width(width), m_height(height), m_options(options),
      m_drawing(std::make_unique<SDrawing>(width, height, options)) {
    if (options.format == EPictureFormat::Png)
        cairo().scale(m_drawing->context, options.scale, options.scale);
    useFreeMetrics(m_drawing->context);
    cairo().setLineJoin(m_drawing->context, CAIRO_LINE_JOIN_ROUND);
    fill(SRectangle{0.0, 0.0, width, height}, EInk::Paper);
}

CCanvas::~CCanvas() = default;

void CCanvas::setInk(EInk ink, double opacity) {
    const auto [red, green, blue] = colourOf(ink, m_options.theme);
    cairo().setSourceRgba(m_drawing->context, red / 100.0, green / 100.0, blue / 100.0, opacity);
}

void CCanvas::fill(const SRectangle &area, EInk ink) {
    setInk(ink);
    cairo().rectangle(m_drawing->context, area.x, area.y, area.width, area.height);
    cairo().fill(m_drawing->context);
}

void CCanvas::path(const std::vector<SPoint> &points) {
    for (const auto &[x, y] : points)
        cairo().lineTo(m_drawing->context, x, y);
}

void CCanvas::fill(const std::vector<SPoint> &outline, EInk ink, double opacity) {
    if (outline.size() < 3)
        return;
    setInk(ink, opacity);
    path(outline);
    cairo().fill(m_drawing->context);
}

void CCanvas::line(const std::vector<SPoint> &points, const SStroke &stroke) {
    if (points.size() < 2)
        return;
    setInk(stroke.ink);
    setDash(m_drawing->context, stroke.dash);
    cairo().setLineWidth(m_drawing->context, stroke.width);
    path(points);
    cairo().stroke(m_drawing->context);
}

void CCanvas::text(SPoint place, std::string_view text, const SLettering &lettering) {
    const std::string shown = printable(text);
    setInk(lettering.ink);
    selectFont(m_drawing->context, lettering);
    double left = place.x;
    if (lettering.align != EAlign::Left)
        left -= advance(m_drawing->context, shown) * (lettering.align == EAlign::Right ? 1.0 : 0.5);
    cairo().moveTo(m_drawing->context, left, place.y);
    cairo().showText(m_drawing->context, shown.c_str());
    cairo().newPath(m_drawing->context);
}

void CCanvas::textUpwards(SPoint place, std::string_view text, const SLettering &lettering) {
    cairo().save(m_drawing->context);
    cairo().translate(m_drawing->context, place.x, place.y);
    cairo().rotate(m_drawing->context, -std::numbers::pi / 2.0);
    SLettering centred = lettering;
    centred.align = EAlign::Middle;
    this->text({0.0, 0.0}, text, centred);
    cairo().restore(m_drawing->context);
}

double CCanvas::textWidth(std::string_view text, const SLettering &lettering) {
    selectFont(m_drawing->context, lettering);
    return advance(m_drawing->context, printable(text));
}

std::string CCanvas::shortened(std::string_view text, double width, const SLettering &lettering) {
    std::string shown = printable(text);
    if (textWidth(shown, lettering) <= width)
        return shown;
    // Half a letter of several bytes is escaped, and never fits where the letter did not.
    while (!shown.empty() && textWidth(shown + "…", lettering) > width)
        shown.pop_back();
    return shown + "…";
}

void CCanvas::clip(const SRectangle &area) {
    cairo().save(m_drawing->context);
    cairo().rectangle(m_drawing->context, area.x, area.y, area.width, area.height);
    cairo().clip(m_drawing->context);
}

void CCanvas::unclip() {
    cairo().restore(m_drawing->context);
}

std::string CCanvas::finish(const std::string &title, const std::string &description) {
    std::string &bytes = m_drawing->bytes;
    if (m_options.format == EPictureFormat::Png)
        cairo().surfaceWriteToPngStream(m_drawing->surface, append, &bytes);
    cairo().surfaceFinish(m_drawing->surface);
    if (cairo().status(m_drawing->context) != CAIRO_STATUS_SUCCESS ||
        cairo().surfaceStatus(m_drawing->surface) != CAIRO_STATUS_SUCCESS)
        throw CJobError("the picture cannot be drawn: not enough memory");
    if (m_options.format == EPictureFormat::Png)
        return bytes;
    return completeSvg(bytes, {title, description, m_options.theme == ETheme::Viewer});
}

}  // namespace Tessitor::Tool
