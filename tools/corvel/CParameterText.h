#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tessitor::Tool {

/// Finds the normalised value that an effect displays as a given text. The law between the two is
/// unknown: it may rise, fall, jump or repeat itself, and the display is rounded.
class CParameterText {
public:
    /// Returns the effect's display of a normalised value, without the unit.
    using Display = std::function<std::string(float value)>;

    /// @param unit  empty for none.
    CParameterText(std::string unit, Display display);

    /// @param text  a plain number from 0 to 1 is the normalised value itself. Anything else is
    ///              compared with the display and the unit; spaces, case and trailing zeros do not
    ///              matter.
    /// @return the middle of the range of values that are displayed as the text, or 0, 1 or 0.5 if
    ///         the range contains one of these. If no value is displayed as the text, a value with
    ///         the nearest number.
    /// @throws CCallError if the effect displays neither the text nor numbers on both sides of it.
    float valueOf(std::string_view text) const;

private:
    /// A parsed text: "3.0:1" is 3 and 1, "Linked" has no number.
    struct SReading {
        std::optional<double> number;
        std::optional<double> second;
        std::string rest;  // after the numbers; lower case, no spaces
        bool operator==(const SReading &) const = default;
    };
    struct SPoint {
        float value;
        SReading shown;
    };
    struct SSpan {
        float first;
        float last;
    };

    static SReading take(std::string_view text);
    static bool isComparable(const SReading &shown, const SReading &asked);
    static double distance(const SReading &shown, const SReading &asked);
    static bool between(const SPoint &low, const SPoint &high, const SReading &asked);
    SPoint pointAt(float value) const;
    std::vector<SPoint> pointsShowing(const SReading &asked) const;
    std::vector<SPoint> pointsBeside(const SReading &asked) const;
    std::pair<SPoint, SPoint> narrow(SPoint low, SPoint high, const SReading &asked) const;
    SSpan spanAround(const SPoint &point) const;
    float valueIn(const SSpan &span, const SPoint &within) const;
    [[noreturn]] void refuse(std::string_view text) const;

    std::string m_unit;
    Display m_display;
    std::string m_unitAsRead;
    std::vector<SPoint> m_grid;
};

}  // namespace Tessitor::Tool
