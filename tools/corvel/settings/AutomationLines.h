#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// A line of an automation file that sets a parameter at a time.
struct SAutomationLine {
    std::size_t number;  // from 1
    double seconds;
    std::string parameter;  // name
    std::string value;      // as in --set

    bool operator==(const SAutomationLine &) const = default;
};

/// Reads lines of TIME PARAMETER VALUE. The first two end at spaces, a tab, a comma or a semicolon,
/// and the value is the rest of the line. Each may be in quotes. What follows "#" at the start of a
/// line or after a space is a comment; a first line that begins with "time" names the columns.
/// @param file  for messages.
/// @throws CJobError if it is no text. If a line is something else, the error begins with
///         "FILE:LINE: ".
std::vector<SAutomationLine> automationLines(std::string_view text, const std::string &file);

/// @return "FILE:LINE: "
std::string placeInFile(const std::string &file, std::size_t line);

}  // namespace Tessitor::Tool
