#include "platform/linux/drawing/CCoverage.h"

#include <cmath>

namespace {

/// A context for a mask of one byte per pixel.
class CMaskContext {
public:
    CMaskContext(const SNativeRect &area, unsigned char *bytes, std::size_t stride) {
        cairo_surface_t *surface =
            cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_A8, area.right - area.left,
                                                area.bottom - area.top, static_cast<int>(stride));
        cairo_surface_set_device_offset(surface, -area.left, -area.top);
        m_cairo = cairo_create(surface);
        cairo_surface_destroy(surface);  // the context keeps it
    }
    ~CMaskContext() { cairo_destroy(m_cairo); }
    CMaskContext(const CMaskContext &) = delete;
    CMaskContext &operator=(const CMaskContext &) = delete;

    cairo_t *get() const { return m_cairo; }

private:
    cairo_t *m_cairo;
};

}  // namespace

CCoverage::CCoverage(const SNativeRect &area, const Paint &paint)
    : m_area(area), m_stride((static_cast<std::size_t>(area.right - area.left) + 3) / 4 * 4),
      m_bytes(m_stride * static_cast<std::size_t>(area.bottom - area.top)) {
    const CMaskContext context(area, m_bytes.data(), m_stride);
    paint(context.get());
}

SArea CCoverage::extents(const Paint &path) {
    unsigned char pixel[4] = {};
    const CMaskContext context({0, 0, 1, 1}, pixel, sizeof pixel);
    path(context.get());
    double left, top, right, bottom;
    cairo_path_extents(context.get(), &left, &top, &right, &bottom);
    return {std::llround(std::floor(left)), std::llround(std::floor(top)),
            std::llround(std::ceil(right)), std::llround(std::ceil(bottom))};
}
