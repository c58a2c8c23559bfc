#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tessitor::Tool {

/// Finds the normalised value that an effect shows as a given text. The effect's law is known by
/// its display alone: it may rise, fall, jump or repeat itself, and it is rounded for show.
class CParameterText {
public:
    /// What the effect shows for a normalised value, without the unit.
    using Display = std::function<std::string(float value)>;

    /// @param unit  the unit's text, empty for none.
    CParameterText(std::string unit, Display display);

    /// @param text  a plain number from 0 to 1 is the normalised value itself. Anything else is
    ///              what the display shows, with the unit if there is one; spaces, capitals and
    ///              closing zeros do not matter.
    /// @return the value in the middle of those that show the text, or that one of 0, 1 and 0.5
    ///         which shows it as well; if none does, one that shows the nearest number.
    /// @throws CCallError if the display shows neither the text nor numbers on both sides of it.
    float valueOf(std::string_view text) const;

private:
    /// A text taken apart: "3.0:1" is 3 and 1, "Linked" has no number.
    struct SReading {
        std::optional<double> number;
        std::optional<double> second;
        std::string rest;  // behind the numbers; small letters, no spaces
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
