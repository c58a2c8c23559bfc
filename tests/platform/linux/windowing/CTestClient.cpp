#include "platform/linux/windowing/CTestClient.h"

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/connection/XcbReply.h"

#include <chrono>
#include <poll.h>
#include <stdexcept>

CTestClient::CTestClient() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("no X server");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

CTestClient::~CTestClient() {
    for (int key = 0; key < 256; ++key)
        if (m_keysDown[key] != 0)
            fake(XCB_KEY_RELEASE, key);
    for (int button = 0; button < 16; ++button)
        if (m_buttonsDown[button] != 0)
            fake(XCB_BUTTON_RELEASE, button);
    synchronise();
    xcb_disconnect(m_connection);
}

// Windows

xcb_window_t CTestClient::createWindow(const SNativeRect &area, xcb_window_t parent,
                                       bool isManaged) {
    const xcb_window_t window = xcb_generate_id(m_connection);
    const std::uint32_t values[] = {m_screen->black_pixel, isManaged ? 0u : 1u};
    xcb_create_window(
        m_connection, XCB_COPY_FROM_PARENT, window, parent != 0 ? parent : m_screen->root,
        static_cast<std::int16_t>(area.left), static_cast<std::int16_t>(area.top),
        static_cast<std::uint16_t>(area.right - area.left),
        static_cast<std::uint16_t>(area.bottom - area.top), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    xcb_map_window(m_connection, window);
    synchronise();
    return window;
}

void CTestClient::destroyWindow(xcb_window_t window) {
    xcb_destroy_window(m_connection, window);
    synchronise();
}

// The user's hands

void CTestClient::movePointer(int x, int y) {
    fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void CTestClient::press(int button) {
    m_buttonsDown[button] = 1;
    fake(XCB_BUTTON_PRESS, button);
}

void CTestClient::release(int button) {
    m_buttonsDown[button] = 0;
    fake(XCB_BUTTON_RELEASE, button);
}

void CTestClient::click(int button, int times) {
    for (; times > 0; --times) {
        press(button);
        release(button);
    }
}

void CTestClient::pressKey(xcb_keysym_t key) {
    const xcb_keycode_t keycode = keycodeOf(key);
    m_keysDown[keycode] = 1;
    fake(XCB_KEY_PRESS, keycode);
}

void CTestClient::releaseKey(xcb_keysym_t key) {
    const xcb_keycode_t keycode = keycodeOf(key);
    m_keysDown[keycode] = 0;
    fake(XCB_KEY_RELEASE, keycode);
}

void CTestClient::typeKey(xcb_keysym_t key) {
    pressKey(key);
    releaseKey(key);
}

void CTestClient::focus(xcb_window_t window) {
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    synchronise();
}

void CTestClient::fake(std::uint8_t type, int detail, int x, int y) {
    xcb_test_fake_input(m_connection, type, static_cast<std::uint8_t>(detail), XCB_CURRENT_TIME,
                        m_screen->root, static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                        0);
    synchronise();
}

xcb_keycode_t CTestClient::keycodeOf(xcb_keysym_t key) {
    const xcb_setup_t &setup = *xcb_get_setup(m_connection);
    const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const auto mapping = ownReply(xcb_get_keyboard_mapping_reply(
        m_connection, xcb_get_keyboard_mapping(m_connection, setup.min_keycode, count), nullptr));
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (int i = 0; i < count; ++i)
        if (keysyms[i * mapping->keysyms_per_keycode] == key)
            return static_cast<xcb_keycode_t>(setup.min_keycode + i);
    throw std::runtime_error("no such key");
}

// What the server tells

void CTestClient::synchronise() {
    ownReply(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

SNativeRect CTestClient::areaOf(xcb_window_t window) {
    const auto size = ownReply(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
    const auto origin = ownReply(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, m_screen->root, 0, 0),
        nullptr));
    if (!size || !origin)
        throw std::runtime_error("no such window");
    return {origin->dst_x, origin->dst_y, origin->dst_x + size->width,
            origin->dst_y + size->height};
}

std::uint32_t CTestClient::pixelOf(xcb_window_t window, int x, int y) {
    const auto image = ownReply(xcb_get_image_reply(
        m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), 1, 1, 0xFFFFFFFF),
        nullptr));
    if (!image)
        throw std::runtime_error("no such pixel");
    const std::uint8_t *bytes = xcb_get_image_data(image.get());
    return bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8 |
           static_cast<std::uint32_t>(bytes[2]) << 16;
}

bool CTestClient::canGrabPointer() {
    const auto reply = ownReply(xcb_grab_pointer_reply(
        m_connection,
        xcb_grab_pointer(m_connection, 0, m_screen->root, 0, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
    synchronise();
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

bool CTestClient::canGrabKeyboard() {
    const auto reply = ownReply(
        xcb_grab_keyboard_reply(m_connection,
                                xcb_grab_keyboard(m_connection, 0, m_screen->root, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
    synchronise();
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

// Our side

bool pumpUntil(const std::function<bool()> &isMet) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!isMet()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        for (const auto &connection : CXcbConnection::getAll()) {
            connection->flush();
            pollfd readable = {connection->getDescriptor(), POLLIN, 0};
            poll(&readable, 1, 1);
            connection->pump();
        }
    }
    return true;
}

namespace {

/// Waits until the server has handled all that was asked for, and has sent what this led to.
void synchroniseWith(const CXcbConnection &connection) {
    ownReply(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()),
                                       nullptr));
}

}  // namespace

void pumpAll(CTestClient &client) {
    for (const auto &connection : CXcbConnection::getAll()) {
        connection->flush();
        client.synchronise();
        synchroniseWith(*connection);
        connection->pump();
        synchroniseWith(*connection);
    }
}
