#include "platform/linux/windowing/drops/CXcbDrops.h"

#include "platform/linux/windowing/drops/FileAddresses.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::uint32_t oldestVersion = 3, newestVersion = 5;
constexpr std::size_t mostTransfers = 4;  // some may never end, since their source has

std::string hostName() {
    char name[256] = {};
    gethostname(name, sizeof name - 1);
    return name;
}

SXdndPartners partnersOf(const xcb_client_message_event_t &message) {
    return {message.data.data32[0], message.window};
}

std::uintptr_t wParamOf(const void *arrival) {
    return reinterpret_cast<std::uintptr_t>(arrival);
}

}  // namespace

void CXcbDrops::announce(xcb_window_t window) {
    m_windows.insert(window);
    const xcb_atom_t version = newestVersion;
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, window,
                        m_connection.getAtoms().xdndAware, XCB_ATOM_ATOM, 32, 1, &version);
}

void CXcbDrops::forgetWindow(xcb_window_t window) {
    if (m_windows.erase(window) == 0)
        return;
    if (m_drag && m_drag->getPartners().target == window)
        endDrag();
    m_transfers.remove_if([&](const CXcbDropTransfer &transfer) {
        const bool isOfWindow = transfer.getPartners().target == window;
        if (isOfWindow)
            sendXdndFinished(m_connection, transfer.getPartners(), false);
        return isOfWindow;
    });
}

// The messages of the source

bool CXcbDrops::handleEvent(const xcb_generic_event_t &event) {
    if (typeOf(event) == XCB_CLIENT_MESSAGE)
        return handleMessage(as<xcb_client_message_event_t>(event));
    return std::any_of(m_transfers.begin(), m_transfers.end(),
                       [&](CXcbDropTransfer &transfer) { return transfer.handleEvent(event); });
}

bool CXcbDrops::handleMessage(const xcb_client_message_event_t &message) {
    if (message.format != 32 || m_windows.count(message.window) == 0)
        return false;
    const SXcbAtoms &atoms = m_connection.getAtoms();
    if (message.type == atoms.xdndEnter)
        handleEnter(message);
    else if (message.type == atoms.xdndPosition)
        handlePosition(message);
    else if (message.type == atoms.xdndLeave)
        handleLeave(message);
    else if (message.type == atoms.xdndDrop)
        handleDrop(message);
    else
        return false;
    return true;
}

void CXcbDrops::handleEnter(const xcb_client_message_event_t &message) {
    endDrag();
    const std::uint32_t version = message.data.data32[1] >> 24;
    if (version >= oldestVersion && version <= newestVersion)
        m_drag.emplace(m_connection, message);
}

void CXcbDrops::handlePosition(const xcb_client_message_event_t &message) {
    if (!isDragOf(message)) {
        sendXdndStatus(m_connection, partnersOf(message), false);
        return;
    }
    const std::uint32_t packed = message.data.data32[2];
    m_drag->moveTo(
        {static_cast<std::int16_t>(packed >> 16), static_cast<std::int16_t>(packed & 0xFFFF)});
}

void CXcbDrops::handleLeave(const xcb_client_message_event_t &message) {
    if (isDragOf(message))
        m_drag.reset();
}

void CXcbDrops::handleDrop(const xcb_client_message_event_t &message) {
    if (isDragOf(message))
        m_drag->drop(message.data.data32[2]);
    else
        sendXdndFinished(m_connection, partnersOf(message), false);
}

/// After the drop, the source has no more to say.
bool CXcbDrops::isDragOf(const xcb_client_message_event_t &message) const {
    const SXdndPartners partners = partnersOf(message);
    return m_drag && !m_drag->isDropped() && m_drag->getPartners().source == partners.source &&
           m_drag->getPartners().target == partners.target;
}

void CXcbDrops::endDrag() {
    if (m_drag)
        m_drag->refuse();
    m_drag.reset();
}

// What follows from the answers of the server

void CXcbDrops::pump() {
    if (m_drag)
        m_drag->update();
    if (m_drag && m_drag->isDropped() && m_drag->isSettled())
        startTransfer();
    takeTransfers();
}

void CXcbDrops::startTransfer() {
    if (!m_drag->isAccepted()) {
        endDrag();
        return;
    }
    if (m_transfers.size() == mostTransfers) {
        sendXdndFinished(m_connection, m_transfers.front().getPartners(), false);
        m_transfers.pop_front();
    }
    m_transfers.emplace_back(m_connection, *m_drag);
    m_drag.reset();
}

void CXcbDrops::takeTransfers() {
    for (CXcbDropTransfer &transfer : m_transfers)
        transfer.update();
    const auto hasEnded = [](const CXcbDropTransfer &transfer) {
        return transfer.getState() != CXcbDropTransfer::EState::Running;
    };
    // A report may end others, with their windows.
    for (;;) {
        const auto ended = std::find_if(m_transfers.begin(), m_transfers.end(), hasEnded);
        if (ended == m_transfers.end())
            return;
        std::list<CXcbDropTransfer> taken;
        taken.splice(taken.end(), m_transfers, ended);
        takeTransfer(taken.front());
    }
}

void CXcbDrops::takeTransfer(const CXcbDropTransfer &transfer) {
    auto arrival = std::make_unique<SArrival>();
    arrival->partners = transfer.getPartners();
    arrival->drop.position = transfer.getPoint();
    if (transfer.getState() == CXcbDropTransfer::EState::Complete)
        arrival->drop.names = filesOfAddresses(transfer.getAddresses(), hostName());
    if (arrival->drop.names.empty()) {
        sendXdndFinished(m_connection, arrival->partners, false);
        return;
    }
    report(*m_arrivals.emplace_back(std::move(arrival)));
}

void CXcbDrops::report(const SArrival &arrival) {
    const std::uintptr_t wParam = wParamOf(&arrival);
    if (CXcbWindow *window = m_connection.windowOf(arrival.partners.target))
        window->report(NativeDropFiles, wParam);
    finish(wParam);  // unless the window has done so
}

// The files

SNativeDrop CXcbDrops::read(std::uintptr_t wParam) const {
    const auto place = find(wParam);
    return place != m_arrivals.end() ? (*place)->drop : SNativeDrop();
}

void CXcbDrops::finish(std::uintptr_t wParam) {
    const auto place = find(wParam);
    if (place == m_arrivals.end())
        return;
    sendXdndFinished(m_connection, (*place)->partners, true);
    m_arrivals.erase(place);
}

CXcbDrops::Arrivals::const_iterator CXcbDrops::find(std::uintptr_t wParam) const {
    return std::find_if(m_arrivals.begin(), m_arrivals.end(),
                        [&](const auto &arrival) { return wParamOf(arrival.get()) == wParam; });
}
