#include "toolkit/menus/CMenuRoot.h"

#include "toolkit/controls/CHeldControl.h"
#include "toolkit/controls/CSavedDrawing.h"
#include "toolkit/events/CCursor.h"
#include "toolkit/menus/CHtmlMenuItem.h"
#include "toolkit/menus/CMenuEvent.h"
#include "toolkit/menus/CSelectableMenuItem.h"
#include "toolkit/menus/CSubMenuMenuItem.h"

namespace Tessitor::GUI::Windowing {

using Collections::TCountedObjectDeleter;
using Controls::CHeldControl;
using Controls::CHtmlMenuItem;
using Controls::CMenu;
using Controls::CMenuItem;
using Controls::CSelectableMenuItem;
using Controls::CSubMenuMenuItem;
using Controls::EMenuItemType;
using Events::CMouseEvent;
using MathTools::CDimension;
using MathTools::CRect;

namespace {

/// @return null for an item of another kind.
CMenu *subMenuOf(CMenuItem &item) {
    if (item.getType() != EMenuItemType::SubMenu)
        return nullptr;
    auto *subMenu = dynamic_cast<CSubMenuMenuItem *>(&item);
    return subMenu != nullptr ? subMenu->getSubMenu() : nullptr;
}

}  // namespace

CMenuWindow::CMenuRoot::CMenuRoot(IWindow *window, bool useIcons)
    : CControlRoot(window), m_menu(TCountedObjectDeleter<CMenu>::getStaticDeleter()),
      m_font(TCountedObjectDeleter<Fonts::CFont>::getStaticDeleter()), m_useIcons(useIcons) {
    m_font.setPointer(Fonts::CFont::getDefaultFont());
}

CMenuWindow *CMenuWindow::CMenuRoot::menuWindow() const {
    return dynamic_cast<CMenuWindow *>(getParentWindow());
}

// The displays

std::unique_ptr<CDimension> CMenuWindow::CMenuRoot::getMenuSize(CMenu *menu) {
    m_menu.setPointer(menu);
    forgetMouse();
    clearControls();
    return menu != nullptr ? std::make_unique<CDimension>(addDisplays(*menu)) : nullptr;
}

// Kept: the height is that of the last column, even if another one is taller.
CDimension CMenuWindow::CMenuRoot::addDisplays(const CMenu &menu) {
    const auto layout = layOutMenu(menu, getFont(), m_useIcons, m_minimumWidth);
    std::int32_t x = 0, y = 0;
    menu.forEachItem([&](CMenuItem &item) {
        if (item.getType() == EMenuItemType::ColumnBreak) {
            y = 0;
            x += layout.itemWidth + Controls::SMenuLayout::columnGap;
            return;
        }
        const std::int32_t height = layout.heightOf(item);
        auto *display = new CMenuItemDisplay(
            getParentWindow(), this, CRect(x, y, layout.itemWidth, height), layout, m_colours);
        addControl(display);
        display->setMenuItem(&item, getFont());
        display->setDrawAntiAliased(m_isAntiAliased);
        y += height;
    });
    return {x + layout.itemWidth, y};
}

Controls::CMenuItemDisplay *CMenuWindow::CMenuRoot::displayAt(std::int32_t index) const {
    return dynamic_cast<CMenuItemDisplay *>(getControlAtIndex(index, true));
}

template <typename Visit>
void CMenuWindow::CMenuRoot::forEachDisplay(Visit visit) {
    for (std::int32_t i = 0; i < getNumberOfControls(); ++i)
        if (CMenuItemDisplay *display = displayAt(i))
            visit(*display);
}

void CMenuWindow::CMenuRoot::setMenuColours(const Controls::SMenuColours &colours) {
    m_colours = colours;
    forEachDisplay([&](CMenuItemDisplay &display) { display.setColours(colours); });
}

void CMenuWindow::CMenuRoot::setDrawAntiAliased(bool isAntiAliased) {
    m_isAntiAliased = isAntiAliased;
    forEachDisplay([&](CMenuItemDisplay &display) { display.setDrawAntiAliased(isAntiAliased); });
}

void CMenuWindow::CMenuRoot::setCurrentSelection(std::int32_t index) {
    if (index != -1 && displayAt(index) == nullptr)
        return;
    if (CMenuItemDisplay *before = displayAt(m_selection)) {
        before->setHovered(false);
        updateControl(before);
    }
    m_selection = index;
    if (CMenuItemDisplay *display = displayAt(index)) {
        display->setHovered(true);
        updateControl(display);
    }
}

void CMenuWindow::CMenuRoot::forgetMouse() {
    setCurrentSelection(-1);
    m_press = -1;
}

// The mouse

void CMenuWindow::CMenuRoot::handleMouseMovement(CMouseEvent &event) {
    auto *display = dynamic_cast<CMenuItemDisplay *>(getControlAtPoint(event.getMousePosition()));
    if (display != nullptr) {
        const CHeldControl held(display);
        updateControl(displayAt(m_selection));
        showCursor(event, *display->getMenuItem());
        if (getControlIndex(display) != m_selection)
            select(*display, getControlIndex(display));
        updateArea(m_area);
    }
    CControlRoot::handleMouseMovement(event);
}

void CMenuWindow::CMenuRoot::showCursor(CMouseEvent &event, const CMenuItem &item) {
    const bool isAddress = item.getType() == EMenuItemType::Address;
    if (event.getMouse() != nullptr)
        event.getMouse()->setCursor(isAddress ? CCursor::getHandCursor()
                                              : CCursor::getDefaultCursor());
}

// Kept: a disabled item leaves a sub-menu open.
void CMenuWindow::CMenuRoot::select(CMenuItemDisplay &display, std::int32_t index) {
    CMenuItem &item = *display.getMenuItem();
    if (!item.isEnabled()) {
        setCurrentSelection(-1);
        return;
    }
    setCurrentSelection(item.getType() == EMenuItemType::Separator ? -1 : index);
    if (CMenu *subMenu = subMenuOf(item))
        menuWindow()->openSubMenu(subMenu, display.getArea().getTop());
    else
        menuWindow()->closeSubMenu();
}

void CMenuWindow::CMenuRoot::handleLeftButtonDown(CMouseEvent &event) {
    m_press = m_selection;
    CControlRoot::handleLeftButtonDown(event);
}

void CMenuWindow::CMenuRoot::handleLeftButtonUp(CMouseEvent &event) {
    CMenuItemDisplay *display = displayAt(m_selection);
    if (display == nullptr || m_selection != m_press ||
        !display->getArea().pointIsInside(event.getMousePosition())) {
        m_press = -1;
        return;
    }
    const CHeldControl held(display);
    choose(*display->getMenuItem());
}

// Ends with the call of the listener, which may delete the window.
void CMenuWindow::CMenuRoot::choose(CMenuItem &item) {
    switch (item.getType()) {
    case EMenuItemType::Address:
        if (auto *address = dynamic_cast<CHtmlMenuItem *>(&item))
            address->getAddress().openInBrowser(false);
        break;
    case EMenuItemType::Selectable:
        if (auto *selectable = dynamic_cast<CSelectableMenuItem *>(&item))
            selectable->setSelected(!selectable->isSelected());
        break;
    case EMenuItemType::Normal:
        break;
    default:
        return;
    }
    Events::CMenuEvent event(&item, getMenu(), menuWindow()->m_originator);
    menuWindow()->menuSelected(event);
}

// The mouse may have gone to the sub-menu: its item stays selected.
void CMenuWindow::CMenuRoot::handleMouseLeaving(CMouseEvent &event) {
    const CMenuItemDisplay *display = displayAt(m_selection);
    if (display != nullptr && display->getMenuItem()->getType() != EMenuItemType::SubMenu)
        setCurrentSelection(-1);
    CControlRoot::handleMouseLeaving(event);
}

// Drawing

void CMenuWindow::CMenuRoot::drawRootControl(Graphics::CGraphics &graphics) {
    const Controls::CSavedDrawing saved(graphics);
    graphics.getPen().setColour(m_colours.frame);
    graphics.drawRectangle(CRect(0, 0, m_area.getWidth(), m_area.getHeight()));
    if (const CMenuItemDisplay *display = displayAt(m_selection)) {
        graphics.getBrush().setColour(m_colours.selectionFill);
        graphics.drawFilledBorderedRectangle(display->getArea());
    }
    drawControls(graphics, graphics.getUpdateArea());
}

}  // namespace Tessitor::GUI::Windowing
