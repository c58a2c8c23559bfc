#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/pointer/CDoubleClick.h"
#include "platform/linux/windowing/pointer/CXcbGrab.h"

#include <cstdint>

/// Turns what the pointer does into mouse messages. [gui thread]
class CXcbPointer : public IXcbEventHandler {
public:
    explicit CXcbPointer(CXcbConnection &connection)
        : m_connection(connection), m_grab(connection) {}
    bool handleEvent(const xcb_generic_event_t &event) override;
    void forgetWindow(xcb_window_t window) override;

    void trackLeave(xcb_window_t window);  ///< see INativeWindow::trackMouseLeave()

    /// Sends all mouse messages of the connection to a window, also from outside it. Ignored for a
    /// window that is not of this connection.
    void capture(xcb_window_t window);
    /// Also gives back what the server grabbed for a pressed button.
    void release();
    xcb_window_t getCapture() const { return m_capture; }  ///< 0 for none

    /// On the screen. Waits for the server unless an event is being handled.
    SNativePoint getPosition() const;
    /// The modifier keys and buttons as in an event's state. Waits for the server unless an event
    /// is being handled.
    std::uint16_t getState() const;

    // For the popups
    CXcbGrab &grab() { return m_grab; }
    /// Gives back the grab of the popups. A drag that goes on gets one of its own.
    void endPopupGrab();

private:
    void note(const xcb_motion_notify_event_t &event);
    void handlePress(const xcb_button_press_event_t &event);
    void handleRelease(const xcb_button_release_event_t &event);
    void handleMotion(const xcb_motion_notify_event_t &event);
    void handleEnter(const xcb_enter_notify_event_t &event);
    void handleLeave(const xcb_leave_notify_event_t &event);
    void handleWheel(const xcb_button_press_event_t &event);
    void sendMotion(const xcb_motion_notify_event_t &event);
    void sendLostReleases(const xcb_motion_notify_event_t &event);
    void send(unsigned message, const xcb_motion_notify_event_t &event);
    bool isInside(const xcb_motion_notify_event_t &event) const;
    CXcbWindow *receiverOf(const xcb_motion_notify_event_t &event) const;
    SNativePoint positionIn(CXcbWindow &window, const xcb_motion_notify_event_t &event) const;
    void reportLeave();

    struct SEntered {
        xcb_window_t window = XCB_NONE;
        SNativePoint position;  // on the screen
        xcb_timestamp_t time = 0;
    };

    CXcbConnection &m_connection;
    CXcbGrab m_grab;
    CDoubleClick m_doubleClick;
    SEntered m_entered;                 // reported, though the server sends it as a motion as well
    SNativePoint m_position;            // on the screen
    std::uint16_t m_state = 0;          // as in the last event
    std::uint16_t m_down = 0;           // the buttons that are pressed, as in a state
    std::uint16_t m_downSent = 0;       // those of them that a message has reported
    bool m_isPressGrabbed = false;      // whether the server has grabbed for the pressed button
    xcb_window_t m_capture = XCB_NONE;  // has all messages
    xcb_window_t m_tracked = XCB_NONE;  // is to hear when the mouse leaves
    bool m_hasLeft = false;             // it has left that one, which has not been reported yet
};
