#include "toolkit/graphics/ManyPaintings.h"

#include "platform/win32/drawing/CountObjects.h"

#include <gtest/gtest.h>

namespace {

TEST(ManyPaintings, LeaveNoHandleBehind) {
    paintManyTimes(1);
    const int before = countObjects();
    paintManyTimes(10'000);
    EXPECT_EQ(countObjects(), before);
}

}  // namespace
