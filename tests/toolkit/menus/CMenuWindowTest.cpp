#include "CMenuWindowFixture.h"
#include "FakeNativeShell.h"
#include "foundation/CException.h"
#include "toolkit/graphics/CGraphics.h"
#include "toolkit/graphics/TestImage.h"
#include "toolkit/menus/CHtmlMenuItem.h"
#include "toolkit/menus/CMenuItemDisplay.h"

using Tessitor::GUI::Controls::CMenuItemDisplay;
using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::MathTools::CDimension;
using testing::ElementsAre;
using testing::IsEmpty;

class CMenuWindow : public CMenuWindowFixture {
protected:
    static CDimension extentOf(const char *text) {
        CDimension extent;
        CGraphics::getTextExtent(text, extent, nullptr);
        return extent;
    }
    int widthOf(const char *text) const { return extentOf(text).getWidth(); }
    int itemHeight() const { return extentOf("x").getHeight() + 8; }
    CMenuItemDisplay *displayAt(int index) const {
        return dynamic_cast<CMenuItemDisplay *>(
            window->getControlRoot()->getControlAtIndex(index, true));
    }
    /// What the native window logs when an item is to be redrawn.
    std::string invalidationOf(int index) const {
        const CRect &area = areaOf(index);
        return "invalidate " + std::to_string(area.getLeft()) + "," +
               std::to_string(area.getTop()) + "," + std::to_string(area.getRight()) + "," +
               std::to_string(area.getBottom());
    }
    int selection() const {
        for (int i = 0; displayAt(i) != nullptr; ++i)
            if (displayAt(i)->isHovered())
                return i;
        return -1;
    }
};

// Layout

TEST_F(CMenuWindow, ItemsLieBelowEachOther) {
    add("wide item");
    add("i");
    createWindow();
    const int width = widthOf("wide item") + 8;
    EXPECT_EQ(areaOf(0).toString(), CRect(0, 0, width, itemHeight()).toString());
    EXPECT_EQ(areaOf(1).toString(), CRect(0, itemHeight(), width, itemHeight()).toString());
    EXPECT_EQ(window->getMenuSize()->getWidth(), width);
    EXPECT_EQ(window->getMenuSize()->getHeight(), 2 * itemHeight());
}

TEST_F(CMenuWindow, SeparatorsAloneNeedNoWidth) {
    add("ignored", EMenuItemType::Separator);
    add("ignored", EMenuItemType::Separator);
    createWindow();
    EXPECT_EQ(areaOf(1).toString(), CRect(0, 4, 8, 4).toString());
    EXPECT_EQ(window->getMenuSize()->getWidth(), 8);
    EXPECT_EQ(window->getMenuSize()->getHeight(), 8);
}

TEST_F(CMenuWindow, LeavesRoomForTicksAndArrows) {
    add("item");
    addSelectable("item");
    createWindow();
    EXPECT_EQ(areaOf(0).getWidth(), widthOf("item") + 8 + itemHeight());
    delete window;
    addSubMenu("item");
    createWindow();
    EXPECT_EQ(areaOf(0).getWidth(), widthOf("item") + 8 + 2 * itemHeight());
}

TEST_F(CMenuWindow, IconsTakeThePlaceOfTicks) {
    add("item")->setImages(new CTestImage(30, 50, true), nullptr);
    addSelectable("item");
    createWindow();
    EXPECT_EQ(areaOf(0).getWidth(), widthOf("item") + 8 + 30);
    EXPECT_EQ(areaOf(0).getHeight(), 58);
}

TEST_F(CMenuWindow, MayIgnoreIcons) {
    add("item")->setImages(new CTestImage(30, 50, true), nullptr);
    window = new Tessitor::GUI::Windowing::CMenuWindow(CRect(0, 0, 10, 10), attributes, menu, false,
                                                       this);
    EXPECT_EQ(areaOf(0).getWidth(), widthOf("item") + 8);
    EXPECT_EQ(areaOf(0).getHeight(), itemHeight());
}

