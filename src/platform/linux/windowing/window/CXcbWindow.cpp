#include "platform/linux/windowing/window/CXcbWindow.h"

#include "platform/linux/windowing/connection/CNoPipeSignal.h"
#include "platform/linux/windowing/connection/XcbProperties.h"
#include "platform/linux/windowing/drops/CXcbDrops.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"
#include "platform/linux/windowing/window/CXcbCanvas.h"
#include "platform/linux/windowing/window/CXcbPainting.h"
#include "platform/linux/windowing/window/CXcbPopups.h"
#include "platform/linux/windowing/window/WindowStyles.h"
#include "values/ToPointer.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t firstEventMask =
    XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE |
    XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
    XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;

xcb_window_t windowIdOf(const void *handle) {
    return static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(handle));
}

CXcbTimers::Time now() {
    return std::chrono::steady_clock::now();
}

bool isEmpty(const SNativeRect &rect) {
    return SArea(rect).isEmpty();
}

/// @return the rectangle around both.
SNativeRect unionOf(const SNativeRect &first, const SNativeRect &second) {
    if (isEmpty(first) || isEmpty(second))
        return isEmpty(first) ? second : first;
    return {std::min(first.left, second.left), std::min(first.top, second.top),
            std::max(first.right, second.right), std::max(first.bottom, second.bottom)};
}

/// @return bounds that X can express: no window is empty.
SNativeRect possibleBounds(const SNativeRect &bounds) {
    constexpr std::int64_t greatest = 32767;
    const SArea area = bounds;
    const std::int64_t left = std::clamp(area.left, -greatest, greatest);
    const std::int64_t top = std::clamp(area.top, -greatest, greatest);
    return {static_cast<std::int32_t>(left), static_cast<std::int32_t>(top),
            static_cast<std::int32_t>(left + std::clamp<std::int64_t>(area.width(), 1, greatest)),
            static_cast<std::int32_t>(top + std::clamp<std::int64_t>(area.height(), 1, greatest))};
}

}  // namespace

CXcbWindow::~CXcbWindow() {
    if (!reportDestroy())
        return;
    m_connection->removeWindow(m_id);
    xcb_destroy_window(m_connection->get(), m_id);
    m_connection->flush();
    m_connection->endWindowsIfBroken();  // nobody may pump any more
}

// Creation

bool CXcbWindow::create(const SNativeWindowOptions &options, std::string &reason) {
    m_parent = windowIdOf(options.parent);
    m_connection = CXcbConnection::find(m_parent);
    if (!m_connection)
        m_connection = CXcbConnection::open(reason);
    if (!m_connection || !createOnServer(options, reason))
        return false;
    m_connection->addWindow(m_id, *this);
    if (m_parent != XCB_NONE) {
        const CXcbWindow *parent = m_connection->windowOf(m_parent);
        m_topLevel = parent != nullptr && parent->isPopup() ? parent->m_topLevel
                                                            : findTopLevel(*m_connection, m_parent);
    }
    m_opener = m_parent;
    if (!isChild())
        m_parent = m_connection->ownerOf(m_parent);
    if (isChild())
        setXembedInfo(*m_connection, m_id, false);
    else
        describeWindow(*m_connection, m_id, options, m_topLevel);
    if (m_kind == EKind::TopLevel)
        setSizeHints(*m_connection, m_id, m_style, m_bounds);
    if (takesFiles(options.extendedStyle))
        m_connection->drops().announce(m_id);
    m_origin = getScreenOrigin();
    reportSize();
    reportMove();
    if (isVisibleStyle(m_style))
        show();
    m_connection->flush();
    return true;
}

