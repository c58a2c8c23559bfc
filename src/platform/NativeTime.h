#pragma once

#include <cstdint>

/// A date and a time of day, laid out like SYSTEMTIME on Windows.
struct SNativeTime {
    std::uint16_t year = 0;
    std::uint16_t month = 0;      // 1 for January
    std::uint16_t dayOfWeek = 0;  // 0 for Sunday
    std::uint16_t day = 0;        // of the month, from 1
    std::uint16_t hour = 0;
    std::uint16_t minute = 0;
    std::uint16_t second = 0;  // 60 in a leap second, on systems that show one
    std::uint16_t millisecond = 0;
};

/// @return the current date and time in the user's time zone. [any thread]
SNativeTime nativeLocalTime();
