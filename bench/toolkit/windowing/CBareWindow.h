#pragma once

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <vector>
#include <xcb/xcb.h>

/// A window without the toolkit: the requests alone that an event and its picture take.
class CBareWindow {
public:
    CBareWindow(int width, int height) : m_connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_connection) != 0)
            throw std::runtime_error("no X server");
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_depth = screen->root_depth;
        m_window = xcb_generate_id(m_connection);
        m_context = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0,
                          static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_create_gc(m_connection, m_context, m_window, 0, nullptr);
        xcb_map_window(m_connection, m_window);
        synchronise();
    }
    CBareWindow(const CBareWindow &) = delete;
    CBareWindow &operator=(const CBareWindow &) = delete;
    ~CBareWindow() { xcb_disconnect(m_connection); }

    xcb_connection_t *get() const { return m_connection; }
    xcb_window_t getId() const { return m_window; }

    /// @return whether an event had arrived, which is then gone.
    bool takeEvent() {
        xcb_generic_event_t *event = xcb_poll_for_event(m_connection);
        std::free(event);
        return event != nullptr;
    }
    void putImage(int x, int y, int width, int height) {
        m_pixels.resize(static_cast<std::size_t>(width * height));
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_context,
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height),
                      static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0, m_depth,
                      static_cast<std::uint32_t>(m_pixels.size() * sizeof m_pixels[0]),
                      reinterpret_cast<const std::uint8_t *>(m_pixels.data()));
        xcb_flush(m_connection);
    }
    void synchronise() {
        std::free(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
    xcb_gcontext_t m_context;
    std::uint8_t m_depth;
    std::vector<std::uint32_t> m_pixels;
};
