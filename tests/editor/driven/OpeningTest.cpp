// The ways in which hosts open and close the editor.
#include "DrivenEditor.h"

#include <future>

namespace {

using Layout::EHotSpot;
using testing::ElementsAre;
using testing::IsEmpty;

class DrivenOpening : public DrivenEffect {
protected:
    static SNativeRect rectOf(const CLoadedEffect &effect) {
        ERect *rect = nullptr;
        EXPECT_EQ(effect.send(effEditGetRect, 0, 0, &rect), 1);
        return {rect->left, rect->top, rect->right, rect->bottom};
    }
    static void expectSize(const CLoadedEffect &effect) {
        const auto [left, top, right, bottom] = rectOf(effect);
        EXPECT_EQ(left, 0);
        EXPECT_EQ(top, 0);
        EXPECT_EQ(right, Layout::width);
        EXPECT_EQ(bottom, Layout::height);
    }
    /// Whether users can work with an editor.
    void expectAlive(CEffectInHost &used) {
        used.doubleClickAt({40, 40});
        host.forgetCalls();
        used.drag({40, 40}, 50, 0);
        EXPECT_THAT(takeAutomation(), ElementsAre(SAutomation{kInGain, 0.75f}));
        const CPicture before = used.picture();
        used.turnWheelAt({40, 40}, 1);
        EXPECT_TRUE(differWithin(before, used.picture(), Layout::topRow[0].area));
        used.clickHotSpot(EHotSpot::Insert, 5);
        EXPECT_EQ(desktop->countMenus(), 1);
        used.clickAt(Layout::empty);
        EXPECT_EQ(desktop->countMenus(), 0);
    }
    /// That nothing is left of an editor on the desktop.
    static void expectGone(void *window) {
        desktop->settle([] {});
        EXPECT_EQ(window != nullptr ? desktop->countChildren(window) : 0, 0);
        EXPECT_EQ(desktop->countMenus(), 0);
        EXPECT_TRUE(desktop->isPointerFree());
        EXPECT_TRUE(desktop->isKeyboardFree());
    }
    void releaseButton() {
        desktop->release();
        desktop->settle([] {});
    }
};

TEST_F(DrivenOpening, TheSizeIsAlwaysTheSame) {
    expectSize(driven.effect);
    driven.open();
    expectSize(driven.effect);
    driven.close();
    expectSize(driven.effect);
}

TEST_F(DrivenOpening, NeitherSizeNorIdleIsNeededBefore) {
    driven.open();
    expectSize(driven.effect);
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, IdleAndCloseAreHarmlessWhileItIsClosed) {
    driven.idle();
    driven.effect.send(effEditClose);
    driven.idle();
    driven.open();
    expectAlive(driven);
    driven.effect.send(effEditClose);
    driven.effect.send(effEditClose);
    driven.idle();
    expectGone(driven.window());
}

TEST_F(DrivenOpening, AHiddenWindowOfOnePixelWillDo) {
    driven.open();
    driven.moveTo(Layout::empty);
    const CPicture expected = driven.picture();
    driven.close();
    driven.openInTinyWindow();
    driven.moveTo(Layout::empty);
    EXPECT_EQ(driven.picture(), expected);
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, ItCanBeOpenedAgain) {
    for (int i = 0; i < 5; ++i) {
        driven.open();
        expectAlive(driven);
        driven.effect.send(effEditClose);
        driven.settle();
        expectGone(driven.window());
        driven.destroyWindow();
    }
}

TEST_F(DrivenOpening, ItLooksTheSameWhenOpenedAgain) {
    driven.open();
    driven.chooseModule(EHotSpot::Insert, 4, 16);
    driven.drag({40, 40}, 30, 0);
    driven.moveTo(Layout::empty);
    const CPicture picture = driven.picture();
    driven.close();
    driven.open();
    driven.moveTo(Layout::empty);
    EXPECT_EQ(driven.picture(), picture);
    driven.close();
}

TEST_F(DrivenOpening, AnotherThreadThanThatOfTheEffectCanOpenIt) {
    const auto use = [this] {
        driven.openInTinyWindow();
        expectAlive(driven);
        driven.effect.send(effEditClose);
        expectGone(driven.window());
        driven.destroyWindow();
    };
    std::future<void> thread = std::async(std::launch::async, use);
    // The desktop has a window of this thread.
    while (thread.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
        desktop->settle([] {});
    driven.open();
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, TwoEffectsCanBeUsedInTurn) {
    CEffectInHost other(*desktop, file);
    driven.open();
    other.open(CEffectInHost::lowerPlace);
    for (int i = 0; i < 2; ++i) {
        driven.effect.setParameter(kInGain, 0.75f);
        expectAlive(other);
        EXPECT_EQ(driven.effect.getParameter(kInGain), 0.75f);
        other.effect.setParameter(kInGain, 0.75f);
        expectAlive(driven);
        EXPECT_EQ(other.effect.getParameter(kInGain), 0.75f);
    }
    driven.close();
    expectAlive(other);
    other.close();
}

// The end

TEST_F(DrivenOpening, TheHostMayDestroyItsWindowFirst) {
    driven.open();
    driven.destroyWindow();
    driven.idle();
    driven.effect.setParameter(kInGain, 0.75f);
    driven.idle();
    driven.effect.send(effEditClose);
    expectGone(nullptr);
    driven.open();
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, TheHostMayDestroyItsWindowWhileAMenuIsOpen) {
    driven.open();
    driven.clickHotSpot(EHotSpot::Insert, 0);
    ASSERT_EQ(desktop->countMenus(), 1);
    driven.destroyWindow();
    driven.settle();
    EXPECT_EQ(desktop->countMenus(), 0);
    driven.effect.send(effEditClose);
    driven.settle();
    expectGone(nullptr);
    driven.open();
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, ItMayBeClosedWhileAMenuIsOpen) {
    driven.open();
    driven.clickAt({96, 40});
    ASSERT_EQ(desktop->countMenus(), 1);
    driven.effect.send(effEditClose);
    driven.settle();
    expectGone(driven.window());
    driven.destroyWindow();
    driven.open();
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, ItMayBeClosedInADrag) {
    driven.open();
    driven.pressAt({40, 40});
    driven.moveTo({45, 40});
    driven.effect.send(effEditClose);
    releaseButton();
    expectGone(driven.window());
    driven.destroyWindow();
    driven.open();
    takeAutomation();
    driven.moveTo({50, 40});
    driven.moveTo({90, 40});
    EXPECT_THAT(takeAutomation(), IsEmpty()) << "the drag goes on";
    expectAlive(driven);
    driven.close();
}

TEST_F(DrivenOpening, TheEffectMayEndWhileItIsOpen) {
    void *window = nullptr;
    {
        CEffectInHost other(*desktop, file);
        other.open(CEffectInHost::lowerPlace);
        other.clickHotSpot(EHotSpot::Insert, 0);
        ASSERT_EQ(desktop->countMenus(), 1);
        window = other.leaveWindow();
    }
    desktop->settle([] {});
    expectGone(window);
    desktop->destroyHostWindow(window);
}

TEST_F(DrivenOpening, TheEffectMayEndInADrag) {
    void *window = nullptr;
    {
        CEffectInHost other(*desktop, file);
        other.open(CEffectInHost::lowerPlace);
        other.pressAt({40, 40});
        window = other.leaveWindow();
    }
    releaseButton();
    expectGone(window);
    desktop->destroyHostWindow(window);
}

}  // namespace
