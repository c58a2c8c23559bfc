#include "platform/linux/windowing/drops/CTestDragSource.h"

#include "platform/linux/windowing/connection/XcbReply.h"

#include <algorithm>
#include <cstring>
#include <string_view>

CTestDragSource::CTestDragSource()
    : type(atomOf("text/uri-list")), window(m_client.createWindow({600, 0, 610, 10})) {}

xcb_atom_t CTestDragSource::atomOf(const char *name) {
    const auto reply = ownReply(xcb_intern_atom_reply(
        m_client.get(),
        xcb_intern_atom(m_client.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    return reply ? reply->atom : 0;
}

// Messages

void CTestDragSource::enter(xcb_window_t target, const std::vector<xcb_atom_t> &types,
                            unsigned version) {
    setSelectionOwner(window);
    std::vector<std::uint32_t> data = {window, version << 24 | (types.size() > 3 ? 1u : 0u)};
    for (std::size_t i = 0; i < std::min<std::size_t>(types.size(), 3); ++i)
        data.push_back(types[i]);
    if (types.size() > 3)
        setTypeList(XCB_ATOM_ATOM, 32, types);
    send(target, "XdndEnter", data);
}

void CTestDragSource::setTypeList(xcb_atom_t listType, std::uint8_t bits,
                                  const std::vector<std::uint32_t> &types) {
    xcb_change_property(m_client.get(), XCB_PROP_MODE_REPLACE, window, atomOf("XdndTypeList"),
                        listType, bits, static_cast<std::uint32_t>(types.size()), types.data());
}

void CTestDragSource::moveTo(xcb_window_t target, int x, int y) {
    const auto packed =
        static_cast<std::uint32_t>(x) << 16 | (static_cast<std::uint32_t>(y) & 0xFFFF);
    send(target, "XdndPosition", {window, 0, packed, XCB_CURRENT_TIME, atomOf("XdndActionCopy")});
}

void CTestDragSource::leave(xcb_window_t target) {
    send(target, "XdndLeave", {window});
}

void CTestDragSource::drop(xcb_window_t target) {
    if (!hasSelection)
        setSelectionOwner(XCB_NONE);
    send(target, "XdndDrop", {window, 0, XCB_CURRENT_TIME});
}

void CTestDragSource::setSelectionOwner(xcb_window_t owner) {
    xcb_set_selection_owner(m_client.get(), owner, atomOf("XdndSelection"), XCB_CURRENT_TIME);
}

void CTestDragSource::send(xcb_window_t target, const char *name,
                           const std::vector<std::uint32_t> &data) {
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = messageFormat;
    message.window = target;
    message.type = atomOf(name);
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(m_client.get(), 0, target, 0, reinterpret_cast<const char *>(&message));
    m_client.synchronise();
}

// Answers

void CTestDragSource::poll() {
    while (const auto event = ownReply(xcb_poll_for_event(m_client.get()))) {
        if (typeOf(*event) == XCB_CLIENT_MESSAGE)
            take(as<xcb_client_message_event_t>(*event));
        else if (typeOf(*event) == XCB_SELECTION_REQUEST)
            serve(as<xcb_selection_request_event_t>(*event));
        else if (typeOf(*event) == XCB_PROPERTY_NOTIFY && m_isSending &&
                 as<xcb_property_notify_event_t>(*event).state == XCB_PROPERTY_DELETE)
            sendPart();
    }
    m_client.synchronise();
}

bool CTestDragSource::runUntil(const std::function<bool()> &isMet) {
    return pumpUntil([&] {
        poll();
        return isMet();
    });
}

void CTestDragSource::take(const xcb_client_message_event_t &message) {
    const std::uint32_t *data = message.data.data32;
    if (message.type == atomOf("XdndStatus"))
        statuses.push_back({data[0], data[1], data[4]});
    if (message.type == atomOf("XdndFinished"))
        finishes.push_back({data[0], data[1], data[2]});
}

void CTestDragSource::serve(const xcb_selection_request_event_t &request) {
    if (!answers)
        return;
    m_request = request;
    if (partSize == 0) {
        xcb_change_property(
            m_client.get(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, type,
            format, static_cast<std::uint32_t>(addresses.size() * 8 / format), addresses.data());
    } else {
        m_isSending = true;
        m_sent = 0;
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_client.get(), request.requestor, XCB_CW_EVENT_MASK, &events);
        const auto size = static_cast<std::uint32_t>(addresses.size());
        xcb_change_property(m_client.get(), XCB_PROP_MODE_REPLACE, request.requestor,
                            request.property, atomOf("INCR"), 32, 1, &size);
    }
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = request.property;
    for (int i = 0; i < notifications; ++i)
        xcb_send_event(m_client.get(), 0, request.requestor, 0,
                       reinterpret_cast<const char *>(&notify));
}

void CTestDragSource::sendPart() {
    if (writesMore) {
        xcb_change_property(m_client.get(), XCB_PROP_MODE_REPLACE, m_request.requestor,
                            XCB_ATOM_CUT_BUFFER0, XCB_ATOM_STRING, 8, 0, nullptr);
        pumpAll(m_client);
        pumpAll(m_client);
    }
    const std::string_view rest = std::string_view(addresses).substr(m_sent, partSize);
    xcb_change_property(m_client.get(), XCB_PROP_MODE_REPLACE, m_request.requestor,
                        m_request.property, type, format,
                        static_cast<std::uint32_t>(rest.size() * 8 / format), rest.data());
    m_sent += rest.size();
    m_isSending = !rest.empty();
}
