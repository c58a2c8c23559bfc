#include "platform/linux/windowing/connection/CXcbConnection.h"

#include "platform/linux/windowing/connection/CNoPipeSignal.h"
#include "platform/linux/windowing/drops/CXcbDrops.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"
#include "platform/linux/windowing/pointer/CXcbCursors.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/text/CXcbSelections.h"
#include "platform/linux/windowing/window/CXcbCanvas.h"
#include "platform/linux/windowing/window/CXcbPopups.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <algorithm>
#include <chrono>
#include <mutex>
#include <poll.h>
#include <thread>
#include <utility>

namespace {

/// The connections of the process, each with the thread that has opened it and uses it.
struct SOpenConnections {
    std::mutex lock;
    std::map<CXcbConnection *, std::thread::id> threads;
};

SOpenConnections &openConnections() {
    static SOpenConnections connections;
    return connections;
}

// A grab that was refused is asked for again by each pump.
constexpr int millisecondsBetweenGrabs = 50;

constexpr int millisecondsForSlowServer = 200;

thread_local CXcbConnection *pumped = nullptr;

/// Makes a connection the current one of this thread, and counts its pumps.
class CPumping {
public:
    CPumping(CXcbConnection &connection, int &depth)
        : m_before(std::exchange(pumped, &connection)), m_depth(depth) {
        ++m_depth;
    }
    CPumping(const CPumping &) = delete;
    CPumping &operator=(const CPumping &) = delete;
    ~CPumping() {
        --m_depth;
        pumped = m_before;
    }

private:
    CXcbConnection *m_before;
    int &m_depth;
};

/// Whether nothing is lost if the first of two events is left out.
bool isOvertaken(const xcb_generic_event_t &first, const xcb_generic_event_t &second) {
    if (first.response_type != XCB_MOTION_NOTIFY || second.response_type != XCB_MOTION_NOTIFY)
        return false;
    const auto &before = as<xcb_motion_notify_event_t>(first);
    const auto &after = as<xcb_motion_notify_event_t>(second);
    return before.event == after.event && before.state == after.state;
}

}  // namespace

// The open connections

std::shared_ptr<CXcbConnection> CXcbConnection::open(std::string &reason) {
    int screen = 0;
    xcb_connection_t *connection = xcb_connect(nullptr, &screen);  // never null
    if (xcb_connection_has_error(connection) != 0) {
        xcb_disconnect(connection);
        reason = "No X server can be reached.";
        return nullptr;
    }
    std::shared_ptr<CXcbConnection> opened(new CXcbConnection(connection, screen));
    const std::lock_guard held(openConnections().lock);
    openConnections().threads[opened.get()] = std::this_thread::get_id();
    return opened;
}

std::vector<std::shared_ptr<CXcbConnection>> CXcbConnection::getAll() {
    std::vector<std::shared_ptr<CXcbConnection>> all;
    const std::lock_guard held(openConnections().lock);
    for (const auto &[connection, thread] : openConnections().threads) {
        if (thread != std::this_thread::get_id())
            continue;
        if (std::shared_ptr<CXcbConnection> alive = connection->weak_from_this().lock())
            all.push_back(std::move(alive));
    }
    return all;
}

std::shared_ptr<CXcbConnection> CXcbConnection::find(xcb_window_t window) {
    // The host may open a window on one thread and pump on another.
    if (pumped != nullptr && pumped->windowOf(window) != nullptr)
        return pumped->shared_from_this();
    for (const auto &connection : getAll())
        if (connection->windowOf(window) != nullptr)
            return connection;
    return nullptr;
}

std::shared_ptr<CXcbConnection> CXcbConnection::current() {
    if (pumped != nullptr)
        return pumped->shared_from_this();
    const auto all = getAll();
    return all.empty() ? nullptr : all.front();
}

CXcbConnection::CXcbConnection(xcb_connection_t *connection, int screen)
    : m_connection(connection), m_atoms(internAtoms(connection)),
      m_pointer(std::make_unique<CXcbPointer>(*this)),
      m_popups(std::make_unique<CXcbPopups>(*this)),
      m_keyboard(std::make_unique<CXcbKeyboard>(*this)),
      m_drops(std::make_unique<CXcbDrops>(*this)),
      m_selections(std::make_unique<CXcbSelections>(*this)) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screen > 0 && screens.rem > 1; --screen)
        xcb_screen_next(&screens);
    m_screen = screens.data;
    m_canvas = std::make_unique<CXcbCanvas>(connection, *m_screen);
    m_cursors = std::make_unique<CXcbCursors>(*this);
}

CXcbConnection::~CXcbConnection() {
    {
        const std::lock_guard held(openConnections().lock);
        openConnections().threads.erase(this);
    }
    m_cursors.reset();
    m_keyboard.reset();
    m_drops.reset();
    waitForLastRequests();
    xcb_disconnect(m_connection);
}

// A server that cannot send an event because the client is gone ignores the requests that it has
// not read, and with them one that gives the keyboard back. Not for ever: it may hang.
void CXcbConnection::waitForLastRequests() const {
    const CNoPipeSignal guard;
    const unsigned last = xcb_get_input_focus(m_connection).sequence;
    xcb_flush(m_connection);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    void *reply = nullptr;
    xcb_generic_error_t *error = nullptr;
    while (xcb_poll_for_reply(m_connection, last, &reply, &error) == 0 &&
           std::chrono::steady_clock::now() < deadline) {
        pollfd readable = {getDescriptor(), POLLIN, 0};
        poll(&readable, 1, 50);
    }
    ownReply(reply);
    ownReply(error);
}

