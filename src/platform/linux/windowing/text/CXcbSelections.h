#pragma once

#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/text/CXcbSelectionReader.h"

#include <functional>
#include <string>

/// The texts that programs share: the clipboard and the primary selection. [gui thread]
class CXcbSelections : public IXcbEventHandler {
public:
    explicit CXcbSelections(CXcbConnection &connection) : m_connection(connection) {}
    bool handleEvent(const xcb_generic_event_t &event) override;
    void forgetWindow(xcb_window_t window) override;
    void pump();  ///< once per pump: calls back where a text has arrived

    /// Offers a text to other programs for as long as the window exists. X keeps no copy: once the
    /// editor is closed, there is nothing left to paste.
    /// @param selection  the atom of the clipboard, or XCB_ATOM_PRIMARY.
    /// @param text       UTF-8.
    void offer(xcb_window_t window, xcb_atom_t selection, std::string text);
    using TextCallback = std::function<void(const std::string &)>;
    /// Asks for the text of a selection. The callback comes in a later pump, or never if there is
    /// no text, the owner does not answer, the window is gone by then, or has asked again; at once
    /// if the text is our own.
    void request(xcb_window_t window, xcb_atom_t selection, TextCallback callback);

private:
    struct SOffer {
        xcb_window_t window;  // that it is offered for
        std::string text;
        xcb_timestamp_t time;
    };
    struct SRequest {
        std::unique_ptr<CXcbSelectionReader> reader;
        TextCallback callback;
    };
    /// A text that is too large for one property.
    struct STransfer {
        xcb_window_t requestor;
        xcb_atom_t property, type;
        std::string text;
        std::size_t sent;
    };

    xcb_window_t ownerWindow();
    void handleClear(const xcb_selection_clear_event_t &event);
    void handleRequest(const xcb_selection_request_event_t &event);
    bool answer(const xcb_selection_request_event_t &event, xcb_atom_t property);
    void sendText(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, std::string text);
    void handleProperty(const xcb_property_notify_event_t &event);
    bool sendPiece(STransfer &transfer);
    void selectRequestor(xcb_window_t requestor);

    CXcbConnection &m_connection;
    xcb_window_t m_owner = XCB_NONE;  // an invisible window; made for the first offer
    std::map<xcb_atom_t, SOffer> m_offers;
    std::map<xcb_window_t, SRequest> m_requests;
    std::vector<STransfer> m_transfers;
};