bool CXcbWindow::createOnServer(const SNativeWindowOptions &options, std::string &reason) {
    m_style = options.style;
    if (isPopupStyle(m_style))
        m_kind = EKind::Popup;
    else
        m_kind = isChildStyle(m_style) ? EKind::Child : EKind::TopLevel;
    const CXcbCanvas &canvas = m_connection->canvas();
    if (isChild() && m_parent == XCB_NONE)
        reason = "A child window needs a parent.";
    else if (!canvas.isUsable())
        reason = "The screen has no TrueColor visual.";
    if (!reason.empty())
        return false;

    m_bounds = possibleBounds(options.bounds);
    m_eventMask = firstEventMask;
    xcb_create_window_value_list_t values = {};
    values.border_pixel = 0;  // one that fits the depth has to be stated
    values.override_redirect = isPopup() ? 1 : 0;
    values.event_mask = m_eventMask;
    values.colormap = canvas.getColourMap();
    const xcb_window_t id = xcb_generate_id(m_connection->get());
    const CNoPipeSignal guard;
    const auto refusal = ownReply(xcb_request_check(
        m_connection->get(),
        xcb_create_window_aux_checked(
            m_connection->get(), canvas.getDepth(), id,
            isChild() ? m_parent : m_connection->getScreen().root,
            static_cast<std::int16_t>(m_bounds.left), static_cast<std::int16_t>(m_bounds.top),
            static_cast<std::uint16_t>(m_bounds.right - m_bounds.left),
            static_cast<std::uint16_t>(m_bounds.bottom - m_bounds.top), 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, canvas.getVisual(),
            XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
            &values)));
    if (refusal && refusal->error_code == XCB_WINDOW)
        reason = "The parent window does not exist.";
    else if (refusal || m_connection->isBroken())
        reason = "The X server refuses to create the window.";
    if (!reason.empty())
        return false;
    m_id = id;
    return true;
}

// Where and how the window is seen

void *CXcbWindow::getHandle() const {
    return toPointer<void *>(m_id);
}

SNativeRect CXcbWindow::getScreenArea() const {
    if (m_id == XCB_NONE)
        return {};
    const auto [x, y] = m_connection->isPumping() ? m_origin : getScreenOrigin();
    const auto [left, top, right, bottom] = getArea();
    return {x + left, y + top, x + right, y + bottom};
}

SNativePoint CXcbWindow::getScreenOrigin() const {
    const CNoPipeSignal guard;
    const auto reply = ownReply(xcb_translate_coordinates_reply(
        m_connection->get(),
        xcb_translate_coordinates(m_connection->get(), m_id, m_connection->getScreen().root, 0, 0),
        nullptr));
    return reply ? SNativePoint{reply->dst_x, reply->dst_y} : m_origin;
}

SNativeRect CXcbWindow::getArea() const {
    return {0, 0, m_bounds.right - m_bounds.left, m_bounds.bottom - m_bounds.top};
}

void CXcbWindow::show() {
    if (m_id == XCB_NONE || m_isShown)
        return;
    m_isShown = true;
    if (isChild())
        setXembedInfo(*m_connection, m_id, true);
    if (isPopup())
        raise();
    xcb_map_window(m_connection->get(), m_id);
    if (m_kind != EKind::TopLevel) {
        // Painted by update() at once, it never shows what was below it.
        m_isMapped = true;
        invalidate(getArea());
    }
    m_connection->flush();
    if (isPopup())
        m_connection->popups().handleShown(*this);
}

void CXcbWindow::hide() {
    if (m_id == XCB_NONE || !m_isShown)
        return;
    m_isShown = m_isMapped = false;
    if (isChild())
        setXembedInfo(*m_connection, m_id, false);
    xcb_unmap_window(m_connection->get(), m_id);
    if (m_kind == EKind::TopLevel)
        withdraw(*m_connection, m_id);
    m_connection->flush();
    if (isPopup())
        m_connection->popups().handleHidden(*this);
}

void CXcbWindow::enable(bool isEnabled) {
    m_isEnabled = isEnabled;
}

void CXcbWindow::bringToFront() {
    if (m_id == XCB_NONE || isChild())
        return;
    raise();
    if (isPopup()) {
        m_connection->keyboard().lendTo(*this);
    } else {
        askForActivation(*m_connection, m_id);
    }
    m_connection->flush();
}