TEST_F(CMenuWindow, LeavesRoomForAnImageOfDisabledItems) {
    add("item")->setImages(nullptr, new CTestImage(30, 50, true));
    createWindow();
    EXPECT_EQ(areaOf(0).getWidth(), widthOf("item") + 8 + 30);
    EXPECT_EQ(areaOf(0).getHeight(), 58);
}

TEST_F(CMenuWindow, IsAtLeastAsWideAsAskedFor) {
    add("item");
    createWindow();
    window->setMinimumWidth(200);
    EXPECT_EQ(window->getMenuSize()->getWidth(), 200);
    window->setMinimumWidth(5);
    EXPECT_EQ(window->getMenuSize()->getWidth(), widthOf("item") + 8);
}

TEST_F(CMenuWindow, ColumnsAreAsHighAsTheLastOne) {
    add("item");
    add("item");
    add("", EMenuItemType::ColumnBreak);
    add("item");
    createWindow();
    const int width = widthOf("item") + 8;
    EXPECT_EQ(areaOf(2).toString(), CRect(width + 4, 0, width, itemHeight()).toString());
    EXPECT_EQ(window->getMenuSize()->getWidth(), 2 * width + 4);
    EXPECT_EQ(window->getMenuSize()->getHeight(), itemHeight());
}

TEST_F(CMenuWindow, TwoColumnBreaksLeaveAnEmptyColumn) {
    add("item");
    add("", EMenuItemType::ColumnBreak);
    add("", EMenuItemType::ColumnBreak);
    createWindow();
    EXPECT_EQ(window->getMenuSize()->getWidth(), 3 * (widthOf("item") + 8) + 8);
    EXPECT_EQ(window->getMenuSize()->getHeight(), 0);
}

// Kept: the text of a column break is not seen.
TEST_F(CMenuWindow, MeasuresTheTextOfAColumnBreak) {
    add("item");
    add("a wide column break", EMenuItemType::ColumnBreak);
    createWindow();
    EXPECT_EQ(areaOf(0).getWidth(), widthOf("a wide column break") + 8);
}

TEST_F(CMenuWindow, StartsWithTheDefaultFont) {
    createWindow();
    EXPECT_EQ(window->getFont(), Tessitor::GUI::Fonts::CFont::getDefaultFont());
}

TEST_F(CMenuWindow, FollowsItsFont) {
    add("item");
    createWindow();
    const int height = areaOf(0).getHeight();
    window->setFont(new Tessitor::GUI::Fonts::CFont("Arial", 30, false, false));
    EXPECT_GT(areaOf(0).getHeight(), height);
    EXPECT_EQ(window->getFont()->getHeight(), 30);
}

TEST_F(CMenuWindow, WithoutMenuHasNoSize) {
    window = new Tessitor::GUI::Windowing::CMenuWindow(CRect(0, 0, 10, 10), attributes, nullptr,
                                                       true, this);
    EXPECT_EQ(window->getMenu(), nullptr);
    EXPECT_EQ(window->getMenuSize(), nullptr);
    window->openPopupWindow(CPoint(1, 2));
    EXPECT_THAT(events, ElementsAre("opened in a sub-menu"));
    EXPECT_EQ(window->getWindowRect().toString(), CRect(1, 2, 10, 10).toString());
}

TEST(CMenuItemDisplayItem, MustNotBeNull) {
    fakeNatives() = SFakeNatives();
    Tessitor::GUI::Windowing::CWindow parent(Tessitor::MathTools::CRect(0, 0, 10, 10));
    CMenuItemDisplay display(&parent, parent.getControlRoot(),
                             Tessitor::MathTools::CRect(0, 0, 10, 10), {}, {});
    try {
        display.setMenuItem(nullptr, nullptr);
        FAIL();
    } catch (const Tessitor::Exceptions::CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "Menu item is null");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CMenuItemDisplay::setMenuItem(CMenuItem *)");
    }
}

// Opening and closing

