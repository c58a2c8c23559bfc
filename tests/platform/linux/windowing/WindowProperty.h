#pragma once

#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/connection/XcbReply.h"

#include <string>
#include <string_view>
#include <vector>

inline xcb_atom_t atomOf(CTestClient &client, std::string_view name) {
    const auto reply = ownReply(xcb_intern_atom_reply(
        client.get(),
        xcb_intern_atom(client.get(), 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : XCB_NONE;
}

/// @return the bytes of a window's property; "" if it has none.
inline std::string textOf(CTestClient &client, xcb_window_t window, std::string_view name) {
    const auto reply = ownReply(
        xcb_get_property_reply(client.get(),
                               xcb_get_property(client.get(), 0, window, atomOf(client, name),
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, 10000),
                               nullptr));
    if (!reply)
        return "";
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    return {static_cast<const char *>(xcb_get_property_value(reply.get())), length};
}

/// @return the numbers of a window's property.
inline std::vector<std::uint32_t> numbersOf(CTestClient &client, xcb_window_t window,
                                            std::string_view name) {
    const std::string bytes = textOf(client, window, name);
    std::vector<std::uint32_t> numbers(bytes.size() / sizeof(std::uint32_t));
    std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char *>(numbers.data()));
    return numbers;
}
