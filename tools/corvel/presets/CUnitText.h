#pragma once

#include "corvel/settings/CParameterText.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// @return the effect's display of a parameter's value, without the unit. The effect itself may
///         differ for the value 0.5 until it was set to another one.
std::string parameterDisplay(int id, float value);

/// A parameter of the channel strip in its own unit, exactly: the effect's display, with more
/// decimals where it rounds. [one thread at a time]
class CUnitText {
public:
    /// @param id  0 to 63.
    explicit CUnitText(int id);

    /// @return the effect's display with the unit: "-20.10 dB", "Linked".
    std::string display(float value) const;

    /// @return the text with the fewest decimals that valueOf() turns into exactly this value;
    ///         nothing if there is none, as several values can have the same text.
    std::optional<std::string> exactText(float value) const;

    /// @param text  a display. The more decimals it has, the closer the value.
    /// @return the value with the fewest digits of those that are displayed like this, so that
    ///         0.665 is found from its display, not 0.6648812.
    /// @throws CCallError if the parameter cannot have this value, or if the text is a number
    ///         without the unit.
    float valueOf(std::string_view text) const;

private:
    static constexpr int mostDecimals = 9;

    std::string inUnit(const std::string &text) const;
    std::string finerDisplay(float value, int decimals) const;
    float simplestLike(float value, int decimals) const;
    const CParameterText &reader(int decimals) const;

    int m_id;
    int m_ownDecimals;
    bool m_isBareNumber;  // the display is a number and there is no unit
    // By number of decimals, made when needed
    mutable std::array<std::unique_ptr<CParameterText>, mostDecimals + 1> m_readers;
};

}  // namespace Tessitor::Tool
