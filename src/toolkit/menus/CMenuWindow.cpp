#include "toolkit/menus/CMenuWindow.h"

#include "foundation/VirtualScreen.h"
#include "toolkit/menus/CMenuEvent.h"
#include "toolkit/menus/CMenuRoot.h"

#include <algorithm>
#include <atomic>

namespace Tessitor::GUI::Windowing {

using Controls::CMenu;
using MathTools::CPoint;
using MathTools::CRect;

Tessitor::Basics::TClassRecord<CMenuWindow> CMenuWindow::s_class("CMenuWindow", "CWindow");

namespace {

/// The title is also the name of the window class, so no two menu windows share one. Several
/// editors may create menu windows on threads of their own.
Tessitor::Basics::CString uniqueTitle(const CMenu *menu) {
    static std::atomic<long> windows = 0;
    const long items = menu != nullptr ? menu->getNumberOfMenuItems() : 0;
    Tessitor::Basics::CString title;
    title.setStringWithFormat("Menu_%li_%li", long{++windows}, items);
    return title;
}

/// @return the start of a span, moved back so that it ends at the limit, but no further than
/// `first`.
std::int32_t fitted(std::int32_t start, std::int32_t length, std::int32_t first,
                    std::int32_t limit) {
    return start + length > limit && start > first ? std::max(limit - length, first) : start;
}

}  // namespace

CMenuWindow::CMenuWindow(const CRect &rect, const CWindowAttributes &attributes, CMenu *menu,
                         bool useIcons, Listeners::IMenuListener *listener,
                         Controls::IControl *originator)
    : CWindow(rect, [&](IWindow *window) { return std::make_unique<CMenuRoot>(window, useIcons); }),
      m_menuListener(listener), m_originator(originator) {
    *getWindowAttributes() = attributes;
    getWindowAttributes()->setWindowTitle(uniqueTitle(menu));
    getWindowAttributes()->setWindowKind(EWindowKind::Popup);
    CMenuWindow::setMenu(menu);
    s_class.incrementInstanceCount();
}

CMenuWindow::~CMenuWindow() {
    m_menuListener = nullptr;
    m_child.reset();
    s_class.decrementInstanceCount();
}

CMenuWindow::CMenuRoot &CMenuWindow::root() const {
    return static_cast<CMenuRoot &>(*const_cast<CMenuWindow *>(this)->CWindow::getControlRoot());
}

// The menu

void CMenuWindow::setMenu(CMenu *menu) {
    m_menuSize = root().getMenuSize(menu);
}

CMenu *CMenuWindow::getMenu() const {
    return root().getMenu();
}

void CMenuWindow::setFont(Fonts::CFont *font) {
    root().setFont(font);
    setMenu(getMenu());
}

Fonts::CFont *CMenuWindow::getFont() const {
    return root().getFont();
}

void CMenuWindow::setMinimumWidth(std::int32_t width) {
    root().setMinimumWidth(width);
    setMenu(getMenu());
}

std::int32_t CMenuWindow::getMinimumWidth() const {
    return root().getMinimumWidth();
}

void CMenuWindow::setMenuColours(const Controls::SMenuColours &colours) {
    root().setMenuColours(colours);
}

const Controls::SMenuColours &CMenuWindow::getMenuColours() const {
    return root().getColours();
}

void CMenuWindow::setDrawAntiAliased(bool isAntiAliased) {
    root().setDrawAntiAliased(isAntiAliased);
}

void CMenuWindow::setCurrentSelection(std::int32_t index) {
    root().setCurrentSelection(index);
}

// Opening and closing

void CMenuWindow::openPopupWindow(const CPoint &point) {
    root().forgetMouse();
    setWindowPosition(point);
    if (m_menuSize != nullptr) {
        setWindowSize(*m_menuSize);
        root().setArea(CRect(CPoint(0, 0), *m_menuSize));
    }
    moveOntoScreen();
    m_isOpen = true;
    setWindowAttributes(getWindowAttributes(), false);
    openWindow();
    notify(&Listeners::IMenuListener::menuOpened);
}

// Kept: the size of the screen is the limit, not its far edges. They differ if its origin is not 0.
void CMenuWindow::moveOntoScreen() {
    const CRect screen = Host::getVirtualScreen();
    const CRect rect = getWindowRect();
    setWindowPosition(
        CPoint(fitted(rect.getLeft(), rect.getWidth(), screen.getLeft(), screen.getWidth()),
               fitted(rect.getTop(), rect.getHeight(), screen.getTop(), screen.getHeight())));
}

void CMenuWindow::closePopupWindow() {
    if (!m_isOpen)
        return;
    m_isOpen = false;  // hiding and destroying the window report a loss of the focus
    closeSubMenu();
    closeWindow();
    destroyWindow();
    notify(&Listeners::IMenuListener::menuClosed);
}

/// While one exists, its window is opening a sub-menu. A listener may delete the window meanwhile.
class CMenuWindow::COpeningChild {
public:
    explicit COpeningChild(CMenuWindow &window) : m_window(window), m_life(window.m_life) {
        m_window.m_isOpeningChild = true;
    }
    COpeningChild(const COpeningChild &) = delete;
    COpeningChild &operator=(const COpeningChild &) = delete;
    ~COpeningChild() {
        if (!m_life.expired())
            m_window.m_isOpeningChild = false;
    }

private:
    CMenuWindow &m_window;
    std::weak_ptr<const int> m_life;
};

void CMenuWindow::openSubMenu(CMenu *menu, std::int32_t top) {
    const COpeningChild opening(*this);
    closeSubMenu();
    m_child = std::make_unique<CMenuWindow>(CRect(0, 0, 10, 10), *getWindowAttributes(), menu,
                                            root().usesIcons(), this, m_originator);
    m_child->setParentWindow(this);
    m_child->m_parentMenu = this;
    m_child->setMenuColours(getMenuColours());
    m_child->setFont(getFont());
    m_child->openPopupWindow(CPoint(getWindowRect().getRight(), getWindowRect().getTop() + top));
}

void CMenuWindow::lostFocus(IWindow *) {
    if (m_isOpeningChild || !m_isOpen)
        return;
    // The listener may delete the whole chain.
    CMenuWindow *parent = m_parentMenu;
    const std::weak_ptr<const int> life = parent != nullptr ? parent->m_life : nullptr;
    closePopupWindow();
    if (!life.expired())
        parent->lostFocus(parent);
}

// The listener

void CMenuWindow::notify(void (Listeners::IMenuListener::*handler)(Events::CMenuEvent &)) {
    if (m_menuListener == nullptr)
        return;
    Events::CMenuEvent event(nullptr, getMenu(), m_originator);
    (m_menuListener->*handler)(event);
}

void CMenuWindow::menuOpened(Events::CMenuEvent &event) {
    if (m_menuListener != nullptr)
        m_menuListener->menuOpened(event);
}

void CMenuWindow::menuClosed(Events::CMenuEvent &event) {
    if (m_menuListener != nullptr)
        m_menuListener->menuClosed(event);
}

// The listener comes last, since this may be a sub-menu that it deletes.
void CMenuWindow::menuSelected(Events::CMenuEvent &event) {
    closeSubMenu();
    if (m_parentMenu == nullptr)
        closePopupWindow();
    if (m_menuListener != nullptr)
        m_menuListener->menuSelected(event);
}

}  // namespace Tessitor::GUI::Windowing
