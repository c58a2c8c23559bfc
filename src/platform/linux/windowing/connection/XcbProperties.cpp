#include "platform/linux/windowing/connection/XcbProperties.h"

#include "platform/linux/drawing/CMemoryBitmap.h"
#include "platform/linux/windowing/window/WindowStyles.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <iterator>
#include <span>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

/// The properties of one window.
class CProperties {
public:
    CProperties(CXcbConnection &connection, xcb_window_t window)
        : m_connection(connection), m_window(window) {}

    void setNumbers(xcb_atom_t property, xcb_atom_t type,
                    std::span<const std::uint32_t> numbers) const {
        set(property, type, 32, numbers.size(), numbers.data());
    }
    void setNumber(xcb_atom_t property, xcb_atom_t type, std::uint32_t number) const {
        setNumbers(property, type, {&number, 1});
    }
    void setText(xcb_atom_t property, xcb_atom_t type, std::string_view text) const {
        set(property, type, 8, text.size(), text.data());
    }
    void remove(xcb_atom_t property) const {
        xcb_delete_property(m_connection.get(), m_window, property);
    }

private:
    void set(xcb_atom_t property, xcb_atom_t type, std::uint8_t bits, std::size_t count,
             const void *data) const {
        // xcb ends a connection that asks for too much. An icon can be so large.
        if (count * bits / 32 + 16 > xcb_get_maximum_request_length(m_connection.get()))
            return;
        xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window, property, type,
                            bits, static_cast<std::uint32_t>(count), data);
    }

    CXcbConnection &m_connection;
    xcb_window_t m_window;
};

std::uint32_t plainPixel(std::uint32_t premultiplied) {
    const std::uint32_t alpha = premultiplied >> 24;
    std::uint32_t pixel = alpha << 24;
    for (int shift = 0; alpha > 0 && shift < 24; shift += 8)
        pixel |= std::min((premultiplied >> shift & 255) * 255 / alpha, 255u) << shift;
    return pixel;
}

/// _NET_WM_ICON: width, height, then the pixels, not premultiplied.
std::vector<std::uint32_t> iconNumbers(const CMemoryBitmap &icon) {
    std::vector<std::uint32_t> numbers = {static_cast<std::uint32_t>(icon.getWidth()),
                                          static_cast<std::uint32_t>(icon.getHeight())};
    std::transform(icon.getPixels().begin(), icon.getPixels().end(), std::back_inserter(numbers),
                   plainPixel);
    return numbers;
}

std::string hostName() {
    char name[HOST_NAME_MAX + 1] = {};
    gethostname(name, HOST_NAME_MAX);
    return name;
}

void describeManaged(const CProperties &properties, const SXcbAtoms &atoms,
                     const SNativeWindowOptions &options) {
    // The instance, then the class, each with its end.
    const std::string names = options.className + '\0' + options.className + '\0';
    properties.setText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, names);
    const std::uint32_t protocols[] = {atoms.wmDeleteWindow, atoms.netWmPing};
    properties.setNumbers(atoms.wmProtocols, XCB_ATOM_ATOM, protocols);
    properties.setText(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, hostName());
    properties.setNumber(atoms.netWmPid, XCB_ATOM_CARDINAL, static_cast<std::uint32_t>(getpid()));
    if (options.icon != nullptr)
        properties.setNumbers(atoms.netWmIcon, XCB_ATOM_CARDINAL,
                              iconNumbers(*static_cast<const CMemoryBitmap *>(options.icon)));
}

/// The window manager selects such events on the root window.
template <typename Event>
void sendToManager(CXcbConnection &connection, const Event &event) {
    char bytes[32] = {};  // the server reads so many of any event
    static_assert(sizeof event <= sizeof bytes);
    std::memcpy(bytes, &event, sizeof event);
    xcb_send_event(connection.get(), 0, connection.getScreen().root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   bytes);
}

bool hasProperty(CXcbConnection &connection, xcb_window_t window, xcb_atom_t property) {
    const auto reply = ownReply(xcb_get_property_reply(
        connection.get(),
        xcb_get_property(connection.get(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 0),
        nullptr));
    return reply && reply->type != XCB_NONE;
}

}  // namespace

