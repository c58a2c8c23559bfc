// What users do with the slots: insert, replace and remove modules, and move them.
#include "DrivenEditor.h"

namespace {

using Layout::EHotSpot;
using testing::ElementsAre;
using testing::IsEmpty;

/// The chain of the effect beside what it is to be, and the editor beside that of another effect,
/// which has got the same program from the host.
class DrivenSlots : public DrivenEditor {
protected:
    DrivenSlots() { other.open(CEffectInHost::lowerPlace); }
    ~DrivenSlots() override { other.effect.send(effEditClose); }

    void begin(const std::vector<int> &modules) {
        showChain(modules);
        chain.load(driven.stored().links);
        host.forgetCalls();
    }
    /// Whether effect, program and screen show what the model says.
    void expectChain() {
        SStoredProgram expected = driven.stored();
        expected.links = chain.getLinks();
        EXPECT_EQ(driven.stored(), expected);
        EXPECT_THAT(takeAutomation(), IsEmpty());
        EXPECT_EQ(desktop->countMenus(), 0);
        other.restore(driven.stored());
        other.settle();
        driven.moveTo(Layout::empty);
        const SNativeRect difference =
            differenceOutside(driven.picture(), other.picture(), std::span<SNativeRect>());
        EXPECT_EQ(difference.right, 0)
            << "the editor shows something else from " << difference.left << ", " << difference.top;
    }
    std::vector<int> shown() const {
        const auto slots = chain.getSlots();
        return {slots.begin(), slots.end()};
    }

