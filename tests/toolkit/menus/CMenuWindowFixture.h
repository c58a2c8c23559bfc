#pragma once

#include "FakeNativeScreen.h"
#include "toolkit/events/FakeNativeMouse.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/menus/CMenuEvent.h"
#include "toolkit/menus/CMenuWindow.h"
#include "toolkit/menus/CSelectableMenuItem.h"
#include "toolkit/menus/CSubMenuMenuItem.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// A menu of the test's making, its window on a screen of 1000 by 800, and a listener.
class CMenuWindowFixture : public testing::Test, public Tessitor::GUI::Listeners::IMenuListener {
protected:
    using CMenu = Tessitor::GUI::Controls::CMenu;
    using CMenuEvent = Tessitor::GUI::Events::CMenuEvent;
    using CMenuItem = Tessitor::GUI::Controls::CMenuItem;
    using CMenuWindow = Tessitor::GUI::Windowing::CMenuWindow;
    using CPoint = Tessitor::MathTools::CPoint;
    using CRect = Tessitor::MathTools::CRect;
    using CSelectableMenuItem = Tessitor::GUI::Controls::CSelectableMenuItem;
    using CSubMenuMenuItem = Tessitor::GUI::Controls::CSubMenuMenuItem;
    using EMenuItemType = Tessitor::GUI::Controls::EMenuItemType;

    CMenuWindowFixture() {
        fakeNatives() = SFakeNatives();
        fakeNativeMouse().captureWindow = nullptr;
        fakeNativeScreen() = {0, 0, 1000, 800};
        Tessitor::GUI::Fonts::CFont::createDefaultFont();
        menu->reference();
    }
    ~CMenuWindowFixture() override {
        delete window;
        menu->dereference();
        Tessitor::GUI::Fonts::CFont::releaseDefaultFont();
    }

    void menuOpened(CMenuEvent &event) override { note("opened", event); }
    void menuClosed(CMenuEvent &event) override { note("closed", event); }
    void menuSelected(CMenuEvent &event) override { note("selected", event); }

    CMenuItem *add(const char *text, EMenuItemType type = EMenuItemType::Normal,
                   bool isEnabled = true) {
        auto *item = new CMenuItem(text, menu->getNumberOfMenuItems(), type, isEnabled);
        menu->addMenuItem(item);
        return item;
    }
    CSelectableMenuItem *addSelectable(const char *text) {
        auto *item = new CSelectableMenuItem(text, menu->getNumberOfMenuItems());
        menu->addMenuItem(item);
        return item;
    }
    /// Adds an item whose menu has two items.
    CSubMenuMenuItem *addSubMenu(const char *text) {
        auto *item = new CSubMenuMenuItem(text, menu->getNumberOfMenuItems());
        item->getSubMenu()->addMenuItem(new CMenuItem("first", 100));
        item->getSubMenu()->addMenuItem(new CMenuItem("second", 101));
        menu->addMenuItem(item);
        return item;
    }
    void createWindow() {
        window = new CMenuWindow(CRect(0, 0, 10, 10), attributes, menu, true, this);
    }
    void open(int x = 100, int y = 200) {
        createWindow();
        window->openPopupWindow(CPoint(x, y));
        events.clear();
    }

    const CRect &areaOf(int index) const { return areaOf(*window, index); }
    static const CRect &areaOf(CMenuWindow &shown, int index) {
        return shown.getControlRoot()->getControlAtIndex(index, true)->getArea();
    }
    static CPoint middleOf(const CRect &area) { return {area.getCentreX(), area.getCentreY()}; }

    /// Sends a mouse message to the native window of a menu.
    static void send(CMenuWindow &shown, unsigned message, const CPoint &point) {
        auto *native = static_cast<CFakeNativeWindow *>(shown.getWindowHandle()->native);
        native->listener.handleMessage(
            message, 0,
            static_cast<std::intptr_t>(
                (static_cast<std::uint32_t>(point.getYPosition()) << 16) |
                (static_cast<std::uint32_t>(point.getXPosition()) & 0xFFFF)));
    }
    void moveTo(int index) { send(*window, NativeMouseMove, middleOf(areaOf(index))); }
    void press(int index) { send(*window, NativeLeftDown, middleOf(areaOf(index))); }
    void release(int index) { send(*window, NativeLeftUp, middleOf(areaOf(index))); }
    void click(int index) {
        moveTo(index);
        press(index);
        release(index);
    }
    void loseFocus(CMenuWindow &shown) { send(shown, NativeKillFocus, CPoint(0, 0)); }

    std::vector<std::string> events;
    std::vector<Tessitor::GUI::Controls::IControl *> originators;  // of all events
    std::function<void()> onEvent;                                 // called after each note
    CMenu *menu = new CMenu;
    const Tessitor::GUI::Windowing::CWindowAttributes attributes;
    CMenuWindow *window = nullptr;

private:
    void note(const char *what, const CMenuEvent &event) {
        std::string text = what;
        if (const CMenuItem *item = event.getMenuItem())
            text += std::string(" ") + item->getText().getString();
        if (event.getMenu() != menu)
            text += " in a sub-menu";
        events.push_back(text);
        originators.push_back(event.getOriginator());
        if (onEvent)
            onEvent();
    }
};
