#include "platform/linux/windowing/drops/XdndMessages.h"

namespace {

constexpr xcb_atom_t noAction = XCB_ATOM_NONE;
constexpr std::uint32_t acceptedFlag = 1, wantsPositionsFlag = 2;

void send(CXcbConnection &connection, xcb_window_t receiver, xcb_atom_t type,
          const xcb_client_message_data_t &data) {
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = receiver;
    message.type = type;
    message.data = data;
    xcb_send_event(connection.get(), 0, receiver, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
}

}  // namespace

void sendXdndStatus(CXcbConnection &connection, const SXdndPartners &partners, bool isAccepted) {
    xcb_client_message_data_t data = {};
    data.data32[0] = partners.target;
    // With an empty rectangle, in which no movement goes unreported.
    data.data32[1] = wantsPositionsFlag | (isAccepted ? acceptedFlag : 0);
    data.data32[4] = isAccepted ? connection.getAtoms().xdndActionCopy : noAction;
    send(connection, partners.source, connection.getAtoms().xdndStatus, data);
}

void sendXdndFinished(CXcbConnection &connection, const SXdndPartners &partners, bool isAccepted) {
    xcb_client_message_data_t data = {};
    data.data32[0] = partners.target;
    data.data32[1] = isAccepted ? acceptedFlag : 0;
    data.data32[2] = isAccepted ? connection.getAtoms().xdndActionCopy : noAction;
    send(connection, partners.source, connection.getAtoms().xdndFinished, data);
}
