#include "platform/linux/windowing/window/CXcbCanvas.h"

#include "platform/linux/windowing/connection/CNoPipeSignal.h"

#include <algorithm>

namespace {

// A socket of Linux has room for twice as much when it reports that it can be written to.
constexpr std::size_t stripBytes = 65536;
constexpr std::size_t requestHead = 32;  // bytes of a request beside its image, generously

/// @return null if the server has no images of this depth.
const xcb_format_t *findFormat(const xcb_setup_t &setup, std::uint8_t depth) {
    const xcb_format_t *formats = xcb_setup_pixmap_formats(&setup);
    const int count = xcb_setup_pixmap_formats_length(&setup);
    const xcb_format_t *found =
        std::find_if(formats, formats + count,
                     [depth](const xcb_format_t &format) { return format.depth == depth; });
    return found != formats + count ? found : nullptr;
}

}  // namespace

CXcbCanvas::CXcbCanvas(xcb_connection_t *connection, const xcb_screen_t &screen)
    : m_connection(connection),
      m_limit(xcb_get_maximum_request_length(connection) * std::size_t{4} - requestHead) {
    choose(screen);
    if (!isUsable())
        return;
    m_colourMap = screen.default_colormap;
    if (m_visual != screen.root_visual) {
        m_colourMap = xcb_generate_id(connection);
        xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, m_colourMap, screen.root,
                            m_visual);
    }
    // A context fits all windows of the depth of what it was made for.
    const xcb_pixmap_t sample = xcb_generate_id(connection);
    xcb_create_pixmap(connection, m_depth, sample, screen.root, 1, 1);
    m_context = xcb_generate_id(connection);
    const std::uint32_t sendsNoEvents = 0;
    xcb_create_gc(connection, m_context, sample, XCB_GC_GRAPHICS_EXPOSURES, &sendsNoEvents);
    xcb_free_pixmap(connection, sample);
}

// The screen's own visual if possible, so that its colour map is installed; else the one with the
// most colours, but without an alpha channel.
void CXcbCanvas::choose(const xcb_screen_t &screen) {
    xcb_depth_iterator_t depths = xcb_screen_allowed_depths_iterator(&screen);
    for (; depths.rem > 0; xcb_depth_next(&depths)) {
        const std::uint8_t depth = depths.data->depth;
        xcb_visualtype_iterator_t visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            const xcb_visualtype_t &visual = *visuals.data;
            const bool isOwn = visual.visual_id == screen.root_visual;
            const bool isBetter = depth > m_depth && depth < 32;
            if (visual._class == XCB_VISUAL_CLASS_TRUE_COLOR && (isOwn || isBetter))
                take(visual, depth);
            if (m_visual == screen.root_visual)
                return;
        }
    }
}

void CXcbCanvas::take(const xcb_visualtype_t &visual, std::uint8_t depth) {
    const xcb_setup_t &setup = *xcb_get_setup(m_connection);
    const xcb_format_t *format = findFormat(setup, depth);
    if (format == nullptr || format->bits_per_pixel % 8 != 0)
        return;
    SXcbPixelLayout layout;
    layout.bitsPerPixel = format->bits_per_pixel;
    layout.padding = format->scanline_pad;
    layout.isLowByteFirst = setup.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    layout.redMask = visual.red_mask;
    layout.greenMask = visual.green_mask;
    layout.blueMask = visual.blue_mask;
    m_format.emplace(layout);
    m_visual = visual.visual_id;
    m_depth = depth;
}

std::int64_t CXcbCanvas::rowsOfStrip(std::int64_t width) const {
    const std::size_t rowBytes = m_format->bytesOfRow(static_cast<std::int32_t>(width));
    return std::max<std::int64_t>(1, static_cast<std::int64_t>(stripBytes / rowBytes));
}

std::optional<unsigned> CXcbCanvas::put(xcb_window_t window, const SSource &picture,
                                        const SArea &area) {
    if (area.isEmpty())
        return std::nullopt;
    const auto width = static_cast<std::int32_t>(area.width());
    const auto height = static_cast<std::size_t>(area.height());
    const std::size_t rowBytes = m_format->bytesOfRow(width);
    if (rowBytes * height > m_limit) {
        SArea half = area, rest = area;
        if (height > 1)
            half.bottom = rest.top = area.top + area.height() / 2;
        else
            half.right = rest.left = area.left + area.width() / 2;
        const auto first = put(window, picture, half);
        put(window, picture, rest);
        return first;
    }
    m_image.resize(rowBytes * height);
    std::uint8_t *row = m_image.data();
    for (std::int64_t y = area.top; y < area.bottom; ++y, row += rowBytes)
        m_format->convertRow(picture.row(y) + area.left, width, row);
    const CNoPipeSignal guard;
    return xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, m_context,
                         static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height),
                         static_cast<std::int16_t>(area.left), static_cast<std::int16_t>(area.top),
                         0, m_depth, static_cast<std::uint32_t>(m_image.size()), m_image.data())
        .sequence;
}