bool CXcbConnection::isBroken() const {
    return xcb_connection_has_error(m_connection) != 0;
}

bool CXcbConnection::isPumping() const {
    return m_depth > 0;
}

int CXcbConnection::getDescriptor() const {
    return xcb_get_file_descriptor(m_connection);
}

void CXcbConnection::flush() {
    const CNoPipeSignal guard;
    xcb_flush(m_connection);
}

bool CXcbConnection::canSendPicture() {
    pollfd writable = {getDescriptor(), POLLOUT, 0};
    m_isHanging = poll(&writable, 1, m_isHanging ? 0 : millisecondsForSlowServer) == 0;
    return !m_isHanging;
}

// The windows

void CXcbConnection::addWindow(xcb_window_t id, CXcbWindow &window) {
    m_windows[id] = &window;
}

void CXcbConnection::removeWindow(xcb_window_t id) {
    m_windows.erase(id);
    const std::initializer_list<IXcbEventHandler *> parts = {
        m_pointer.get(), m_popups.get(), m_keyboard.get(), m_drops.get(), m_selections.get()};
    for (IXcbEventHandler *part : parts)
        part->forgetWindow(id);
    m_cursors->forgetWindow(id);
}

CXcbWindow *CXcbConnection::windowOf(xcb_window_t id) const {
    const auto place = m_windows.find(id);
    return place != m_windows.end() ? place->second : nullptr;
}

template <typename Visit>
void CXcbConnection::forEachWindow(Visit visit) {
    for (auto place = m_windows.begin(); place != m_windows.end();) {
        const xcb_window_t id = place->first;
        visit(*place->second);
        place = m_windows.upper_bound(id);
    }
}

xcb_window_t CXcbConnection::ownerOf(xcb_window_t window) const {
    const CXcbWindow *found = windowOf(window);
    for (; found != nullptr && found->isChild(); found = windowOf(window))
        window = found->getParent();
    return window;
}

void CXcbConnection::endWindowsOf(xcb_window_t parent) {
    forEachWindow([parent](CXcbWindow &window) {
        if (window.getParent() == parent)
            window.end();
    });
}

void CXcbConnection::endWindowsOpenedBy(xcb_window_t opener) {
    forEachWindow([opener](CXcbWindow &window) {
        if (window.getOpener() == opener)
            window.end();
    });
}

void CXcbConnection::endWindowsIfBroken() {
    if (isBroken())
        forEachWindow([](CXcbWindow &window) { window.handleEnd(); });
}

int CXcbConnection::millisecondsToWork() {
    // While it sends, xcb may also read events, which the descriptor then does not announce.
    if (!m_next)
        m_next.reset(xcb_poll_for_queued_event(m_connection));
    if (m_next)
        return 0;
    int nearest = m_popups->isEmpty() ? -1 : millisecondsBetweenGrabs;
    for (const auto &[id, window] : m_windows) {
        const int milliseconds = window->millisecondsToWork();
        if (milliseconds >= 0 && (nearest < 0 || milliseconds < nearest))
            nearest = milliseconds;
    }
    return nearest;
}

// Events

void CXcbConnection::pump() {
    const std::shared_ptr<CXcbConnection> held = shared_from_this();
    const CPumping pumping(*this, m_depth);
    while (const Event event = takeEvent())
        handleEvent(*event);
    endWindowsIfBroken();
    if (isBroken())
        return;
    m_popups->pump();
    m_drops->pump();
    m_selections->pump();
    forEachWindow([](CXcbWindow &window) { window.runTimers(); });
    forEachWindow([](CXcbWindow &window) { window.update(); });
    flush();
}

CXcbConnection::Event CXcbConnection::takeEvent() {
    Event event = m_next ? std::move(m_next) : Event(xcb_poll_for_event(m_connection));
    while (event && event->response_type == XCB_MOTION_NOTIFY) {
        m_next.reset(xcb_poll_for_queued_event(m_connection));
        if (!m_next || !isOvertaken(*event, *m_next))
            break;
        event = std::move(m_next);
    }
    return event;
}

void CXcbConnection::handleEvent(const xcb_generic_event_t &event) {
    // An error tells of a window that somebody else has destroyed, which is reported in other ways.
    if (event.response_type == 0)
        return;
    noteTime(event);
    const std::initializer_list<IXcbEventHandler *> parts = {
        m_popups.get(), m_pointer.get(), m_keyboard.get(), m_drops.get(), m_selections.get()};
    const bool isTaken = std::any_of(parts.begin(), parts.end(), [&](IXcbEventHandler *part) {
        return part->handleEvent(event);
    });
    if (!isTaken)
        forEachWindow([&](CXcbWindow &window) { window.handleEvent(event); });
}

void CXcbConnection::noteTime(const xcb_generic_event_t &event) {
    switch (typeOf(event)) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
    case XCB_MOTION_NOTIFY:
    case XCB_ENTER_NOTIFY:
    case XCB_LEAVE_NOTIFY:
        m_time = as<xcb_key_press_event_t>(event).time;  // at the same place in all of these
        break;
    case XCB_PROPERTY_NOTIFY:
        m_time = as<xcb_property_notify_event_t>(event).time;
        break;
    default:
        break;
    }
}
