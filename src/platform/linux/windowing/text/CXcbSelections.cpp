#include "platform/linux/windowing/text/CXcbSelections.h"

#include "platform/linux/windowing/connection/XcbReply.h"
#include "platform/linux/windowing/text/TextEncodings.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t pieceSize = 65536;  // bytes; fits into a request of any server

}  // namespace

bool CXcbSelections::handleEvent(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_SELECTION_REQUEST:
        handleRequest(as<xcb_selection_request_event_t>(event));
        return true;
    case XCB_SELECTION_CLEAR:
        handleClear(as<xcb_selection_clear_event_t>(event));
        return true;
    case XCB_PROPERTY_NOTIFY:
        handleProperty(as<xcb_property_notify_event_t>(event));
        break;
    case XCB_DESTROY_NOTIFY: {
        const xcb_window_t gone = as<xcb_destroy_notify_event_t>(event).window;
        std::erase_if(m_transfers,
                      [&](const STransfer &transfer) { return transfer.requestor == gone; });
        break;
    }
    default:
        break;
    }
    for (auto &[window, request] : m_requests)
        request.reader->handleEvent(event);
    return false;
}

void CXcbSelections::forgetWindow(xcb_window_t window) {
    m_requests.erase(window);
    std::erase_if(m_offers, [&](const auto &offer) {
        if (offer.second.window != window)
            return false;
        xcb_set_selection_owner(m_connection.get(), XCB_NONE, offer.first, offer.second.time);
        return true;
    });
}

// Reading

void CXcbSelections::request(xcb_window_t window, xcb_atom_t selection, TextCallback callback) {
    if (const auto own = m_offers.find(selection); own != m_offers.end())
        return callback(std::string(own->second.text));
    auto reader = std::make_unique<CXcbSelectionReader>(m_connection, selection);
    m_requests.insert_or_assign(window, SRequest{std::move(reader), std::move(callback)});
}

void CXcbSelections::pump() {
    for (auto &[window, request] : m_requests)
        request.reader->pump();
    // A callback may come here again, and may destroy windows.
    const auto isOver = [](const auto &entry) { return entry.second.reader->isOver(); };
    for (auto over = std::find_if(m_requests.begin(), m_requests.end(), isOver);
         over != m_requests.end();
         over = std::find_if(m_requests.begin(), m_requests.end(), isOver)) {
        const SRequest request = std::move(over->second);
        m_requests.erase(over);
        if (request.reader->hasText())
            request.callback(request.reader->getText());
    }
}

// Offering

void CXcbSelections::offer(xcb_window_t window, xcb_atom_t selection, std::string text) {
    const xcb_timestamp_t time = m_connection.getTime();
    m_offers[selection] = {window, std::move(text), time};
    xcb_set_selection_owner(m_connection.get(), ownerWindow(), selection, time);
}

xcb_window_t CXcbSelections::ownerWindow() {
    if (m_owner == XCB_NONE) {
        m_owner = xcb_generate_id(m_connection.get());
        xcb_create_window(m_connection.get(), 0, m_owner, m_connection.getScreen().root, 0, 0, 1, 1,
                          0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    }
    return m_owner;
}

void CXcbSelections::handleClear(const xcb_selection_clear_event_t &event) {
    const auto offer = m_offers.find(event.selection);
    // Unless it has been offered again since.
    if (offer != m_offers.end() && event.time >= offer->second.time)
        m_offers.erase(offer);
}

void CXcbSelections::handleRequest(const xcb_selection_request_event_t &event) {
    // Old programs name no property and mean the one with the name of the target.
    const xcb_atom_t property = event.property != XCB_NONE ? event.property : event.target;
    const bool isAnswered = answer(event, property);
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = event.time;
    notify.requestor = event.requestor;
    notify.selection = event.selection;
    notify.target = event.target;
    notify.property = isAnswered ? property : XCB_NONE;
    static_assert(sizeof notify <= 32);
    char bytes[32] = {};
    std::copy_n(reinterpret_cast<const char *>(&notify), sizeof notify, bytes);
    xcb_send_event(m_connection.get(), 0, event.requestor, 0, bytes);
}

bool CXcbSelections::answer(const xcb_selection_request_event_t &event, xcb_atom_t property) {
    const auto offer = m_offers.find(event.selection);
    if (offer == m_offers.end())
        return false;
    const SXcbAtoms &atoms = m_connection.getAtoms();
    const auto put = [&](xcb_atom_t type, std::uint32_t count, const void *values) {
        xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, event.requestor, property,
                            type, 32, count, values);
    };
    if (event.target == atoms.targets) {
        const xcb_atom_t targets[] = {atoms.targets, atoms.timestamp, atoms.utf8String, atoms.text,
                                      XCB_ATOM_STRING};
        put(XCB_ATOM_ATOM, std::size(targets), targets);
    } else if (event.target == atoms.timestamp) {
        put(XCB_ATOM_INTEGER, 1, &offer->second.time);
    } else if (event.target == atoms.utf8String || event.target == atoms.text) {
        sendText(event.requestor, property, atoms.utf8String, offer->second.text);
    } else if (event.target == XCB_ATOM_STRING) {
        sendText(event.requestor, property, XCB_ATOM_STRING, latin1FromUtf8(offer->second.text));
    } else {
        return false;
    }
    return true;
}

void CXcbSelections::sendText(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type,
                              std::string text) {
    if (text.size() <= pieceSize) {
        xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, requestor, property, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
        return;
    }
    std::erase_if(m_transfers, [&](const STransfer &other) {
        return other.requestor == requestor && other.property == property;
    });
    // The requestor deletes the property to ask for each piece.
    const auto size = static_cast<std::uint32_t>(text.size());
    m_transfers.push_back({requestor, property, type, std::move(text), 0});
    selectRequestor(requestor);
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, requestor, property,
                        m_connection.getAtoms().incr, 32, 1, &size);
}

void CXcbSelections::handleProperty(const xcb_property_notify_event_t &event) {
    const auto transfer =
        std::find_if(m_transfers.begin(), m_transfers.end(), [&](const STransfer &candidate) {
            return candidate.requestor == event.window && candidate.property == event.atom;
        });
    if (event.state != XCB_PROPERTY_DELETE || transfer == m_transfers.end() || sendPiece(*transfer))
        return;
    m_transfers.erase(transfer);
    selectRequestor(event.window);
}

// An empty piece is the last. @return false after it
bool CXcbSelections::sendPiece(STransfer &transfer) {
    const std::size_t size = std::min(pieceSize, transfer.text.size() - transfer.sent);
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, transfer.requestor,
                        transfer.property, transfer.type, 8, static_cast<std::uint32_t>(size),
                        transfer.text.data() + transfer.sent);
    transfer.sent += size;
    return size > 0;
}

// Hears of a requestor as long as a text is being sent to it.
void CXcbSelections::selectRequestor(xcb_window_t requestor) {
    const bool isInUse =
        std::any_of(m_transfers.begin(), m_transfers.end(),
                    [&](const STransfer &transfer) { return transfer.requestor == requestor; });
    const std::uint32_t events =
        isInUse ? XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY : 0u;
    xcb_change_window_attributes(m_connection.get(), requestor, XCB_CW_EVENT_MASK, &events);
}
