#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// A parsed text of a parameter: "3.0:1" is 3 and 1, "Linked" has no number.
struct SReading {
    std::optional<double> number;  // "-oo" is minus infinity
    std::optional<double> second;
    std::string rest;  // after the numbers; lower case, no spaces

    bool operator==(const SReading &) const = default;
};

/// @param text  with a point or a comma in its numbers.
SReading readingOf(std::string_view text);

/// Converts a reading with a unit to the unit of the parameter: "1 kHz" to 1000 for "Hz".
/// @return a reading without the unit; none if it has no number or another unit.
std::optional<SReading> inUnit(const SReading &asked, std::string_view unit);

}  // namespace Tessitor::Tool
