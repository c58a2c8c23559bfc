#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/windowing/connection/TXcbPendingReply.h"
#include "platform/linux/windowing/drops/XdndMessages.h"

#include <optional>

/// Something that is dragged over one of our windows. [gui thread]
class CXcbDrag {
public:
    /// @param enter  the XdndEnter message that it begins with.
    CXcbDrag(CXcbConnection &connection, const xcb_client_message_event_t &enter);

    const SXdndPartners &getPartners() const { return m_partners; }
    /// The source gets its answer once the window has decided whether it takes the files.
    /// @param point  on the screen.
    void moveTo(SNativePoint point);
    void drop(xcb_timestamp_t time) { m_dropTime = time; }
    bool isDropped() const { return m_dropTime.has_value(); }
    xcb_timestamp_t getDropTime() const { return m_dropTime.value_or(XCB_CURRENT_TIME); }

    void update();           ///< takes what the server has answered
    bool isSettled() const;  ///< whether the answers are there
    bool isAccepted() const;
    SNativePoint getPoint() const { return m_point.value_or(SNativePoint()); }  ///< in the window
    /// The source gets the answer that it waits for, if any: no.
    void refuse();

private:
    bool isInWindow() const;

    CXcbConnection &m_connection;
    SXdndPartners m_partners;
    bool m_offersFiles = false;
    bool m_owesStatus = false;
    std::optional<SNativePoint> m_point;
    std::optional<xcb_timestamp_t> m_dropTime;
    TXcbPendingReply<xcb_get_property_reply_t> m_types;
    TXcbPendingReply<xcb_translate_coordinates_reply_t> m_place;
};