TEST_F(CMenuWindow, HasNoNativeWindowUntilItOpens) {
    add("item");
    createWindow();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
    window->openPopupWindow(CPoint(100, 200));
    ASSERT_EQ(fakeNatives().windows.size(), 1u);
    EXPECT_EQ(fakeNatives().lastOptions.style, 0x80000000u);
    EXPECT_EQ(fakeNatives().lastOptions.extendedStyle, 0x8080008u);
    EXPECT_THAT(fakeNatives().lastOptions.title, testing::StartsWith("Menu_"));
    EXPECT_THAT(fakeNatives().log, testing::Contains("show"));
    EXPECT_THAT(events, ElementsAre("opened"));
    EXPECT_EQ(fakeNatives().lastOptions.bounds.left, 100);
    EXPECT_EQ(fakeNatives().lastOptions.bounds.top, 200);
    EXPECT_EQ(fakeNatives().lastOptions.bounds.right, 100 + window->getMenuSize()->getWidth());
}

TEST_F(CMenuWindow, EachHasATitleOfItsOwn) {
    add("item");
    open();
    const std::string first = fakeNatives().lastOptions.className;
    delete window;
    open();
    EXPECT_NE(fakeNatives().lastOptions.className, first);
}

TEST_F(CMenuWindow, ClosesOnce) {
    add("item");
    open();
    window->closePopupWindow();
    window->closePopupWindow();
    EXPECT_THAT(events, ElementsAre("closed"));
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
    EXPECT_FALSE(window->isOpen());
}

TEST_F(CMenuWindow, OpensAgain) {
    add("item");
    open();
    moveTo(0);
    window->closePopupWindow();
    window->openPopupWindow(CPoint(5, 6));
    EXPECT_THAT(events, ElementsAre("closed", "opened"));
    EXPECT_EQ(window->getWindowPosition().getXPosition(), 5);
    EXPECT_EQ(selection(), -1);
}

TEST_F(CMenuWindow, MovesOntoTheScreen) {
    add("item");
    open(990, 799);
    EXPECT_EQ(window->getWindowRect().getRight(), 1000);
    EXPECT_EQ(window->getWindowRect().getBottom(), 800);
}

// Kept: the limits on the right and at the bottom are the size of the screen, wherever it begins.
TEST_F(CMenuWindow, MovesOntoAScreenAsIfItBeganAtZero) {
    add("item");
    fakeNativeScreen() = {100, 50, 1100, 850};
    open(990, 799);
    EXPECT_EQ(window->getWindowRect().getRight(), 1000);
    EXPECT_EQ(window->getWindowRect().getBottom(), 800);
    fakeNativeScreen() = {-500, -400, 500, 400};
    window->openPopupWindow(CPoint(700, 600));
    EXPECT_EQ(window->getWindowPosition().getXPosition(), 700);
    EXPECT_EQ(window->getWindowPosition().getYPosition(), 600);
}

TEST_F(CMenuWindow, StopsAtTheTopLeftOfTheScreen) {
    add("item");
    fakeNativeScreen() = {3, 4, 10, 12};
    open(50, 60);
    EXPECT_EQ(window->getWindowPosition().getXPosition(), 3);
    EXPECT_EQ(window->getWindowPosition().getYPosition(), 4);
    window->openPopupWindow(CPoint(1, 2));
    EXPECT_EQ(window->getWindowPosition().getXPosition(), 1);
    EXPECT_EQ(window->getWindowPosition().getYPosition(), 2);
}

TEST_F(CMenuWindow, ClosesWithoutFocus) {
    add("item");
    open();
    loseFocus(*window);
    EXPECT_THAT(events, ElementsAre("closed"));
}

// The mouse

TEST_F(CMenuWindow, SelectsTheItemUnderTheMouse) {
    add("a");
    add("b");
    open();
    moveTo(1);
    EXPECT_EQ(selection(), 1);
    moveTo(0);
    EXPECT_EQ(selection(), 0);
    send(*window, NativeMouseLeave, CPoint(-1, -1));
    EXPECT_EQ(selection(), -1);
}

TEST_F(CMenuWindow, IsRedrawnWhenTheMouseMovesOverItems) {
    add("a");
    add("b");
    open();
    moveTo(0);
    fakeNatives().takeLog();
    moveTo(0);
    const CDimension &size = *window->getMenuSize();
    EXPECT_THAT(fakeNatives().takeLog(),
                testing::Contains("invalidate 0,0," + std::to_string(size.getWidth()) + "," +
                                  std::to_string(size.getHeight())));
}