void CXcbWindow::raise() {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_connection->get(), m_id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

void CXcbWindow::setTitle(const std::string &title) {
    if (m_id == XCB_NONE)
        return;
    nameWindow(*m_connection, m_id, title);
    m_connection->flush();
}

void CXcbWindow::setAlpha(std::uint8_t alpha) {
    if (m_id == XCB_NONE || isChild() || alpha == m_alpha)
        return;
    m_alpha = alpha;
    setOpacity(*m_connection, m_id, alpha);
    m_connection->flush();
}

void CXcbWindow::move(SNativePoint position) {
    const auto [left, top, right, bottom] = getArea();
    moveAndResize({position.x, position.y, position.x + right, position.y + bottom});
}

void CXcbWindow::moveAndResize(const SNativeRect &wished) {
    if (m_id == XCB_NONE)
        return;
    const SNativeRect bounds = possibleBounds(wished);
    if (m_kind == EKind::TopLevel)
        setSizeHints(*m_connection, m_id, m_style, bounds);
    const std::uint32_t values[] = {static_cast<std::uint32_t>(bounds.left),
                                    static_cast<std::uint32_t>(bounds.top),
                                    static_cast<std::uint32_t>(bounds.right - bounds.left),
                                    static_cast<std::uint32_t>(bounds.bottom - bounds.top)};
    m_configured = xcb_configure_window(m_connection->get(), m_id,
                                        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y |
                                            XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                                        values)
                       .sequence;
    m_connection->flush();
    takeBounds(bounds);
}

void CXcbWindow::takeBounds(const SNativeRect &bounds) {
    const SNativeRect before = std::exchange(m_bounds, bounds);
    const SArea areaBefore = before, area = bounds;
    m_origin.x += bounds.left - before.left;
    m_origin.y += bounds.top - before.top;
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    if (area.left != areaBefore.left || area.top != areaBefore.top)
        reportMove();
    if (connection->windowOf(id) != nullptr &&
        (area.width() != areaBefore.width() || area.height() != areaBefore.height()))
        reportSize();
}

// Painting

void CXcbWindow::invalidate(const SNativeRect &area) {
    if (m_id != XCB_NONE)
        m_dirty = unionOf(m_dirty, intersection(getArea(), area));
}

bool CXcbWindow::needsPainting() const {
    return m_id != XCB_NONE && m_isMapped && !isEmpty(intersection(getArea(), m_dirty));
}

void CXcbWindow::update() {
    if (!needsPainting() || !m_connection->canSendPicture())
        return;
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    const bool isAnswered = report(NativePaint).has_value();
    if (!isAnswered && connection->windowOf(id) != nullptr)
        m_dirty = {};  // as Windows does by default
    connection->flush();
}

void CXcbWindow::paint(const PaintCallback &callback) {
    if (m_id == XCB_NONE)
        return;
    // The window may have shrunk since.
    const SNativeRect dirty = intersection(getArea(), std::exchange(m_dirty, {}));
    CXcbPainting painting(m_connection, m_id, dirty);
    callback(painting, dirty);
}

void CXcbWindow::handlePainted(const SNativeRect &part, unsigned request) {
    const auto [left, top, right, bottom] = getArea();
    if (part.left <= left && part.top <= top && part.right >= right && part.bottom >= bottom)
        m_painted = request;
}

// Timers

bool CXcbWindow::startTimer(int id, int milliseconds) {
    return m_id != XCB_NONE && m_timers.start(id, milliseconds, now());
}

void CXcbWindow::stopTimer(int id) {
    m_timers.stop(id);
}

int CXcbWindow::millisecondsToWork() const {
    return needsPainting() ? 0 : m_timers.millisecondsToNext(now());
}

void CXcbWindow::runTimers() {
    const CXcbTimers::Time time = now();
    const std::shared_ptr<CXcbConnection> connection = m_connection;
    const xcb_window_t id = m_id;
    for (const int timer : m_timers.getDue(time)) {
        if (connection->windowOf(id) == nullptr)
            return;
        if (m_timers.takeDue(timer, time))
            m_listener.handleTimer(timer);
    }
}

void CXcbWindow::pump() {
    if (m_id != XCB_NONE)
        m_connection->pump();
}

// For the parts of the connection

void CXcbWindow::trackMouseLeave() {
    if (m_id != XCB_NONE)
        m_connection->pointer().trackLeave(m_id);
}

void CXcbWindow::selectEvents(std::uint32_t mask) {
    setEventMask(m_eventMask | mask);
}

void CXcbWindow::unselectEvents(std::uint32_t mask) {
    setEventMask(m_eventMask & ~mask);
}

void CXcbWindow::setEventMask(std::uint32_t mask) {
    if (m_id == XCB_NONE || mask == m_eventMask)
        return;
    m_eventMask = mask;
    xcb_change_window_attributes(m_connection->get(), m_id, XCB_CW_EVENT_MASK, &mask);
}
