#include "platform/linux/windowing/pointer/CDoubleClick.h"

#include <gtest/gtest.h>

namespace {

constexpr CDoubleClick::SPress first = {/*window*/ 7, /*button*/ 1, {100, 200}, /*time*/ 5000};

CDoubleClick::SPress after(std::uint32_t milliseconds) {
    CDoubleClick::SPress press = first;
    press.time += milliseconds;
    return press;
}

CDoubleClick::SPress at(SNativePoint position) {
    CDoubleClick::SPress press = first;
    press.position = position;
    return press;
}

bool isSecond(const CDoubleClick::SPress &press) {
    CDoubleClick doubleClick;
    EXPECT_FALSE(doubleClick.handlePress(first));
    return doubleClick.handlePress(press);
}

TEST(CDoubleClick, SecondPressComesWithinHalfASecond) {
    EXPECT_TRUE(isSecond(after(0)));
    EXPECT_TRUE(isSecond(after(500)));
    EXPECT_FALSE(isSecond(after(501)));
}

TEST(CDoubleClick, SecondPressIsWithinFourPixels) {
    EXPECT_TRUE(isSecond(at({104, 196})));
    EXPECT_TRUE(isSecond(at({96, 204})));
    EXPECT_FALSE(isSecond(at({105, 200})));
    EXPECT_FALSE(isSecond(at({100, 195})));
}

TEST(CDoubleClick, SecondPressIsOfTheSameButtonInTheSameWindow) {
    CDoubleClick::SPress otherButton = first, otherWindow = first;
    otherButton.button = 3;
    otherWindow.window = 8;
    EXPECT_FALSE(isSecond(otherButton));
    EXPECT_FALSE(isSecond(otherWindow));
}

TEST(CDoubleClick, ThirdPressIsAFirstOneAgain) {
    CDoubleClick doubleClick;
    EXPECT_FALSE(doubleClick.handlePress(after(0)));
    EXPECT_TRUE(doubleClick.handlePress(after(100)));
    EXPECT_FALSE(doubleClick.handlePress(after(200)));
    EXPECT_TRUE(doubleClick.handlePress(after(300)));
}

TEST(CDoubleClick, APressThatComesTooLateIsAFirstOne) {
    CDoubleClick doubleClick;
    doubleClick.handlePress(after(0));
    EXPECT_FALSE(doubleClick.handlePress(after(600)));
    EXPECT_TRUE(doubleClick.handlePress(after(700)));
}

TEST(CDoubleClick, GoesOnWhenTheTimeStartsAgain) {
    CDoubleClick doubleClick;
    CDoubleClick::SPress press = first;
    press.time = 0xFFFFFFFF;
    EXPECT_FALSE(doubleClick.handlePress(press));
    press.time = 100;
    EXPECT_TRUE(doubleClick.handlePress(press));
}

}  // namespace
