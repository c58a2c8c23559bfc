#include "corvel/settings/AutomationLines.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/console/TimeText.h"

#include <algorithm>
#include <optional>

namespace Tessitor::Tool {

namespace {

constexpr std::string_view spaces = " \t";

bool isSpace(char letter) {
    return spaces.find(letter) != std::string_view::npos;
}

std::string_view withoutMark(std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    return text.starts_with(byteOrderMark) ? text.substr(byteOrderMark.size()) : text;
}

std::string_view withoutComment(std::string_view line) {
    for (std::size_t i = 0; i < line.size(); ++i)
        if (line[i] == '#' && (i == 0 || isSpace(line[i - 1])))
            return line.substr(0, i);
    return line;
}

// Removes a text in quotes from the start of the line and returns it.
std::string_view takeQuoted(std::string_view &line) {
    line.remove_prefix(1);
    const std::size_t end = line.find('"');
    const std::string_view field = line.substr(0, end);
    line.remove_prefix(end == line.npos ? line.size() : end + 1);
    return field;
}

// Removes a field and the separator after it from the line and returns the field. With commas or
// tabs between the fields, a field may contain spaces.
std::string_view takeField(std::string_view &line, std::string_view separators) {
    const bool isQuoted = line.starts_with('"');
    std::string_view field;
    if (isQuoted)
        field = takeQuoted(line);
    const std::size_t end = std::min(line.find_first_of(separators), line.size());
    if (!isQuoted)
        field = line.substr(0, end);
    line = trimmed(line.substr(end));
    if (line.starts_with(',') || line.starts_with(';'))
        line = trimmed(line.substr(1));
    return trimmed(field);
}

std::optional<double> signedSeconds(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    const auto seconds = secondsFromText(text.substr(isNegative ? 1 : 0));
    return seconds && isNegative ? -*seconds : seconds;
}

// A tab or a semicolon after the time separates all fields: then a comma may be a decimal point,
// and a name may have spaces.
std::string_view separatorsIn(std::string_view line) {
    for (const char separator : {'\t', ';'}) {
        const std::size_t end = line.find(separator);
        std::string_view before = trimmed(line.substr(0, end));
        if (end != line.npos &&
            signedSeconds(before.starts_with('"') ? takeQuoted(before) : before))
            return line.substr(end, 1);
    }
    const std::size_t afterQuotes = line.starts_with('"') ? line.find('"', 1) : 0;
    const std::size_t first = line.find_first_of(" \t,;", afterQuotes);
    const bool isSpaced = first == line.npos || isSpace(line[first]);
    return isSpaced ? " \t," : line.substr(first, 1);
}

}  // namespace

std::string placeInFile(const std::string &file, std::size_t line) {
    return file + ":" + std::to_string(line) + ": ";
}

std::vector<SAutomationLine> automationLines(std::string_view text, const std::string &file) {
    if (text.find('\0') != text.npos)
        throw CJobError(file + ": not a text file");
    std::vector<SAutomationLine> lines;
    std::size_t number = 0;
    for (const std::string_view whole : split(withoutMark(text), '\n')) {
        ++number;
        std::string_view rest = trimmed(withoutComment(whole));
        if (rest.empty())
            continue;
        const std::string_view separators = separatorsIn(rest);
        const std::string_view time = takeField(rest, separators);
        if (number == 1 && equalInAnyCapitals(time, "time"))
            continue;
        const std::string_view parameter = takeField(rest, separators);
        const std::string_view value =
            rest.size() > 1 && rest.starts_with('"') ? trimmed(takeQuoted(rest)) : rest;
        const auto seconds = signedSeconds(time);
        if (!seconds)
            throw CJobError(placeInFile(file, number) + inQuotes(time) +
                            " is not a time; write seconds or m:ss, as in 1:05.250");
        if (parameter.empty() || value.empty())
            throw CJobError(placeInFile(file, number) +
                            "a line needs a time, a parameter and a value");
        lines.push_back({number, *seconds, std::string(parameter), std::string(value)});
    }
    return lines;
}

}  // namespace Tessitor::Tool
