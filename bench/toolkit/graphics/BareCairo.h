#pragma once

#include <cairo/cairo.h>
#include <cstdint>
#include <vector>

/// A cairo image of the size of the editor, drawn on without our classes in between.
class CBareCairo {
public:
    CBareCairo(int width, int height)
        : m_surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height)),
          m_cairo(cairo_create(m_surface)) {
        cairo_set_antialias(m_cairo, CAIRO_ANTIALIAS_NONE);
        cairo_select_font_face(m_cairo, "Arial", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
        cairo_set_font_size(m_cairo, 11);
        cairo_set_line_width(m_cairo, 1);
    }
    CBareCairo(const CBareCairo &) = delete;
    CBareCairo &operator=(const CBareCairo &) = delete;
    ~CBareCairo() {
        cairo_destroy(m_cairo);
        cairo_surface_destroy(m_surface);
    }

    cairo_t *get() const { return m_cairo; }

    void clip(int left, int top, int width, int height) {
        cairo_reset_clip(m_cairo);
        cairo_rectangle(m_cairo, left, top, width, height);
        cairo_clip(m_cairo);
    }
    void fillBackground() {
        cairo_set_source_rgb(m_cairo, 1, 1, 1);
        cairo_paint(m_cairo);
    }
    void fill(int left, int top, int width, int height) {
        cairo_set_source_rgb(m_cairo, 0.2, 0.4, 0.6);
        cairo_rectangle(m_cairo, left, top, width, height);
        cairo_fill(m_cairo);
    }
    void line(int fromX, int fromY, int toX, int toY) {
        cairo_set_source_rgb(m_cairo, 0.2, 0.4, 0.6);
        cairo_move_to(m_cairo, fromX + 0.5, fromY + 0.5);
        cairo_line_to(m_cairo, toX + 0.5, toY + 0.5);
        cairo_stroke(m_cairo);
    }
    void roundedRectangle(int left, int top, int width, int height, double radius) {
        constexpr double quarter = 1.5707963267948966;
        cairo_set_source_rgb(m_cairo, 0.2, 0.4, 0.6);
        cairo_new_sub_path(m_cairo);
        cairo_arc(m_cairo, left + width - radius, top + radius, radius, -quarter, 0);
        cairo_arc(m_cairo, left + width - radius, top + height - radius, radius, 0, quarter);
        cairo_arc(m_cairo, left + radius, top + height - radius, radius, quarter, 2 * quarter);
        cairo_arc(m_cairo, left + radius, top + radius, radius, 2 * quarter, 3 * quarter);
        cairo_close_path(m_cairo);
        cairo_fill(m_cairo);
    }
    void text(int left, int top, const char *text) {
        cairo_set_source_rgb(m_cairo, 0, 0, 0);
        cairo_move_to(m_cairo, left, top + 10);
        cairo_show_text(m_cairo, text);
    }
    void image(cairo_surface_t *source, int left, int top, int width, int height, int sourceTop) {
        cairo_set_source_surface(m_cairo, source, left, top - sourceTop);
        cairo_rectangle(m_cairo, left, top, width, height);
        cairo_fill(m_cairo);
    }
    /// What a window would be given.
    void copyTo(CBareCairo &window, int left, int top, int width, int height) {
        window.image(m_surface, left, top, width, height, 0);
    }

private:
    cairo_surface_t *m_surface;
    cairo_t *m_cairo;
};

/// A picture whose pixels are given, premultiplied, from the top.
class CBareImage {
public:
    CBareImage(int width, int height, std::vector<std::uint32_t> pixels)
        : m_pixels(std::move(pixels)), m_surface(cairo_image_surface_create_for_data(
                                           reinterpret_cast<unsigned char *>(m_pixels.data()),
                                           CAIRO_FORMAT_ARGB32, width, height, 4 * width)) {}
    CBareImage(const CBareImage &) = delete;
    CBareImage &operator=(const CBareImage &) = delete;
    ~CBareImage() { cairo_surface_destroy(m_surface); }
    cairo_surface_t *get() const { return m_surface; }

private:
    std::vector<std::uint32_t> m_pixels;
    cairo_surface_t *m_surface;
};