TEST_F(CMenuWindow, SelectsNeitherSeparatorsNorDisabledItems) {
    add("a");
    add("", EMenuItemType::Separator);
    add("c", EMenuItemType::Normal, false);
    open();
    for (const int index : {1, 2}) {
        moveTo(0);
        moveTo(index);
        EXPECT_EQ(selection(), -1) << index;
        press(index);
        release(index);
        EXPECT_THAT(events, IsEmpty()) << index;
    }
}

TEST_F(CMenuWindow, IgnoresSelectionsOutside) {
    add("a");
    createWindow();
    window->setCurrentSelection(0);
    window->setCurrentSelection(1);
    window->setCurrentSelection(-2);
    EXPECT_EQ(selection(), 0);
    window->setCurrentSelection(-1);
    EXPECT_EQ(selection(), -1);
}

TEST_F(CMenuWindow, RedrawsItemsWhoseSelectionChanges) {
    add("a");
    add("b");
    open();
    fakeNatives().takeLog();
    window->setCurrentSelection(1);
    EXPECT_THAT(fakeNatives().takeLog(), ElementsAre(invalidationOf(1)));
    send(*window, NativeMouseLeave, CPoint(-1, -1));
    EXPECT_THAT(fakeNatives().takeLog(), testing::Contains(invalidationOf(1)));
}

TEST_F(CMenuWindow, AReleaseAfterItHasBeenOpenedAgainChoosesNothing) {
    add("a");
    open();
    moveTo(0);
    press(0);
    window->closePopupWindow();
    window->openPopupWindow(CPoint(0, 0));
    moveTo(0);
    release(0);
    EXPECT_THAT(events, ElementsAre("closed", "opened"));
}

TEST_F(CMenuWindow, ReportsAChoiceAfterItHasClosed) {
    add("a");
    add("b");
    open();
    click(1);
    EXPECT_THAT(events, ElementsAre("closed", "selected b"));
}

