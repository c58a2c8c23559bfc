#include "foundation/CTime.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <limits>

namespace Tessitor::Host {

namespace {

using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

constexpr int firstYear = 1601, lastYear = 30827;
constexpr std::chrono::sys_days beginning = std::chrono::year(firstYear) / 1 / 1;

constexpr std::array<const char *, 7> dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                               "Thursday", "Friday", "Saturday"};
constexpr std::array<const char *, 12> monthNames{"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};

template <std::size_t size>
const char *nameAt(const std::array<const char *, size> &names, std::size_t index) {
    return index < size ? names[index] : "";
}

template <typename Number>
std::uint16_t field(Number number) {
    return static_cast<std::uint16_t>(number);
}

}  // namespace

Basics::TClassRecord<CTime> CTime::s_class("CTime", "CCountedObject");

CTime::CTime(const CTime &other) : CTime() {
    *this = other;
}

void CTime::getObjectDescription(char *array, long size) const {
    Basics::CString text;
    // A month of 0 wraps to an index past the end.
    text.setStringWithFormat("%s %d %s %d", nameAt(dayNames, m_time.dayOfWeek), m_time.day,
                             nameAt(monthNames, std::size_t{m_time.month} - 1), m_time.year);
    text.getString(array, size);
}

void CTime::setCurrentTime() {
    m_time = nativeLocalTime();
}

std::uint64_t CTime::toFileTime() const {
    using namespace std::chrono;
    if (m_time.year < firstYear || m_time.year > lastYear || m_time.hour > 23 ||
        m_time.minute > 59 || m_time.second > 59 || m_time.millisecond > 999)
        return 0;
    const year_month_day date{year(m_time.year), month(m_time.month), day(m_time.day)};
    if (!date.ok())
        return 0;
    const Ticks ticks = sys_days(date) - beginning + hours(m_time.hour) + minutes(m_time.minute) +
                        seconds(m_time.second) + milliseconds(m_time.millisecond);
    return static_cast<std::uint64_t>(ticks.count());
}

void CTime::fromFileTime(std::uint64_t fileTime) {
    using namespace std::chrono;
    if (fileTime > std::uint64_t{std::numeric_limits<std::int64_t>::max()})
        return;
    const Ticks ticks(static_cast<std::int64_t>(fileTime));
    const days passed = floor<days>(ticks);
    const year_month_day date(beginning + passed);
    const hh_mm_ss clock(floor<milliseconds>(ticks - passed));
    m_time = {field(static_cast<int>(date.year())),
              field(static_cast<unsigned>(date.month())),
              field(weekday(beginning + passed).c_encoding()),
              field(static_cast<unsigned>(date.day())),
              field(clock.hours().count()),
              field(clock.minutes().count()),
              field(clock.seconds().count()),
              field(clock.subseconds().count())};
}

Basics::CString CTime::getDate() const {
    Basics::CString text;
    text.setStringWithFormat("%.02d/%.02d/%.04d", m_time.day, m_time.month, m_time.year);
    return text;
}

Basics::CString CTime::getTime() const {
    Basics::CString text;
    text.setStringWithFormat("%.02d:%.02d:%.02d:%.02d", m_time.hour, m_time.minute, m_time.second,
                             m_time.millisecond);
    return text;
}

}  // namespace Tessitor::Host
