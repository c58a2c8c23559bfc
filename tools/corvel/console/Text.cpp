#include "corvel/console/Text.h"

#include "corvel/console/Printable.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>

namespace Tessitor::Tool {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view spaces = " \t\r\n";
    const std::size_t first = text.find_first_not_of(spaces);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

std::string decimal(double number, int places) {
    std::array<char, 400> buffer{};  // the largest number has 309 digits
    std::snprintf(buffer.data(), buffer.size(), "%.*f", places, number);
    return buffer.data();
}

std::string shortest(float number) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end};
}

std::string inQuotes(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

bool equalInAnyCapitals(std::string_view a, std::string_view b) {
    const auto small = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return small(x) == small(y); });
}

bool beginsInAnyCapitals(std::string_view text, std::string_view beginning) {
    return equalInAnyCapitals(text.substr(0, beginning.size()), beginning);
}

std::string inColumns(std::vector<std::vector<std::string>> rows) {
    std::vector<std::size_t> widths;
    for (auto &row : rows) {
        for (std::string &cell : row)
            cell = printable(cell);
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    std::string text;
    for (const auto &row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column)
            line += row[column] + std::string(widths[column] - row[column].size() + 2, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace Tessitor::Tool
