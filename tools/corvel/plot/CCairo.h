#pragma once

#include "corvel/files/CSystemLibrary.h"

#include <cairo-svg.h>

namespace Tessitor::Tool {

/// The functions of cairo that draw pictures. The library is opened with the first picture.
class CCairo {
public:
    /// @throws CJobError if cairo is not installed, or too old. [any thread]
    static const CCairo &get() {
        static const CCairo cairo;
        return cairo;
    }
    CCairo(const CCairo &) = delete;
    CCairo &operator=(const CCairo &) = delete;

private:
    CCairo() = default;
    CSystemLibrary::SFunction find(const char *name) const { return m_library.function(name); }

    const CSystemLibrary m_library{"libcairo.so.2", "pictures are drawn with it"};

public:
    decltype(&cairo_clip) clip = find("cairo_clip");
    decltype(&cairo_create) create = find("cairo_create");
    decltype(&cairo_destroy) destroy = find("cairo_destroy");
    decltype(&cairo_fill) fill = find("cairo_fill");
    decltype(&cairo_font_options_create) fontOptionsCreate = find("cairo_font_options_create");
    decltype(&cairo_font_options_destroy) fontOptionsDestroy = find("cairo_font_options_destroy");
    decltype(&cairo_font_options_set_antialias) fontOptionsSetAntialias =
        find("cairo_font_options_set_antialias");
    decltype(&cairo_font_options_set_hint_metrics) fontOptionsSetHintMetrics =
        find("cairo_font_options_set_hint_metrics");
    decltype(&cairo_font_options_set_hint_style) fontOptionsSetHintStyle =
        find("cairo_font_options_set_hint_style");
    decltype(&cairo_image_surface_create) imageSurfaceCreate = find("cairo_image_surface_create");
    decltype(&cairo_line_to) lineTo = find("cairo_line_to");
    decltype(&cairo_move_to) moveTo = find("cairo_move_to");
    decltype(&cairo_new_path) newPath = find("cairo_new_path");
    decltype(&cairo_rectangle) rectangle = find("cairo_rectangle");
    decltype(&cairo_restore) restore = find("cairo_restore");
    decltype(&cairo_rotate) rotate = find("cairo_rotate");
    decltype(&cairo_save) save = find("cairo_save");
    decltype(&cairo_scale) scale = find("cairo_scale");
    decltype(&cairo_select_font_face) selectFontFace = find("cairo_select_font_face");
    decltype(&cairo_set_dash) setDash = find("cairo_set_dash");
    decltype(&cairo_set_font_options) setFontOptions = find("cairo_set_font_options");
    decltype(&cairo_set_font_size) setFontSize = find("cairo_set_font_size");
    decltype(&cairo_set_line_join) setLineJoin = find("cairo_set_line_join");
    decltype(&cairo_set_line_width) setLineWidth = find("cairo_set_line_width");
    decltype(&cairo_set_source_rgba) setSourceRgba = find("cairo_set_source_rgba");
    decltype(&cairo_show_text) showText = find("cairo_show_text");
    decltype(&cairo_status) status = find("cairo_status");
    decltype(&cairo_stroke) stroke = find("cairo_stroke");
    decltype(&cairo_surface_destroy) surfaceDestroy = find("cairo_surface_destroy");
    decltype(&cairo_surface_finish) surfaceFinish = find("cairo_surface_finish");
    decltype(&cairo_surface_status) surfaceStatus = find("cairo_surface_status");
    decltype(&cairo_surface_write_to_png_stream) surfaceWriteToPngStream =
        find("cairo_surface_write_to_png_stream");
    decltype(&cairo_svg_surface_create_for_stream) svgSurfaceCreateForStream =
        find("cairo_svg_surface_create_for_stream");
    decltype(&cairo_svg_surface_set_document_unit) svgSurfaceSetDocumentUnit =
        find("cairo_svg_surface_set_document_unit");
    decltype(&cairo_text_extents) textExtents = find("cairo_text_extents");
    decltype(&cairo_translate) translate = find("cairo_translate");
};

}  // namespace Tessitor::Tool
