#pragma once

#include "foundation/CString.h"
#include "platform/NativeTime.h"

namespace Tessitor::Host {

/// A date and a time of day, all zero at first. The setters do not check that the date exists.
/// [one thread at a time]
class CTime : public Basics::CCountedObject {
public:
    CTime() { s_class.incrementInstanceCount(); }
    CTime(const CTime &other);
    ~CTime() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }
    /// "Sunday 1 March 2026". An invalid day of the week or month has the name "".
    void getObjectDescription(char *array, long size) const override;

    CTime &operator=(const CTime &other) = default;
    void setCurrentTime();  ///< local time

    std::uint16_t getYear() const { return m_time.year; }
    std::uint16_t getMonth() const { return m_time.month; }          ///< 1 for January
    std::uint16_t getDayOfWeek() const { return m_time.dayOfWeek; }  ///< 0 for Sunday
    std::uint16_t getDay() const { return m_time.day; }              ///< of the month, from 1
    std::uint16_t getHour() const { return m_time.hour; }
    std::uint16_t getMinute() const { return m_time.minute; }
    std::uint16_t getSecond() const { return m_time.second; }
    std::uint16_t getMillisecond() const { return m_time.millisecond; }
    void setYear(std::uint16_t year) { m_time.year = year; }
    void setMonth(std::uint16_t month) { m_time.month = month; }
    void setDayOfWeek(std::uint16_t day) { m_time.dayOfWeek = day; }
    void setDay(std::uint16_t day) { m_time.day = day; }
    void setHour(std::uint16_t hour) { m_time.hour = hour; }
    void setMinute(std::uint16_t minute) { m_time.minute = minute; }
    void setSecond(std::uint16_t second) { m_time.second = second; }
    void setMillisecond(std::uint16_t millisecond) { m_time.millisecond = millisecond; }

    /// Converts to a Windows FILETIME: units of 100 ns since 1 January 1601, in the same time zone.
    /// @return 0 if the date or time is invalid, or the year is not from 1601 to 30827. The day of
    ///         the week is ignored.
    std::uint64_t toFileTime() const;
    void fromFileTime(std::uint64_t fileTime);  ///< values above 2^63 - 1 are ignored

    Basics::CString getDate() const;  ///< "day/month/year" with 2, 2 and 4 digits
    Basics::CString getTime() const;  ///< "hour:minute:second:millisecond", at least 2 digits each

private:
    static Basics::TClassRecord<CTime> s_class;

    SNativeTime m_time;
};

}  // namespace Tessitor::Host
