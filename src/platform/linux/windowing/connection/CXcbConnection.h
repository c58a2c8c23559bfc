#pragma once

#include "platform/linux/windowing/connection/IXcbEventHandler.h"
#include "platform/linux/windowing/connection/SXcbAtoms.h"
#include "platform/linux/windowing/connection/XcbReply.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CXcbCanvas;
class CXcbCursors;
class CXcbDrops;
class CXcbKeyboard;
class CXcbPointer;
class CXcbPopups;
class CXcbSelections;
class CXcbWindow;

/// A connection to the X server, which a window shares with all that belong to it: popups, text
/// fields. The last of them closes it. Nothing here waits for the server but open(), the end and
/// what says so. [gui thread]
class CXcbConnection : public std::enable_shared_from_this<CXcbConnection> {
public:
    /// Waits for the server. @return null if there is none, with the reason.
    static std::shared_ptr<CXcbConnection> open(std::string &reason);
    /// @return the connection with this window in its table; null for none.
    static std::shared_ptr<CXcbConnection> find(xcb_window_t window);
    /// @return the connection that is being pumped on this thread; else any that this thread has
    ///         opened; else null.
    static std::shared_ptr<CXcbConnection> current();
    /// @return all that this thread has opened.
    static std::vector<std::shared_ptr<CXcbConnection>> getAll();

    ~CXcbConnection();
    CXcbConnection(const CXcbConnection &) = delete;
    CXcbConnection &operator=(const CXcbConnection &) = delete;

    xcb_connection_t *get() const { return m_connection; }  ///< never null
    const xcb_screen_t &getScreen() const { return *m_screen; }
    const SXcbAtoms &getAtoms() const { return m_atoms; }
    bool isBroken() const;   ///< the server is gone; requests do nothing
    bool isPumping() const;  ///< whether pump() is running, so that nothing may wait for the server

    void addWindow(xcb_window_t id, CXcbWindow &window);
    void removeWindow(xcb_window_t id);
    CXcbWindow *windowOf(xcb_window_t id) const;  ///< null for a window of somebody else

    /// @return the outermost window of ours that a window lies in. What is to float above a child
    ///         has to float above that one.
    xcb_window_t ownerOf(xcb_window_t window) const;
    /// Destroys the windows that lie in a window or float above it.
    void endWindowsOf(xcb_window_t parent);
    /// Destroys the windows that were created with a window as parent, whoever owns them.
    void endWindowsOpenedBy(xcb_window_t opener);
    /// Tells all windows that the server is gone, if it is.
    void endWindowsIfBroken();

    /// Handles all events that have arrived, runs the timers that are due, paints what is invalid.
    /// Sends no request if there was nothing to do. Ends the windows if the server is gone.
    void pump();
    /// @return the descriptor that becomes readable when the server sends something.
    int getDescriptor() const;
    /// @return how long the next pump has nothing to do unless the server sends something, in
    ///         milliseconds; -1 for ever.
    int millisecondsToWork();
    /// Sends the requests that are waiting.
    void flush();
    /// @return whether the server takes a strip of a picture without making us wait. Gives a slow
    ///         one some time for that, but none again to one that hangs.
    bool canSendPicture();

    /// @return the time of the last event that had one, in milliseconds of the server.
    xcb_timestamp_t getTime() const { return m_time; }
    void setTime(xcb_timestamp_t time) { m_time = time; }

    CXcbCanvas &canvas() { return *m_canvas; }
    CXcbPointer &pointer() { return *m_pointer; }
    CXcbPopups &popups() { return *m_popups; }
    CXcbCursors &cursors() { return *m_cursors; }
    CXcbKeyboard &keyboard() { return *m_keyboard; }
    CXcbDrops &drops() { return *m_drops; }
    CXcbSelections &selections() { return *m_selections; }

private:
    using Event = TXcbReply<xcb_generic_event_t>;

    CXcbConnection(xcb_connection_t *connection, int screen);
    void waitForLastRequests() const;
    Event takeEvent();
    void handleEvent(const xcb_generic_event_t &event);
    void noteTime(const xcb_generic_event_t &event);
    /// Calls visit(window) for each window, also if windows come and go meanwhile.
    template <typename Visit>
    void forEachWindow(Visit visit);

    xcb_connection_t *m_connection;
    const xcb_screen_t *m_screen;  // owned by the connection
    SXcbAtoms m_atoms;
    std::map<xcb_window_t, CXcbWindow *> m_windows;  // not owned
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    Event m_next;              // taken from the queue already
    int m_depth = 0;           // of pumps that are running
    bool m_isHanging = false;  // has not taken a picture in time
    std::unique_ptr<CXcbCanvas> m_canvas;
    std::unique_ptr<CXcbPointer> m_pointer;
    std::unique_ptr<CXcbPopups> m_popups;
    std::unique_ptr<CXcbCursors> m_cursors;
    std::unique_ptr<CXcbKeyboard> m_keyboard;
    std::unique_ptr<CXcbDrops> m_drops;
    std::unique_ptr<CXcbSelections> m_selections;
};
