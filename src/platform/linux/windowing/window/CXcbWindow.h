#pragma once

#include "platform/INativeWindow.h"
#include "platform/linux/drawing/Spans.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/window/CXcbTimers.h"

/// A window of the X server: a child of a host's window, a popup, or a top level window. [gui
/// thread]
class CXcbWindow : public INativeWindow {
public:
    explicit CXcbWindow(INativeWindowListener &listener) : m_listener(listener) {}
    ~CXcbWindow() override;
    CXcbWindow(const CXcbWindow &) = delete;
    CXcbWindow &operator=(const CXcbWindow &) = delete;

    /// Waits for the server. @return false if it refuses, with the reason.
    bool create(const SNativeWindowOptions &options, std::string &reason);

    void *getHandle() const override;
    SNativeRect getScreenArea() const override;
    void show() override;
    void hide() override;
    void enable(bool isEnabled) override;
    void bringToFront() override;
    void setTitle(const std::string &title) override;
    void setAlpha(std::uint8_t alpha) override;
    void move(SNativePoint position) override;
    void moveAndResize(const SNativeRect &bounds) override;
    void invalidate(const SNativeRect &area) override;
    void update() override;
    void paint(const PaintCallback &callback) override;
    bool startTimer(int id, int milliseconds) override;
    void stopTimer(int id) override;
    void pump() override;
    void trackMouseLeave() override;
    void hookWheel() override {}
    void unhookWheel() override {}

    // For the parts of the connection
    CXcbConnection &getConnection() const { return *m_connection; }
    xcb_window_t getId() const { return m_id; }          ///< 0 once it is gone
    xcb_window_t getParent() const { return m_parent; }  ///< or owner; 0 for none
    xcb_window_t getOpener() const { return m_opener; }  ///< that it was created with as parent
    /// @return the window that it floats above or lies in, as the window manager knows it; 0 for
    ///         none.
    xcb_window_t getTopLevel() const { return m_topLevel; }
    bool isChild() const { return m_kind == EKind::Child; }
    bool isPopup() const { return m_kind == EKind::Popup; }
    bool isShown() const { return m_isShown; }
    bool isEnabled() const { return m_isEnabled; }
    /// Where its origin is on the screen, from the last event; saves asking the server.
    void setScreenOrigin(SNativePoint origin) { m_origin = origin; }
    /// Asks the server for further events, or for those no more.
    /// @param mask  of XCB_EVENT_MASK_KEY_PRESS and the like.
    void selectEvents(std::uint32_t mask);
    void unselectEvents(std::uint32_t mask);
    /// Reports a message to the listener, which may destroy the window. A disabled window reports
    /// neither mouse nor keys.
    /// @return the result; nothing for what the system does by default.
    std::optional<std::intptr_t> report(unsigned message, std::uintptr_t wParam = 0,
                                        std::intptr_t lParam = 0);
    /// The server has destroyed the window, or is gone itself.
    void handleEnd();
    void end();  ///< destroys the window, as Windows does when its owner goes
    /// A part of the window was painted.
    /// @param request  its number in the connection.
    void handlePainted(const SNativeRect &part, unsigned request);
    void runTimers();  ///< reports those that are due
    /// @return until a timer is due or, if it is now, something is to be painted; -1 for never.
    int millisecondsToWork() const;
    /// What concerns the window itself: exposures, sizes, mapping, destruction, closing.
    void handleEvent(const xcb_generic_event_t &event);

private:
    enum class EKind { Child, Popup, TopLevel };

    bool createOnServer(const SNativeWindowOptions &options, std::string &reason);
    SNativePoint getScreenOrigin() const;  // waits for the server
    SNativeRect getArea() const;           // in the window
    void raise();
    void takeBounds(const SNativeRect &bounds);
    void setEventMask(std::uint32_t mask);

    void reportMove();
    void reportSize();
    bool reportDestroy();  // returns false if the window is gone then
    bool needsPainting() const;
    void handleDestroyed();
    void close();
    void handleExpose(const xcb_generic_event_t &event);
    void handleConfigure(const xcb_generic_event_t &event);
    void handleReparent(const xcb_reparent_notify_event_t &event);
    void handleClientMessage(const xcb_client_message_event_t &event);

    INativeWindowListener &m_listener;
    std::shared_ptr<CXcbConnection> m_connection;
    xcb_window_t m_id = 0;
    std::uint32_t m_style = 0;
    EKind m_kind = EKind::Child;
    xcb_window_t m_parent = 0, m_opener = 0, m_topLevel = 0;
    SNativeRect m_bounds;   // in the parent; of others than children, on the screen
    SNativePoint m_origin;  // on the screen
    std::uint32_t m_eventMask = 0;
    std::uint8_t m_alpha = 255;
    bool m_isShown = false, m_isEnabled = true;
    bool m_isMapped = false;  // as far as we know; else there is nothing to paint on
    bool m_isFramed = false;  // by a window manager
    bool m_isDestroyReported = false;
    SNativeRect m_dirty;
    unsigned m_configured = 0;  // the number of the last request to move or resize
    unsigned m_painted = 0;     // of the last request that painted the whole window
    CXcbTimers m_timers;
    const std::shared_ptr<const int> m_life = std::make_shared<int>();  // ends with the window
};
