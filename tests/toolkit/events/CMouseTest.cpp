#include "toolkit/events/CMouse.h"

#include "toolkit/events/CCursor.h"
#include "toolkit/events/CFakeWindow.h"
#include "toolkit/events/FakeNativeMouse.h"

#include <gtest/gtest.h>

using Tessitor::GUI::Windowing::CCursor;
using Tessitor::GUI::Windowing::CMouse;
using Tessitor::GUI::Windowing::ECursorKind;
using Tessitor::MathTools::CPoint;

namespace {

TEST(CMouse, StartsAtTheOriginWithTheDefaultCursor) {
    fakeNativeMouse().shown = nullptr;
    const CMouse mouse;
    EXPECT_EQ(mouse.getPosition(), CPoint(0, 0));
    EXPECT_EQ(mouse.getCursor(), CCursor::getDefaultCursor());
    EXPECT_EQ(fakeNativeMouse().shown, nullptr);
}

TEST(CMouse, UnpacksSignedPositions) {
    CMouse mouse;
    mouse.setPositionFromPackedLong(0x00050003);
    EXPECT_EQ(mouse.getPosition(), CPoint(3, 5));
    mouse.setPositionFromPackedLong(0x7FFF8000);
    EXPECT_EQ(mouse.getPosition(), CPoint(-32768, 32767));
    mouse.setPositionFromPackedLong(-1);
    EXPECT_EQ(mouse.getPosition(), CPoint(-1, -1));
}

TEST(CMouse, ShowsTheCursorThatIsSet) {
    CMouse mouse;
    CCursor hand(ECursorKind::Hand);
    mouse.setCursor(&hand);
    EXPECT_EQ(mouse.getCursor(), &hand);
    EXPECT_EQ(fakeNativeMouse().shown, hand.getCursorHandle());
    mouse.setCursor(nullptr);
    EXPECT_EQ(mouse.getCursor(), &hand);
    EXPECT_EQ(fakeNativeMouse().shown, hand.getCursorHandle());
}

TEST(CMouse, ShowsTheHandOfTheLibrary) {
    CMouse mouse;
    mouse.setCursor(CCursor::getHandCursor());
    EXPECT_EQ(fakeNativeMouse().cursorOf(fakeNativeMouse().shown).number, 32649);
    EXPECT_EQ(CCursor::getHandCursor(), CCursor::getHandCursor());
}

TEST(CMouse, KnowsWhichWindowHasCapturedIt) {
    CFakeWindow first, second;
    int firstNative = 0, secondNative = 0;
    first.getMutableWindowHandle()->native = &firstNative;
    second.getMutableWindowHandle()->native = &secondNative;
    CMouse mouse;
    EXPECT_FALSE(mouse.isCaptured());
    mouse.captureMouse(&first);
    EXPECT_EQ(fakeNativeMouse().captureWindow, &firstNative);
    EXPECT_TRUE(mouse.isCaptured());
    EXPECT_TRUE(mouse.isCapturedBy(&first));
    EXPECT_FALSE(mouse.isCapturedBy(&second));
    mouse.releaseMouse();
    EXPECT_FALSE(mouse.isCaptured());
    EXPECT_FALSE(mouse.isCapturedBy(&first));
}

TEST(CMouse, IsNotCapturedByAWindowThatDoesNotExist) {
    CFakeWindow window;
    EXPECT_FALSE(CMouse().isCapturedBy(&window));
}

TEST(CCursor, LoadsTheCursorOfItsKind) {
    const int numbers[] = {32512, 32649, 32514, 32645, 32644, 32513, 32642, 32646, 32512};
    int kind = 0;
    for (const int number : numbers) {
        const CCursor cursor(static_cast<ECursorKind>(kind++));
        EXPECT_EQ(fakeNativeMouse().cursorOf(cursor.getCursorHandle()).number, number);
    }
}

TEST(CCursor, LoadsResources) {
    int module = 0;
    const CCursor still(&module, 101, false), animated(&module, 102, true);
    const auto &first = fakeNativeMouse().cursorOf(still.getCursorHandle());
    EXPECT_EQ(first.number, 101);
    EXPECT_EQ(first.module, &module);
    EXPECT_FALSE(first.isAnimated);
    const auto &second = fakeNativeMouse().cursorOf(animated.getCursorHandle());
    EXPECT_EQ(second.number, 102);
    EXPECT_EQ(second.module, &module);
    EXPECT_TRUE(second.isAnimated);
}

TEST(CCursor, DestroysItsHandle) {
    void *handle = nullptr;
    {
        const CCursor cursor(ECursorKind::Text);
        handle = cursor.getCursorHandle();
        EXPECT_TRUE(cursor.getClass() == "CCursor");
    }
    EXPECT_EQ(fakeNativeMouse().destroyed.back(), handle);
}

}  // namespace
