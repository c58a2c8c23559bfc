#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/windowing/drops/CXcbDrag.h"

#include <string>

/// Fetches the addresses of the files that were dropped. [gui thread]
class CXcbDropTransfer {
public:
    CXcbDropTransfer(CXcbConnection &connection, const CXcbDrag &drag);
    CXcbDropTransfer(const CXcbDropTransfer &) = delete;
    CXcbDropTransfer &operator=(const CXcbDropTransfer &) = delete;
    ~CXcbDropTransfer();

    enum class EState { Running, Complete, Failed };
    EState getState() const { return m_state; }
    const SXdndPartners &getPartners() const { return m_partners; }
    SNativePoint getPoint() const { return m_point; }  ///< in the target
    const std::string &getAddresses() const { return m_addresses; }

    /// @return whether the event is part of this transfer.
    bool handleEvent(const xcb_generic_event_t &event);
    void update();  ///< takes what the server has answered

private:
    void handleSelection(const xcb_selection_notify_event_t &event);
    void handleProperty(const xcb_property_notify_event_t &event);
    void fetchPart();
    EState stateAfter(const xcb_get_property_reply_t &part);

    CXcbConnection &m_connection;
    SXdndPartners m_partners;
    SNativePoint m_point;
    // A window for this transfer only: late answers to another one cannot be taken for its own.
    xcb_window_t m_requestor;
    EState m_state = EState::Running;
    bool m_isIncremental = false;
    std::string m_addresses;
    TXcbPendingReply<xcb_get_property_reply_t> m_part;
};
