#include "platform/NativeTime.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {

TEST(NativeTime, ShowsTheUsersClock) {
    const std::time_t before = std::time(nullptr);
    const SNativeTime now = nativeLocalTime();
    const std::time_t after = std::time(nullptr);

    std::tm shown{};
    shown.tm_year = now.year - 1900;
    shown.tm_mon = now.month - 1;
    shown.tm_mday = now.day;
    shown.tm_hour = now.hour;
    shown.tm_min = now.minute;
    shown.tm_sec = now.second;
    shown.tm_isdst = -1;
    const std::time_t read = std::mktime(&shown);
    EXPECT_GE(read, before - 1);  // time() may lag behind the finer clock's second
    EXPECT_LE(read, after + 1);
    EXPECT_EQ(now.dayOfWeek, shown.tm_wday);
    EXPECT_LT(now.millisecond, 1000);
}

}  // namespace