    CChainModel chain{driven.stored().links};
    CEffectInHost other{*desktop, file};
};

// Inserting

TEST_F(DrivenSlots, EachModuleCanBeInserted) {
    for (int module = kFirstModuleSlot; module <= kLastModuleSlot; ++module) {
        SCOPED_TRACE(module);
        begin({});
        driven.chooseModule(EHotSpot::Insert, 0, module);
        chain.append(module);
        expectChain();
    }
}

TEST_F(DrivenSlots, AnEmptySlotAppendsWhicheverItIs) {
    begin({});
    for (const auto &[slot, module] :
         {std::pair{5, 17}, {3, 2}, {4, 9}, {3, 10}, {5, 4}, {5, 16}}) {
        driven.chooseModule(EHotSpot::Insert, slot, module);
        chain.append(module);
        expectChain();
    }
    EXPECT_THAT(shown(), ElementsAre(17, 2, 9, 10, 4, 16));
}

TEST_F(DrivenSlots, AModuleIsInsertedBeforeTheOneInTheSlot) {
    begin({});
    chain.append(2);
    driven.chooseModule(EHotSpot::Insert, 0, 2);
    for (const auto &[slot, module] : {std::pair{0, 3}, {1, 4}, {2, 5}, {3, 6}, {0, 7}}) {
        SCOPED_TRACE(slot);
        chain.insertBefore(shown().at(static_cast<std::size_t>(slot)), module);
        driven.chooseModule(EHotSpot::Insert, slot, module);
        expectChain();
    }
    EXPECT_THAT(shown(), ElementsAre(7, 3, 4, 5, 6, 2));
}

TEST_F(DrivenSlots, SixModulesAreTheMost) {
    begin({2, 3, 4, 5, 6, 7});
    for (int slot = 0; slot < Layout::slotCount; ++slot) {
        driven.chooseModule(EHotSpot::Insert, slot, 17);
        EXPECT_EQ(desktop->countMenus(), 1) << "a disabled item does nothing";
        driven.clickAt(Layout::empty);
        expectChain();
    }
}

TEST_F(DrivenSlots, AModuleInUseCannotBeChosen) {
    begin({4, 9});
    for (const EHotSpot kind : {EHotSpot::Insert, EHotSpot::Replace}) {
        for (const int module : {4, 9}) {
            driven.chooseModule(kind, 0, module);
            EXPECT_EQ(desktop->countMenus(), 1);
            driven.clickAt(Layout::empty);
            expectChain();
        }
    }
}

// Replacing and removing

TEST_F(DrivenSlots, EachSlotCanBeReplaced) {
    for (int slot = 0; slot < Layout::slotCount; ++slot) {
        SCOPED_TRACE(slot);
        begin({2, 3, 4, 5, 6, 7});
        chain.replace(2 + slot, 17 - slot);
        driven.chooseModule(EHotSpot::Replace, slot, 17 - slot);
        expectChain();
    }
}

// Kept: the module after the replaced one still leads back to it.
TEST_F(DrivenSlots, RemovingAfterAReplacementUnlinksTheWrongModule) {
    begin({2, 3, 4, 5});
    chain.replace(3, 10);
    driven.chooseModule(EHotSpot::Replace, 1, 10);
    expectChain();
    chain.remove(4);
    driven.chooseModule(EHotSpot::Replace, 2, -1);
    expectChain();
    EXPECT_THAT(shown(), ElementsAre(2, 10, 4, -1, -1, -1));
}

TEST_F(DrivenSlots, BothMenusRemoveTheModule) {
    for (const EHotSpot kind : {EHotSpot::Insert, EHotSpot::Replace}) {
        begin({12, 13, 14, 15, 16, 17});
        for (const int slot : {5, 0, 2, 1, 1, 0}) {
            SCOPED_TRACE(slot);
            chain.remove(shown().at(static_cast<std::size_t>(slot)));
            driven.chooseModule(kind, slot, -1);
            expectChain();
        }
        EXPECT_EQ(chain.getCount(), 0);
    }
}

TEST_F(DrivenSlots, NoModuleIsRemovedFromAnEmptySlot) {
    begin({8});
    driven.chooseModule(EHotSpot::Insert, 3, -1);
    expectChain();
}

TEST_F(DrivenSlots, AnEmptySlotCannotBeReplaced) {
    begin({8, 9});
    for (const int slot : {2, 5}) {
        driven.clickHotSpot(EHotSpot::Replace, slot);
        EXPECT_EQ(desktop->countMenus(), 0);
        expectChain();
    }
}

// Moving

TEST_F(DrivenSlots, AModuleMovesThroughAllSlotsAndBack) {
    begin({2, 3, 4, 5, 6, 7});
    for (int slot = 0; slot < Layout::slotCount - 1; ++slot) {
        const auto modules = shown();
        chain.moveBefore(modules.at(static_cast<std::size_t>(slot)),
                         modules.at(static_cast<std::size_t>(slot + 1)));
        driven.clickHotSpot(EHotSpot::MoveRight, slot);
        expectChain();
    }
    EXPECT_THAT(shown(), ElementsAre(3, 4, 5, 6, 7, 2));
    for (int slot = Layout::slotCount - 1; slot > 0; --slot) {
        const auto modules = shown();
        chain.moveBefore(modules.at(static_cast<std::size_t>(slot - 1)),
                         modules.at(static_cast<std::size_t>(slot)));
        driven.clickHotSpot(EHotSpot::MoveLeft, slot);
        expectChain();
    }
    EXPECT_THAT(shown(), ElementsAre(2, 3, 4, 5, 6, 7));
}

TEST_F(DrivenSlots, TheEndsAndEmptySlotsDoNotMove) {
    begin({2, 3, 4});
    for (int slot = 2; slot < Layout::slotCount; ++slot)
        driven.clickHotSpot(EHotSpot::MoveRight, slot);
    for (int slot = 3; slot < Layout::slotCount; ++slot)
        driven.clickHotSpot(EHotSpot::MoveLeft, slot);
    driven.clickHotSpot(EHotSpot::MoveLeft, 0);
    expectChain();
    begin({2, 3, 4, 5, 6, 7});
    driven.clickHotSpot(EHotSpot::MoveRight, 5);
    driven.clickHotSpot(EHotSpot::MoveLeft, 0);
    expectChain();
}

// The menu

TEST_F(DrivenSlots, APressBesideTheMenuClosesItAndDoesNothingElse) {
    begin({2, 3});
    driven.clickHotSpot(EHotSpot::Insert, 0);
    ASSERT_EQ(desktop->countMenus(), 1);
    driven.clickAt(Layout::empty);
    expectChain();
    EXPECT_TRUE(desktop->isPointerFree());
}

TEST_F(DrivenSlots, AReleaseOnAnotherItemChoosesNone) {
    begin({2, 3});
    driven.clickHotSpot(EHotSpot::Insert, 0);
    const auto menu = desktop->openMenu();
    ASSERT_TRUE(menu.has_value());
    const auto moveIntoMenu = [&](int y) {
        desktop->movePointer({menu->left + 20, menu->top + y});
        driven.settle();
    };
    moveIntoMenu(menu->bottom - menu->top - 5);
    desktop->press();
    driven.settle();
    moveIntoMenu((menu->bottom - menu->top) / 2);
    desktop->release();
    driven.settle();
    EXPECT_EQ(desktop->countMenus(), 1);
    driven.clickAt(Layout::empty);
    expectChain();
}

}  // namespace
