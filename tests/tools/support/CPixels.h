#pragma once

#include "corvel/plot/Palette.h"

#include <cairo.h>
#include <string>

/// The pixels of a PNG.
class CPixels {
public:
    explicit CPixels(const std::string &bytes);
    ~CPixels();
    CPixels(const CPixels &) = delete;
    CPixels &operator=(const CPixels &) = delete;

    int width() const { return cairo_image_surface_get_width(m_surface); }
    int height() const { return cairo_image_surface_get_height(m_surface); }
    Tessitor::Tool::Colour at(int x, int y) const;  ///< in whole percent

    /// @return true if a pixel from the column `left` up to `right` has another colour.
    bool hasOther(const Tessitor::Tool::Colour &paper, int left, int right) const;

    /// @return how many pixels of an area have a colour.
    int count(const Tessitor::Tool::Colour &colour, int left, int top, int right, int bottom) const;

private:
    std::string m_rest;  // what is still to be read
    cairo_surface_t *m_surface;
};
