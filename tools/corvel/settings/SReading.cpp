#include "corvel/settings/SReading.h"

#include <cctype>
#include <charconv>
#include <limits>

namespace Tessitor::Tool {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct SConversion {
    std::string_view from, to;
    double factor;
};
constexpr SConversion conversions[] = {
    {"khz", "hz", 1000.0}, {"s", "ms", 1000.0}, {"ms", "s", 0.001}, {"m\xC2\xB2", "m2", 1.0}};

bool isDigit(char letter) {
    return std::isdigit(static_cast<unsigned char>(letter)) != 0;
}

std::string smallAndTight(std::string_view text) {
    std::string result;
    for (const char letter : text)
        if (std::isspace(static_cast<unsigned char>(letter)) == 0)
            result += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return result;
}

// In many languages a comma separates the decimals.
std::string withPoints(std::string text) {
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if (text[i] == ',' && isDigit(text[i - 1]) && isDigit(text[i + 1]))
            text[i] = '.';
    return text;
}

bool beginsNumber(std::string_view text) {
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    return text.size() > sign && (isDigit(text[sign]) || text[sign] == '.');
}

// Removes the number at the start of the text and returns it.
std::optional<double> takeNumber(std::string_view &text) {
    for (const std::string_view silence : {"-oo", "-inf"}) {
        if (text.starts_with(silence)) {
            text.remove_prefix(silence.size());
            return -infinity;
        }
    }
    const std::size_t plus = text.starts_with('+') ? 1 : 0;
    if (!beginsNumber(text.substr(plus)))
        return std::nullopt;
    double number = 0.0;
    const auto [end, error] =
        std::from_chars(text.data() + plus, text.data() + text.size(), number);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

}  // namespace

SReading readingOf(std::string_view text) {
    const std::string tight = withPoints(smallAndTight(text));
    std::string_view left = tight;
    SReading reading;
    reading.number = takeNumber(left);
    if (reading.number && left.starts_with(':')) {
        std::string_view after = left.substr(1);
        reading.second = takeNumber(after);
        if (reading.second)
            left = after;
    }
    reading.rest = left;
    return reading;
}

std::optional<SReading> inUnit(const SReading &asked, std::string_view unit) {
    const std::string wanted = smallAndTight(unit);
    if (!asked.number || wanted.empty())
        return std::nullopt;
    if (asked.rest == wanted)
        return SReading{asked.number, asked.second, ""};
    for (const SConversion &conversion : conversions)
        if (asked.rest == conversion.from && wanted == conversion.to)
            return SReading{*asked.number * conversion.factor, asked.second, ""};
    return std::nullopt;
}

}  // namespace Tessitor::Tool
