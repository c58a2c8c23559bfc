#pragma once

#include "platform/NativeDrop.h"
#include "platform/linux/windowing/drops/CXcbDropTransfer.h"

#include <list>
#include <memory>
#include <optional>
#include <set>
#include <vector>

/// Files that are dragged from other programs, by version 5 of the XDND protocol. Nothing waits for
/// these programs or for the server. [gui thread]
class CXcbDrops : public IXcbEventHandler {
public:
    explicit CXcbDrops(CXcbConnection &connection) : m_connection(connection) {}
    bool handleEvent(const xcb_generic_event_t &event) override;
    void forgetWindow(xcb_window_t window) override;
    /// Once per pump: reports the files whose names have arrived, as NativeDropFiles.
    void pump();

    void announce(xcb_window_t window);  ///< that the window takes files

    // For use in NativeDropFiles
    /// @return the files; none after finish().
    SNativeDrop read(std::uintptr_t wParam) const;
    void finish(std::uintptr_t wParam);  ///< tells the source

private:
    /// Files that are being handed to a window.
    struct SArrival {
        SXdndPartners partners;
        SNativeDrop drop;
    };
    using Arrivals = std::vector<std::unique_ptr<SArrival>>;

    bool handleMessage(const xcb_client_message_event_t &message);
    void handleEnter(const xcb_client_message_event_t &message);
    void handlePosition(const xcb_client_message_event_t &message);
    void handleLeave(const xcb_client_message_event_t &message);
    void handleDrop(const xcb_client_message_event_t &message);
    bool isDragOf(const xcb_client_message_event_t &message) const;
    void endDrag();

    void startTransfer();
    void takeTransfers();
    void takeTransfer(const CXcbDropTransfer &transfer);
    void report(const SArrival &arrival);
    Arrivals::const_iterator find(std::uintptr_t wParam) const;

    CXcbConnection &m_connection;
    std::set<xcb_window_t> m_windows;  // that take files
    std::optional<CXcbDrag> m_drag;
    std::list<CXcbDropTransfer> m_transfers;  // the oldest first
    Arrivals m_arrivals;
};
