#include "platform/NativeTime.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <string>

namespace {

/// Sets the time zone of the process until this object is destroyed.
class CTimeZone {
public:
    explicit CTimeZone(const char *zone) {
        const char *before = std::getenv("TZ");
        m_wasSet = before != nullptr;
        m_before = m_wasSet ? before : "";
        setenv("TZ", zone, 1);
        tzset();
    }
    CTimeZone(const CTimeZone &) = delete;
    CTimeZone &operator=(const CTimeZone &) = delete;
    ~CTimeZone() {
        m_wasSet ? setenv("TZ", m_before.c_str(), 1) : unsetenv("TZ");
        tzset();
    }

private:
    bool m_wasSet;
    std::string m_before;
};

std::int64_t millisecondsSince1970() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

TEST(NativeTime, IsLocalTimeToTheMillisecond) {
    const CTimeZone farFromUtc("FAR-13:37");
    const std::int64_t before = millisecondsSince1970();
    const SNativeTime now = nativeLocalTime();
    const std::int64_t after = millisecondsSince1970();

    std::tm local{};
    local.tm_year = now.year - 1900;
    local.tm_mon = now.month - 1;
    local.tm_mday = now.day;
    local.tm_hour = now.hour;
    local.tm_min = now.minute;
    local.tm_sec = now.second;
    local.tm_isdst = -1;
    const std::int64_t read = std::int64_t{std::mktime(&local)} * 1000 + now.millisecond;
    EXPECT_GE(read, before);
    EXPECT_LE(read, after);
    EXPECT_EQ(now.dayOfWeek, local.tm_wday);
}

}  // namespace