TEST_F(CMenuWindow, AReleaseOnAnotherItemChoosesNothing) {
    add("a");
    add("b");
    open();
    moveTo(0);
    press(0);
    moveTo(1);
    release(1);
    EXPECT_THAT(events, IsEmpty());
    release(1);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CMenuWindow, AReleaseOutsideTheItemChoosesNothing) {
    add("a");
    open();
    moveTo(0);
    press(0);
    send(*window, NativeLeftUp, CPoint(-5, 3));
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(CMenuWindow, AClickTogglesATick) {
    CSelectableMenuItem *item = addSelectable("a");
    open();
    click(0);
    EXPECT_TRUE(item->isSelected());
    EXPECT_THAT(events, ElementsAre("closed", "selected a"));
    window->openPopupWindow(CPoint(0, 0));
    click(0);
    EXPECT_FALSE(item->isSelected());
}

TEST_F(CMenuWindow, ShowsAHandOverAddresses) {
    add("a");
    menu->addMenuItem(new Tessitor::GUI::Controls::CHtmlMenuItem("web", 1, "localhost"));
    open();
    moveTo(1);
    const auto hand = fakeNativeMouse().shown;
    moveTo(0);
    EXPECT_NE(fakeNativeMouse().shown, hand);
}

TEST_F(CMenuWindow, AClickOpensAnAddress) {
    menu->addMenuItem(new Tessitor::GUI::Controls::CHtmlMenuItem("web", 1, "localhost"));
    openedDocuments().clear();
    open();
    click(0);
    EXPECT_THAT(openedDocuments(), ElementsAre("http://localhost"));
    EXPECT_THAT(events, ElementsAre("closed", "selected web"));
}

TEST_F(CMenuWindow, AnItemStaysPressedUntilTheRelease) {
    add("a");
    add("b");
    open();
    moveTo(0);
    press(0);
    moveTo(1);
    moveTo(0);
    release(0);
    EXPECT_THAT(events, ElementsAre("closed", "selected a"));
}

// Sub-menus

TEST_F(CMenuWindow, OpensASubMenuBesideItsItem) {
    add("a");
    addSubMenu("more");
    open();
    moveTo(1);
    ASSERT_NE(window->getChildWindow(), nullptr);
    const CRect &child = window->getChildWindow()->getWindowRect();
    EXPECT_EQ(child.getLeft(), window->getWindowRect().getRight());
    EXPECT_EQ(child.getTop(), window->getWindowRect().getTop() + areaOf(1).getTop());
    EXPECT_EQ(fakeNatives().lastOptions.parent, window->getWindowHandle()->native);
    EXPECT_THAT(events, ElementsAre("opened in a sub-menu"));
}

TEST_F(CMenuWindow, PassesColoursAndFontToSubMenus) {
    addSubMenu("more");
    open();
    Tessitor::GUI::Controls::SMenuColours colours;
    colours.text = {1, 2, 3};
    window->setMenuColours(colours);
    window->setFont(new Tessitor::GUI::Fonts::CFont("Arial", 30, false, false));
    moveTo(0);
    EXPECT_EQ(window->getChildWindow()->getMenuColours().text.getGreen(), 2);
    EXPECT_EQ(window->getChildWindow()->getFont(), window->getFont());
}

TEST_F(CMenuWindow, IgnoresIconsInSubMenusToo) {
    CMenuItem *item = addSubMenu("more")->getSubMenu()->getMenuItem(0);
    item->setImages(new CTestImage(30, 50, true), nullptr);
    window = new Tessitor::GUI::Windowing::CMenuWindow(CRect(0, 0, 10, 10), attributes, menu, false,
                                                       this);
    window->openPopupWindow(CPoint(0, 0));
    moveTo(0);
    EXPECT_EQ(areaOf(*window->getChildWindow(), 0).getHeight(), itemHeight());
}

TEST_F(CMenuWindow, NamesItsOriginatorInEveryEvent) {
    addSubMenu("more");
    add("a");
    Tessitor::GUI::Windowing::CWindow owner(CRect(0, 0, 10, 10));
    auto *label = new Tessitor::GUI::Controls::CTextLabel(owner.getControlRoot(), 0,
                                                          CRect(0, 0, 10, 10), "menu");
    owner.getControlRoot()->addControl(label);
    window = new Tessitor::GUI::Windowing::CMenuWindow(CRect(0, 0, 10, 10), attributes, menu, true,
                                                       this, label);
    window->openPopupWindow(CPoint(0, 0));
    moveTo(0);
    click(1);
    EXPECT_THAT(events, ElementsAre("opened", "opened in a sub-menu", "closed", "selected a"));
    EXPECT_THAT(originators, testing::Each(label));
    delete std::exchange(window, nullptr);
}

TEST_F(CMenuWindow, AnItemThatIsNoSubMenuAnyMoreOpensNone) {
    addSubMenu("more")->setType(EMenuItemType::Normal);
    open();
    click(0);
    EXPECT_THAT(events, ElementsAre("closed", "selected more"));
}

TEST_F(CMenuWindow, ANormalItemClosesTheSubMenu) {
    add("a");
    addSubMenu("more");
    open();
    moveTo(1);
    moveTo(0);
    EXPECT_EQ(window->getChildWindow(), nullptr);
    EXPECT_EQ(fakeNatives().windows.size(), 1u);
}

TEST_F(CMenuWindow, ASeparatorClosesTheSubMenu) {
    addSubMenu("more");
    add("", EMenuItemType::Separator);
    open();
    moveTo(0);
    moveTo(1);
    EXPECT_EQ(window->getChildWindow(), nullptr);
    EXPECT_EQ(selection(), -1);
}

TEST_F(CMenuWindow, ADisabledItemKeepsTheSubMenu) {
    addSubMenu("more");
    add("a", EMenuItemType::Normal, false);
    open();
    moveTo(0);
    moveTo(1);
    EXPECT_NE(window->getChildWindow(), nullptr);
    EXPECT_EQ(selection(), -1);
}

TEST_F(CMenuWindow, ADisabledItemOpensNoSubMenu) {
    addSubMenu("more")->setEnabled(false);
    open();
    moveTo(0);
    EXPECT_EQ(window->getChildWindow(), nullptr);
    EXPECT_EQ(selection(), -1);
}

TEST_F(CMenuWindow, AClickOnASubMenuItemReportsNothing) {
    addSubMenu("more");
    open();
    click(0);
    EXPECT_THAT(events, ElementsAre("opened in a sub-menu"));
    EXPECT_TRUE(window->isOpen());
}

TEST_F(CMenuWindow, OpensAnotherSubMenuInPlaceOfTheFirst) {
    addSubMenu("more");
    addSubMenu("most");
    open();
    moveTo(0);
    moveTo(1);
    EXPECT_EQ(fakeNatives().windows.size(), 2u);
    EXPECT_EQ(window->getChildWindow()->getMenu(),
              dynamic_cast<CSubMenuMenuItem *>(menu->getMenuItem(1))->getSubMenu());
}

TEST_F(CMenuWindow, OpensASubMenuOnceWhileTheMouseStays) {
    addSubMenu("more");
    open();
    moveTo(0);
    const auto *child = window->getChildWindow();
    send(*window, NativeMouseMove, CPoint(3, 3));
    EXPECT_EQ(window->getChildWindow(), child);
    EXPECT_THAT(events, ElementsAre("opened in a sub-menu"));
}

TEST_F(CMenuWindow, KeepsASubMenuWhenTheMouseLeaves) {
    addSubMenu("more");
    open();
    moveTo(0);
    send(*window, NativeMouseLeave, CPoint(900, 3));
    EXPECT_EQ(selection(), 0);
    EXPECT_NE(window->getChildWindow(), nullptr);
}

TEST_F(CMenuWindow, AChoiceFromASubMenuReachesTheOwner) {
    addSubMenu("more");
    open();
    moveTo(0);
    auto &child = *window->getChildWindow();
    events.clear();
    const CPoint point = middleOf(areaOf(child, 1));
    send(child, NativeMouseMove, point);
    send(child, NativeLeftDown, point);
    send(child, NativeLeftUp, point);
    EXPECT_THAT(events, ElementsAre("closed", "selected second in a sub-menu"));
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(CMenuWindow, StaysOpenWhileASubMenuTakesTheFocus) {
    addSubMenu("more");
    open();
    fakeNatives().onCreate = [&](INativeWindowListener &) { loseFocus(*window); };
    moveTo(0);
    EXPECT_TRUE(window->isOpen());
}

TEST_F(CMenuWindow, ClosesTheWholeChainWithoutFocus) {
    addSubMenu("more");
    open();
    moveTo(0);
    events.clear();
    loseFocus(*window->getChildWindow());
    EXPECT_THAT(events, ElementsAre("closed in a sub-menu", "closed"));
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(CMenuWindow, DeletingItClosesTheChain) {
    addSubMenu("more");
    open();
    moveTo(0);
    delete std::exchange(window, nullptr);
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

// A listener that deletes the window

TEST_F(CMenuWindow, MayBeDeletedWhenAnItemIsChosen) {
    add("a");
    open();
    onEvent = [&] {
        if (events.back() == "selected a")
            delete std::exchange(window, nullptr);
    };
    click(0);
    EXPECT_EQ(window, nullptr);
}

TEST_F(CMenuWindow, MayBeDeletedWhenAnItemOfASubMenuIsChosen) {
    addSubMenu("more");
    open();
    moveTo(0);
    auto &child = *window->getChildWindow();
    const CPoint point = middleOf(areaOf(child, 0));
    send(child, NativeMouseMove, point);
    onEvent = [&] {
        if (events.back() == "selected first in a sub-menu")
            delete std::exchange(window, nullptr);
    };
    send(child, NativeLeftDown, point);
    send(child, NativeLeftUp, point);
    EXPECT_EQ(window, nullptr);
}

TEST_F(CMenuWindow, MayBeDeletedWhenASubMenuOpens) {
    addSubMenu("more");
    open();
    onEvent = [&] { delete std::exchange(window, nullptr); };
    moveTo(0);
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(CMenuWindow, MayBeDeletedWhenASubMenuCloses) {
    addSubMenu("more");
    open();
    moveTo(0);
    onEvent = [&] { delete std::exchange(window, nullptr); };
    loseFocus(*window->getChildWindow());
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}
