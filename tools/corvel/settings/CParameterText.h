#pragma once

#include "corvel/settings/SReading.h"

#include <functional>
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

    /// @param text  a plain number from 0 to 1 is the normalised value itself, and "@0.5" as well.
    ///              Anything else is compared with the display and the unit; spaces, case and
    ///              trailing zeros do not matter. kHz, s and ms are converted to the unit.
    /// @return the middle of the range of values that are displayed as the text, or 0, 1 or 0.5 if
    ///         the range contains one of these. If no value is displayed as the text, a value with
    ///         the nearest number.
    /// @throws CCallError if the effect displays neither the text nor numbers on both sides of it.
    float valueOf(std::string_view text) const;

    /// @return the other value that a plain number could mean, with the unit, such as "0.5 dB" for
    ///         "0.5"; empty if there is none.
    std::string otherMeaningOf(std::string_view text) const;

    /// @return all texts that are displayed if they are not numbers: Separate, Linked.
    std::vector<std::string> choices() const;

    /// @return the lowest and the highest number that are displayed: "100 to 800 Hz", or all texts
    ///         if they are not numbers: "Separate, Linked". Empty if nothing is displayed.
    std::string range() const;

    /// @return true if no value is displayed as a number: "Separate, Linked".
    bool isChoice() const;

private:
    struct SPoint {
        float value;
        SReading shown;
    };
    struct SSpan {
        float first;
        float last;
    };

    static bool isComparable(const SReading &shown, const SReading &asked);
    static double distance(const SReading &shown, const SReading &asked);
    static bool between(const SPoint &low, const SPoint &high, const SReading &asked);
    SPoint pointAt(float value) const;
    std::vector<SPoint> pointsShowing(const SReading &asked) const;
    std::vector<SPoint> pointsBeside(const SReading &asked) const;
    std::pair<SPoint, SPoint> narrow(SPoint low, SPoint high, const SReading &asked) const;
    SSpan spanAround(const SPoint &point) const;
    float valueIn(const SSpan &span, const SPoint &within) const;
    static bool isPlain(const SReading &asked);
    bool hasFixedSecond() const;
    std::pair<SPoint, SPoint> ends() const;
    std::vector<std::string> texts() const;
    std::string withUnit(const std::string &text) const;
    [[noreturn]] void refuse(std::string_view text, const SReading &asked) const;

    std::string m_unit;
    Display m_display;
    std::vector<SPoint> m_grid;
};

}  // namespace Tessitor::Tool
