#include "corvel/console/TimeText.h"

#include "corvel/console/Text.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace Tessitor::Tool {

namespace {

// Only digits, with at most one decimal point: neither signs nor exponents nor "inf".
std::optional<double> plainNumber(std::string_view text) {
    const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
    std::string digits(text);
    std::replace(digits.begin(), digits.end(), ',', '.');
    double number = 0.0;
    const char *const last = digits.data() + digits.size();
    const auto [end, error] =
        std::from_chars(digits.data(), last, number, std::chars_format::fixed);
    if (digits.empty() || !isDigit(digits.front()) || error != std::errc() || end != last)
        return std::nullopt;
    return number;
}

// Two digits before the point, for minutes and seconds that follow a colon
bool isSexagesimal(std::string_view text) {
    const std::string_view whole = text.substr(0, text.find_first_of(".,"));
    return whole.size() == 2 && whole.front() < '6';
}

std::optional<double> clockTime(const std::vector<std::string_view> &parts) {
    double seconds = 0.0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto number = plainNumber(parts[i]);
        const bool isLast = i + 1 == parts.size();
        if (!number || (i > 0 && !isSexagesimal(parts[i])) ||
            (!isLast && parts[i].find_first_of(".,") != std::string_view::npos))
            return std::nullopt;
        seconds = 60.0 * seconds + *number;
    }
    return seconds;
}

}  // namespace

std::optional<double> secondsFromText(std::string_view text) {
    text = trimmed(text);
    const auto parts = split(text, ':');
    if (parts.size() > 1)
        return parts.size() <= 3 ? clockTime(parts) : std::nullopt;
    double unitsPerSecond = 1.0;
    if (text.ends_with("ms")) {
        unitsPerSecond = 1000.0;
        text.remove_suffix(2);
    } else if (text.ends_with("s")) {
        text.remove_suffix(1);
    }
    const auto number = plainNumber(trimmed(text));
    return number ? std::optional(*number / unitsPerSecond) : std::nullopt;
}

}  // namespace Tessitor::Tool
