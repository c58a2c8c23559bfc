#include "toolkit/menus/CMenu.h"

#include "toolkit/menus/CHtmlMenuItem.h"
#include "toolkit/menus/CMenuEvent.h"
#include "toolkit/menus/CSelectableMenuItem.h"
#include "toolkit/menus/CSubMenuMenuItem.h"
#include "toolkit/menus/NoteLengthMenu.h"
#include "toolkit/menus/SMenuColours.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Events::CMenuEvent;
using namespace Tessitor::GUI::Controls;

namespace {

/// Keeps a counted object for a test.
template <typename Counted>
class CKept {
public:
    explicit CKept(Counted *object) : m_object(object) { m_object->reference(); }
    CKept(const CKept &) = delete;
    CKept &operator=(const CKept &) = delete;
    ~CKept() { m_object->dereference(); }
    Counted *operator->() const { return m_object; }
    Counted *get() const { return m_object; }

private:
    Counted *m_object;
};

std::vector<std::string> textsOf(const CMenu &menu) {
    std::vector<std::string> texts;
    menu.forEachItem(
        [&](const CMenuItem &item) { texts.emplace_back(item.getText().getString()); });
    return texts;
}

}  // namespace

TEST(CMenuItem, HoldsWhatItIsMadeOf) {
    const CKept item(new CMenuItem("Gate", 9, EMenuItemType::Normal, false));
    EXPECT_STREQ(item->getText().getString(), "Gate");
    EXPECT_EQ(item->getId(), 9);
    EXPECT_EQ(item->getType(), EMenuItemType::Normal);
    EXPECT_FALSE(item->isEnabled());
    EXPECT_EQ(item->getIndex(), 0);
    EXPECT_EQ(item->getNormalImage(), nullptr);
    EXPECT_EQ(item->getDisabledImage(), nullptr);
    EXPECT_FALSE(item->usesOwnColour());
    EXPECT_EQ(item->getTextColour(), CAlphaColour(0, 0, 0));
}

TEST(CMenuItem, HasATypeThatIsANumber) {
    EXPECT_EQ(static_cast<int>(EMenuItemType::Normal), 0);
    EXPECT_EQ(static_cast<int>(EMenuItemType::Address), 1);
    EXPECT_EQ(static_cast<int>(EMenuItemType::Separator), 2);
    EXPECT_EQ(static_cast<int>(EMenuItemType::Selectable), 3);
    EXPECT_EQ(static_cast<int>(EMenuItemType::SubMenu), 4);
    EXPECT_EQ(static_cast<int>(EMenuItemType::ColumnBreak), 5);
}

TEST(CMenuItem, CanBeChanged) {
    const CKept item(new CMenuItem("Gate", 9));
    item->setText("Pan");
    item->setId(-3);
    item->setType(EMenuItemType::Separator);
    item->setEnabled(false);
    item->setIndex(4);
    item->setTextColour(CAlphaColour(1, 2, 3));
    EXPECT_STREQ(item->getText().getString(), "Pan");
    EXPECT_EQ(item->getId(), -3);
    EXPECT_EQ(item->getType(), EMenuItemType::Separator);
    EXPECT_FALSE(item->isEnabled());
    EXPECT_EQ(item->getIndex(), 4);
    EXPECT_TRUE(item->usesOwnColour());
    EXPECT_EQ(item->getTextColour().getBlue(), 3);
}

TEST(CMenuItem, KindsSetTheirType) {
    const CKept<CMenuItem> subMenu(new CSubMenuMenuItem("More", 1));
    const CKept<CMenuItem> address(new CHtmlMenuItem("Web", 2, "example.org"));
    const CKept<CMenuItem> selectable(new CSelectableMenuItem("On", 3));
    EXPECT_EQ(subMenu->getType(), EMenuItemType::SubMenu);
    EXPECT_EQ(address->getType(), EMenuItemType::Address);
    EXPECT_EQ(selectable->getType(), EMenuItemType::Selectable);
    EXPECT_TRUE(subMenu->isEnabled() && address->isEnabled() && selectable->isEnabled());
}

TEST(CSubMenuMenuItem, OwnsAnEmptyMenu) {
    const CKept item(new CSubMenuMenuItem("More", 1));
    ASSERT_NE(item->getSubMenu(), nullptr);
    EXPECT_EQ(item->getSubMenu()->getReferenceCount(), 1);
    EXPECT_THAT(textsOf(*item->getSubMenu()), testing::IsEmpty());
}

