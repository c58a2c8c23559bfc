#include "platform/linux/windowing/drops/CXcbDrag.h"

#include "platform/linux/windowing/window/CXcbWindow.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t moreThanThreeTypes = 1;
constexpr std::uint32_t mostTypes = 4096;  // of those that a source lists

bool hasType(const xcb_get_property_reply_t &reply, xcb_atom_t type) {
    if (reply.type != XCB_ATOM_ATOM || reply.format != 32)
        return false;
    const auto *types = static_cast<const xcb_atom_t *>(xcb_get_property_value(&reply));
    return std::find(types, types + reply.value_len, type) != types + reply.value_len;
}

}  // namespace

CXcbDrag::CXcbDrag(CXcbConnection &connection, const xcb_client_message_event_t &enter)
    : m_connection(connection), m_partners{enter.data.data32[0], enter.window} {
    const xcb_atom_t files = connection.getAtoms().textUriList;
    const std::uint32_t *types = &enter.data.data32[2];
    m_offersFiles = std::find(types, types + 3, files) != types + 3;
    const bool hasList = (enter.data.data32[1] & moreThanThreeTypes) != 0;
    if (!m_offersFiles && hasList) {
        m_types.expect(connection.get(), xcb_get_property(connection.get(), 0, m_partners.source,
                                                          connection.getAtoms().xdndTypeList,
                                                          XCB_ATOM_ATOM, 0, mostTypes));
    }
}

void CXcbDrag::moveTo(SNativePoint point) {
    m_owesStatus = true;
    // The host may have moved the window without a word to it.
    m_place.expect(m_connection.get(),
                   xcb_translate_coordinates(m_connection.get(), m_connection.getScreen().root,
                                             m_partners.target, static_cast<std::int16_t>(point.x),
                                             static_cast<std::int16_t>(point.y)));
}

void CXcbDrag::update() {
    TXcbReply<xcb_get_property_reply_t> types;
    if (m_types.poll(types))
        m_offersFiles = types && hasType(*types, m_connection.getAtoms().textUriList);
    TXcbReply<xcb_translate_coordinates_reply_t> place;
    if (m_place.poll(place) && place)
        m_point = SNativePoint{place->dst_x, place->dst_y};
    if (isSettled() && std::exchange(m_owesStatus, false))
        sendXdndStatus(m_connection, m_partners, isAccepted());
}

bool CXcbDrag::isSettled() const {
    return !m_types.isPending() && !m_place.isPending();
}

bool CXcbDrag::isAccepted() const {
    return m_offersFiles && isInWindow();
}

bool CXcbDrag::isInWindow() const {
    const CXcbWindow *window = m_connection.windowOf(m_partners.target);
    if (window == nullptr || !window->isEnabled() || !m_point)
        return false;
    const SNativeRect area = window->getScreenArea();
    return m_point->x >= 0 && m_point->x < area.right - area.left && m_point->y >= 0 &&
           m_point->y < area.bottom - area.top;
}

void CXcbDrag::refuse() {
    if (std::exchange(m_owesStatus, false))
        sendXdndStatus(m_connection, m_partners, false);
    if (isDropped())
        sendXdndFinished(m_connection, m_partners, false);
}
