#include "tools/support/CPixels.h"

#include <cmath>
#include <cstdint>
#include <cstring>

using Tessitor::Tool::Colour;

namespace {

cairo_status_t readFrom(void *rest, unsigned char *data, unsigned length) {
    std::string &bytes = *static_cast<std::string *>(rest);
    if (bytes.size() < length)
        return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, bytes.data(), length);
    bytes.erase(0, length);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

CPixels::CPixels(const std::string &bytes)
    : m_rest(bytes), m_surface(cairo_image_surface_create_from_png_stream(readFrom, &m_rest)) {}

CPixels::~CPixels() {
    cairo_surface_destroy(m_surface);
}

Colour CPixels::at(int x, int y) const {
    std::uint32_t pixel = 0;
    const unsigned char *row =
        cairo_image_surface_get_data(m_surface) + y * cairo_image_surface_get_stride(m_surface);
    std::memcpy(&pixel, row + 4 * x, 4);
    const auto percent = [&](unsigned shift) {
        return static_cast<int>(std::lround((pixel >> shift & 255u) / 2.55));
    };
    return {percent(16), percent(8), percent(0)};
}

bool CPixels::hasOther(const Colour &paper, int left, int right) const {
    return count(paper, left, 0, right, height()) < (right - left) * height();
}

int CPixels::count(const Colour &colour, int left, int top, int right, int bottom) const {
    int pixels = 0;
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            pixels += at(x, y) == colour ? 1 : 0;
    return pixels;
}
