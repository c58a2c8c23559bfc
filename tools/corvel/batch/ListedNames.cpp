#include "corvel/batch/ListedNames.h"

#include "corvel/console/Text.h"

#include <algorithm>

namespace Tessitor::Tool {

namespace {

// A name could end in a carriage return, but then hardly all of them do.
void removeReturns(std::vector<std::string_view> &lines) {
    const auto hasReturn = [](std::string_view line) {
        return line.empty() || line.ends_with('\r');
    };
    if (!std::all_of(lines.begin(), lines.end(), hasReturn))
        return;
    for (std::string_view &line : lines)
        line.remove_suffix(line.empty() ? 0 : 1);
}

}  // namespace

std::vector<std::string> listedNames(std::string_view text) {
    const bool endsInZeros = text.find('\0') != std::string_view::npos;
    std::vector<std::string_view> lines = split(text, endsInZeros ? '\0' : '\n');
    if (!endsInZeros)
        removeReturns(lines);
    std::vector<std::string> names;
    for (const std::string_view line : lines)
        if (!line.empty())
            names.emplace_back(line);
    return names;
}

}  // namespace Tessitor::Tool
