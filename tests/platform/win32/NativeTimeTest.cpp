#include "platform/NativeTime.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

static_assert(sizeof(SNativeTime) == sizeof(SYSTEMTIME));

std::uint64_t ticks(const SYSTEMTIME &time) {
    FILETIME fileTime{};
    SystemTimeToFileTime(&time, &fileTime);
    return std::uint64_t{fileTime.dwHighDateTime} << 32 | fileTime.dwLowDateTime;
}

std::uint64_t localTicks() {
    SYSTEMTIME utc{}, local{};
    GetSystemTime(&utc);
    SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    return ticks(local);
}

// Under Wine the time zone comes from TZ, which CTest sets to a zone far from UTC.
TEST(NativeTime, IsLocalTimeToTheMillisecond) {
    const std::uint64_t before = localTicks();
    const SNativeTime now = nativeLocalTime();
    const std::uint64_t after = localTicks();

    const SYSTEMTIME read = {now.year, now.month,  now.dayOfWeek, now.day,
                             now.hour, now.minute, now.second,    now.millisecond};
    EXPECT_GE(ticks(read), before);
    EXPECT_LE(ticks(read), after);
    SYSTEMTIME today{};
    GetLocalTime(&today);
    EXPECT_EQ(now.dayOfWeek, today.wDayOfWeek);
}

}  // namespace
