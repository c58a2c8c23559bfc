#pragma once

#include "platform/linux/drawing/Blits.h"
#include "platform/linux/windowing/window/CXcbPixelFormat.h"

#include <optional>
#include <vector>
#include <xcb/xcb.h>

/// What the windows of a connection are made of: the visual that they state, whatever their parents
/// have, and the way of pictures to them. [gui thread]
class CXcbCanvas {
public:
    /// Waits for the server.
    CXcbCanvas(xcb_connection_t *connection, const xcb_screen_t &screen);

    /// @return whether the screen can show colours. Nothing else here makes sense otherwise.
    bool isUsable() const { return m_format.has_value(); }
    std::uint8_t getDepth() const { return m_depth; }
    xcb_visualid_t getVisual() const { return m_visual; }
    xcb_colormap_t getColourMap() const { return m_colourMap; }

    /// @return how many rows of a part that is so wide should be sent at once: as much as a server
    ///         that takes anything takes without making us wait.
    std::int64_t rowsOfStrip(std::int64_t width) const;
    /// Sends a part of a picture to the same place of a window.
    /// @param area  inside the picture.
    /// @return the number of the first request; nothing if the area is empty.
    std::optional<unsigned> put(xcb_window_t window, const SSource &picture, const SArea &area);

private:
    void choose(const xcb_screen_t &screen);
    void take(const xcb_visualtype_t &visual, std::uint8_t depth);

    xcb_connection_t *m_connection;
    std::uint8_t m_depth = 0;
    xcb_visualid_t m_visual = 0;
    xcb_colormap_t m_colourMap = 0;
    xcb_gcontext_t m_context = 0;
    std::optional<CXcbPixelFormat> m_format;
    std::size_t m_limit;                // bytes of an image
    std::vector<std::uint8_t> m_image;  // kept, since the next picture is often of the same size
};