void setXembedInfo(CXcbConnection &connection, xcb_window_t window, bool isShown) {
    const std::uint32_t versionAndFlags[] = {0, isShown ? 1u : 0u};
    const xcb_atom_t atom = connection.getAtoms().xembedInfo;
    CProperties(connection, window).setNumbers(atom, atom, versionAndFlags);
}

void nameWindow(CXcbConnection &connection, xcb_window_t window, const std::string &title) {
    const CProperties properties(connection, window);
    const SXcbAtoms &atoms = connection.getAtoms();
    properties.setText(XCB_ATOM_WM_NAME, atoms.utf8String, title);
    properties.setText(atoms.netWmName, atoms.utf8String, title);
}

void describeWindow(CXcbConnection &connection, xcb_window_t window,
                    const SNativeWindowOptions &options, xcb_window_t owner) {
    const CProperties properties(connection, window);
    const SXcbAtoms &atoms = connection.getAtoms();
    const bool isPopup = isPopupStyle(options.style);
    nameWindow(connection, window, options.title);
    properties.setNumber(atoms.netWmWindowType, XCB_ATOM_ATOM,
                         isPopup ? atoms.netWmWindowTypePopupMenu : atoms.netWmWindowTypeNormal);
    if (owner != XCB_NONE)
        properties.setNumber(XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, owner);
    if (!isPopup)
        describeManaged(properties, atoms, options);
}

void setSizeHints(CXcbConnection &connection, xcb_window_t window, std::uint32_t style,
                  const SNativeRect &bounds) {
    constexpr std::uint32_t hasPosition = 1, hasSize = 2, hasLeast = 16, hasGreatest = 32,
                            hasGravity = 512;
    const auto width = static_cast<std::uint32_t>(bounds.right - bounds.left);
    const auto height = static_cast<std::uint32_t>(bounds.bottom - bounds.top);
    std::array<std::uint32_t, 18> hints = {};
    hints[0] = hasPosition | hasSize | hasGravity;
    hints[17] = XCB_GRAVITY_STATIC;  // the position is that of the window, not of its frame
    if (!isResizableStyle(style)) {
        hints[0] |= hasLeast | hasGreatest;
        hints[5] = hints[7] = width;
        hints[6] = hints[8] = height;
    }
    CProperties(connection, window)
        .setNumbers(XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, hints);
}

void setOpacity(CXcbConnection &connection, xcb_window_t window, std::uint8_t alpha) {
    const CProperties properties(connection, window);
    const xcb_atom_t atom = connection.getAtoms().netWmWindowOpacity;
    if (alpha == 255)
        properties.remove(atom);
    else
        properties.setNumber(atom, XCB_ATOM_CARDINAL, alpha * 0x01010101u);
}

void askForActivation(CXcbConnection &connection, xcb_window_t window) {
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection.getAtoms().netActiveWindow;
    message.data.data32[0] = 1;  // from a normal program
    message.data.data32[1] = connection.getTime();
    sendToManager(connection, message);
}

void answerPing(CXcbConnection &connection, const xcb_client_message_event_t &ping) {
    xcb_client_message_event_t answer = ping;
    answer.window = connection.getScreen().root;
    sendToManager(connection, answer);
}

void withdraw(CXcbConnection &connection, xcb_window_t window) {
    xcb_unmap_notify_event_t message = {};
    message.response_type = XCB_UNMAP_NOTIFY;
    message.event = connection.getScreen().root;
    message.window = window;
    sendToManager(connection, message);
}

xcb_window_t findTopLevel(CXcbConnection &connection, xcb_window_t window) {
    for (;;) {
        if (hasProperty(connection, window, connection.getAtoms().wmState))
            return window;
        const auto tree = ownReply(xcb_query_tree_reply(
            connection.get(), xcb_query_tree(connection.get(), window), nullptr));
        if (!tree || tree->parent == XCB_NONE || tree->parent == tree->root)
            return window;
        window = tree->parent;
    }
}
