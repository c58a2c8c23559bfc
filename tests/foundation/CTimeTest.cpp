#include "foundation/CTime.h"

#include "foundation/Description.h"
#include "foundation/FakeMachine.h"

#include <gtest/gtest.h>
#include <limits>

using Tessitor::Host::CTime;

namespace {

/// year-month-day(day of the week) hour:minute:second.millisecond
std::string textOf(const CTime &time) {
    char text[128];
    std::snprintf(text, sizeof text, "%d-%d-%d(%d) %d:%d:%d.%d", time.getYear(), time.getMonth(),
                  time.getDay(), time.getDayOfWeek(), time.getHour(), time.getMinute(),
                  time.getSecond(), time.getMillisecond());
    return text;
}

CTime sample() {
    CTime time;
    time.setYear(2026);
    time.setMonth(3);
    time.setDayOfWeek(0);
    time.setDay(1);
    time.setHour(7);
    time.setMinute(8);
    time.setSecond(9);
    time.setMillisecond(5);
    return time;
}

TEST(CTime, IsZeroAtFirst) {
    EXPECT_EQ(textOf(CTime()), "0-0-0(0) 0:0:0.0");
}

TEST(CTime, StoresEachField) {
    EXPECT_EQ(textOf(sample()), "2026-3-1(0) 7:8:9.5");
    EXPECT_EQ(textOf(CTime(sample())), "2026-3-1(0) 7:8:9.5");
    CTime time;
    time = sample();
    EXPECT_EQ(textOf(time), "2026-3-1(0) 7:8:9.5");
}

TEST(CTime, DescribesTheDay) {
    EXPECT_EQ(descriptionOf(sample()), "Sunday 1 March 2026");
}

TEST(CTime, NamesEveryDayAndEveryMonth) {
    const char *days[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                          "Thursday", "Friday", "Saturday"};
    const char *months[] = {"January", "February", "March",     "April",   "May",      "June",
                            "July",    "August",   "September", "October", "November", "December"};
    CTime time = sample();
    for (std::uint16_t day = 0; day < 7; ++day) {
        time.setDayOfWeek(day);
        for (std::uint16_t month = 1; month <= 12; ++month) {
            time.setMonth(month);
            EXPECT_EQ(descriptionOf(time),
                      std::string(days[day]) + " 1 " + months[month - 1] + " 2026");
        }
    }
}

TEST(CTime, AnInvalidDayOrMonthHasNoName) {
    CTime time = sample();
    time.setDayOfWeek(7);
    time.setMonth(13);
    EXPECT_EQ(descriptionOf(time), " 1  2026");
    time.setMonth(0);
    EXPECT_EQ(descriptionOf(time), " 1  2026");
}

TEST(CTime, PadsDateAndTimeWithZeros) {
    EXPECT_STREQ(sample().getDate().getString(), "01/03/2026");
    EXPECT_STREQ(sample().getTime().getString(), "07:08:09:05");
    EXPECT_STREQ(CTime().getDate().getString(), "00/00/0000");
    CTime late = sample();
    late.setMillisecond(987);
    EXPECT_STREQ(late.getTime().getString(), "07:08:09:987");
}

TEST(CTime, ConvertsToFileTimeAndBack) {
    constexpr std::uint64_t at1970 = 116'444'736'000'000'000;
    CTime time;
    time.fromFileTime(at1970);
    EXPECT_EQ(textOf(time), "1970-1-1(4) 0:0:0.0");
    EXPECT_EQ(time.toFileTime(), at1970);
    time.fromFileTime(0);
    EXPECT_EQ(textOf(time), "1601-1-1(1) 0:0:0.0");
    EXPECT_EQ(time.toFileTime(), 0u);
    // Thursday 29 February 2024, 23:59:59.999 and 9,999 ticks into the next millisecond
    constexpr std::uint64_t leapDay = 133'537'247'999'999'999;
    time.fromFileTime(leapDay);
    EXPECT_EQ(textOf(time), "2024-2-29(4) 23:59:59.999");
    EXPECT_EQ(time.toFileTime(), leapDay - 9'999);
}

TEST(CTime, ConvertsTheLargestFileTime) {
    constexpr auto last = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    CTime time;
    time.fromFileTime(last);
    EXPECT_EQ(textOf(time), "30828-9-14(4) 2:48:5.477");
    time = sample();
    time.fromFileTime(last + 1);
    EXPECT_EQ(textOf(time), "2026-3-1(0) 7:8:9.5");
}

TEST(CTime, AnInvalidTimeHasNoFileTime) {
    using Change = void (*)(CTime &);
    const Change changes[] = {
        [](CTime &t) { t.setYear(1600); },  [](CTime &t) { t.setYear(30828); },
        [](CTime &t) { t.setYear(65535); }, [](CTime &t) { t.setMonth(0); },
        [](CTime &t) { t.setMonth(13); },   [](CTime &t) { t.setDay(0); },
        [](CTime &t) { t.setDay(32); },     [](CTime &t) { t.setMonth(2), t.setDay(29); },
        [](CTime &t) { t.setHour(24); },    [](CTime &t) { t.setMinute(60); },
        [](CTime &t) { t.setSecond(60); },  [](CTime &t) { t.setMillisecond(1000); }};
    EXPECT_NE(sample().toFileTime(), 0u);
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        CTime time = sample();
        changes[i](time);
        EXPECT_EQ(time.toFileTime(), 0u) << i;
    }
}

TEST(CTime, IgnoresTheDayOfTheWeekInTheConversion) {
    CTime time = sample();
    time.setDayOfWeek(5);
    EXPECT_EQ(time.toFileTime(), sample().toFileTime());
}

TEST(CTime, TakesTheLocalTime) {
    fakeMachine().localTime = {2026, 3, 0, 1, 7, 8, 9, 5};
    CTime time;
    time.setCurrentTime();
    EXPECT_EQ(textOf(time), "2026-3-1(0) 7:8:9.5");
}

TEST(CTime, EveryConstructorCounts) {
    const CTime time;
    EXPECT_TRUE(time.getClass() == "CTime");
    const auto instances = time.getClass().getInstanceCount();
    {
        const CTime copy(time), another;
        EXPECT_EQ(time.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(time.getClass().getInstanceCount(), instances);
}

}  // namespace
