#include "platform/linux/windowing/drops/CXcbDropTransfer.h"

namespace {

constexpr std::uint32_t mostBytes = 16 << 20;  // of addresses; more is taken for a mistake

}  // namespace

CXcbDropTransfer::CXcbDropTransfer(CXcbConnection &connection, const CXcbDrag &drag)
    : m_connection(connection), m_partners(drag.getPartners()), m_point(drag.getPoint()),
      m_requestor(xcb_generate_id(connection.get())) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), 0, m_requestor, connection.getScreen().root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    xcb_convert_selection(connection.get(), m_requestor, connection.getAtoms().xdndSelection,
                          connection.getAtoms().textUriList, connection.getAtoms().selectionData,
                          drag.getDropTime());
}

CXcbDropTransfer::~CXcbDropTransfer() {
    xcb_destroy_window(m_connection.get(), m_requestor);
}

bool CXcbDropTransfer::handleEvent(const xcb_generic_event_t &event) {
    if (typeOf(event) == XCB_SELECTION_NOTIFY) {
        const auto &selection = as<xcb_selection_notify_event_t>(event);
        if (selection.requestor != m_requestor)
            return false;
        handleSelection(selection);
        return true;
    }
    if (typeOf(event) == XCB_PROPERTY_NOTIFY) {
        const auto &property = as<xcb_property_notify_event_t>(event);
        if (property.window != m_requestor)
            return false;
        handleProperty(property);
        return true;
    }
    return false;
}

void CXcbDropTransfer::handleSelection(const xcb_selection_notify_event_t &event) {
    if (m_state != EState::Running || m_isIncremental || m_part.isPending())
        return;
    if (event.property == m_connection.getAtoms().selectionData)
        fetchPart();
    else
        m_state = EState::Failed;
}

void CXcbDropTransfer::handleProperty(const xcb_property_notify_event_t &event) {
    // The source writes a part when it sees that we have taken the one before.
    update();
    if (m_state == EState::Running && m_isIncremental && !m_part.isPending() &&
        event.state == XCB_PROPERTY_NEW_VALUE &&
        event.atom == m_connection.getAtoms().selectionData)
        fetchPart();
}

void CXcbDropTransfer::fetchPart() {
    const std::uint8_t andDelete = 1;
    m_part.expect(m_connection.get(),
                  xcb_get_property(m_connection.get(), andDelete, m_requestor,
                                   m_connection.getAtoms().selectionData, XCB_GET_PROPERTY_TYPE_ANY,
                                   0, mostBytes / 4));
}

void CXcbDropTransfer::update() {
    TXcbReply<xcb_get_property_reply_t> part;
    if (m_part.poll(part))
        m_state = part ? stateAfter(*part) : EState::Failed;
}

CXcbDropTransfer::EState CXcbDropTransfer::stateAfter(const xcb_get_property_reply_t &part) {
    if (!m_isIncremental && part.type == m_connection.getAtoms().incr) {
        m_isIncremental = true;
        return EState::Running;
    }
    if (m_isIncremental && part.value_len == 0)
        return EState::Complete;
    if (part.type != m_connection.getAtoms().textUriList || part.format != 8 ||
        part.bytes_after > 0 || part.value_len > mostBytes - m_addresses.size())
        return EState::Failed;
    m_addresses.append(static_cast<const char *>(xcb_get_property_value(&part)), part.value_len);
    return m_isIncremental ? EState::Running : EState::Complete;
}
