#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// Frees what xcb has allocated.
struct SFreeReply {
    void operator()(void *memory) const { std::free(memory); }
};

template <typename Reply>
using TXcbReply = std::unique_ptr<Reply, SFreeReply>;

/// @param reply  may be null.
template <typename Reply>
TXcbReply<Reply> ownReply(Reply *reply) {
    return TXcbReply<Reply>(reply);
}

/// @return the event as what its type says that it is.
template <typename Event>
const Event &as(const xcb_generic_event_t &event) {
    return reinterpret_cast<const Event &>(event);
}

/// @return the type without the mark of events that a program has sent.
inline std::uint8_t typeOf(const xcb_generic_event_t &event) {
    return event.response_type & 0x7F;
}