TEST(CSelectableMenuItem, IsNotSelectedAtFirst) {
    const CKept item(new CSelectableMenuItem("On", 3));
    EXPECT_FALSE(item->isSelected());
    item->setSelected(true);
    EXPECT_TRUE(item->isSelected());
}

class CMenuWithThreeItems : public testing::Test {
protected:
    CMenuWithThreeItems() {
        for (const char *text : {"a", "b", "c"})
            menu->addMenuItem(new CMenuItem(text, text[0]));
    }
    const CKept<CMenu> menu{new CMenu};
};

TEST_F(CMenuWithThreeItems, HasATitleFromTheStart) {
    EXPECT_STREQ(menu->getMenuTitle().getString(), "Menu Title");
    menu->setMenuTitle("Insert FX");
    EXPECT_STREQ(menu->getMenuTitle().getString(), "Insert FX");
}

TEST_F(CMenuWithThreeItems, FindsItemsByIndexAndText) {
    EXPECT_STREQ(menu->getMenuItem(1)->getText().getString(), "b");
    EXPECT_EQ(menu->getMenuItem(-1), nullptr);
    EXPECT_EQ(menu->getMenuItem(menu->getNumberOfMenuItems()), nullptr);
    EXPECT_EQ(menu->getMenuItemByName("c"), menu->getMenuItem(2));
    EXPECT_EQ(menu->getMenuItemByName("C"), nullptr);
}

TEST_F(CMenuWithThreeItems, HoldsOneReferenceToEach) {
    EXPECT_EQ(menu->getMenuItem(0)->getReferenceCount(), 1);
}

TEST_F(CMenuWithThreeItems, IgnoresNull) {
    menu->addMenuItem(nullptr);
    EXPECT_THAT(textsOf(*menu.get()), testing::ElementsAre("a", "b", "c"));
}

TEST_F(CMenuWithThreeItems, DeletingMovesTheRestUp) {
    menu->deleteMenuItem(1);
    EXPECT_EQ(menu->getNumberOfMenuItems(), 2);
    EXPECT_STREQ(menu->getMenuItem(1)->getText().getString(), "c");
}

TEST_F(CMenuWithThreeItems, ClearingLeavesAnEmptyPlace) {
    const int places = menu->getNumberOfMenuItems();
    menu->clearMenuItem(1);
    EXPECT_EQ(menu->getNumberOfMenuItems(), places);
    EXPECT_EQ(menu->getMenuItem(1), nullptr);
    EXPECT_EQ(menu->getMenuItemByName("c"), menu->getMenuItem(2));
}

TEST(CMenuEvent, HoldsReferences) {
    const CKept item(new CMenuItem("a", 1));
    const CKept menu(new CMenu);
    {
        const CMenuEvent event(item.get(), menu.get(), nullptr);
        EXPECT_EQ(event.getMenuItem(), item.get());
        EXPECT_EQ(event.getMenu(), menu.get());
        EXPECT_EQ(event.getOriginator(), nullptr);
        EXPECT_EQ(item->getReferenceCount(), 2);
        EXPECT_EQ(menu->getReferenceCount(), 2);
    }
    EXPECT_EQ(item->getReferenceCount(), 1);
}

TEST(SMenuColours, StartsInBlackPurpleAndOrange) {
    const SMenuColours colours;
    EXPECT_EQ(colours.text, CAlphaColour(0, 0, 0));
    EXPECT_EQ(colours.disabledText, CAlphaColour(208, 208, 208));
    EXPECT_EQ(colours.separator, CAlphaColour(239, 149, 41));
    EXPECT_EQ(colours.pointer, CAlphaColour(0, 0, 0));
    EXPECT_EQ(colours.frame, CAlphaColour(153, 116, 188));
    EXPECT_EQ(colours.selectionFill, CAlphaColour(153, 116, 188));
}

TEST(NoteLengthMenu, HasThreeSubMenusOfLengths) {
    const CKept menu(createNoteLengthMenu());
    EXPECT_THAT(textsOf(*menu.get()), testing::ElementsAre("Straight", "Triplet", "Dotted"));
    std::int32_t id = 0;
    menu->forEachItem([&](CMenuItem &item) {
        const CMenu &lengths = *dynamic_cast<CSubMenuMenuItem &>(item).getSubMenu();
        EXPECT_THAT(textsOf(lengths), testing::ElementsAre("64", "32", "16", "8", "4", "2", "1"));
        lengths.forEachItem([&](const CMenuItem &length) { EXPECT_EQ(length.getId(), id++); });
    });
    EXPECT_EQ(id, 21);
}
