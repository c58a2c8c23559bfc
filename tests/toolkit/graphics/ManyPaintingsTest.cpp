#include "ManyPaintings.h"

#include "abi/HeapInUse.h"

#include <gtest/gtest.h>

namespace {

TEST(ManyPaintings, LeaveNoMemoryBehind) {
    paintManyTimes(100);  // the first ones also create what the system keeps
    const std::size_t before = heapInUse();
    constexpr std::size_t paintings = 10'000;
    paintManyTimes(paintings);
    EXPECT_LT(heapInUse(), before + paintings);  // not a byte for each
}

}  // namespace
