#include "corvel/render/LoudnessTarget.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <charconv>

namespace Tessitor::Tool {

namespace {

constexpr double lowest = -60.0;

struct SUnit {
    const char *name;
    ELoudnessUnit unit;
};

constexpr SUnit units[] = {{"LUFS", ELoudnessUnit::Lufs}, {"dBTP", ELoudnessUnit::Dbtp}};

[[noreturn]] void fail(const std::string &reason) {
    throw CCallError("--normalize: " + reason);
}

ELoudnessUnit unitFromText(std::string_view text) {
    for (const SUnit &unit : units)
        if (equalInAnyCapitals(text, unit.name))
            return unit.unit;
    const std::string names = "LUFS for the loudness, dBTP for the true peak";
    if (text.empty())
        fail("needs a unit: " + names);
    fail(inQuotes(text) + " is not a unit of loudness; use " + names);
}

}  // namespace

SLoudnessTarget targetFromText(const std::string &text) {
    std::string all(trimmed(text));
    std::replace(all.begin(), all.end(), ',', '.');  // the decimal comma
    const char *const end = all.data() + all.size();
    double value = 0.0;
    const auto [rest, error] = std::from_chars(all.data(), end, value, std::chars_format::fixed);
    if (error != std::errc())
        fail(inQuotes(text) + " is not a target; use one like -16LUFS or -1dBTP");
    const ELoudnessUnit unit = unitFromText(trimmed({rest, end}));
    if (!(value >= lowest && value <= 0.0))
        fail(inQuotes(text) + " is outside -60 to 0");
    return {value, unit};
}

std::string toText(const SLoudnessTarget &target) {
    for (const SUnit &unit : units)
        if (unit.unit == target.unit)
            return shortest(static_cast<float>(target.value)) + " " + unit.name;
    return "";
}

}  // namespace Tessitor::Tool
