#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "corvel/settings/CParameterText.h"

#include <optional>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// @param name  in upper or lower case.
/// @return the index of a parameter; none if the effect has no such parameter.
std::optional<std::int32_t> findParameter(CEffectInstance &effect, std::string_view name);

/// @param trial  must outlive the result, which changes this parameter to learn how it is
/// displayed.
CParameterText parameterText(CEffectInstance &trial, std::int32_t index);

/// @return the effect's display of the present value, with the unit: "1.50 dB".
std::string displayWithUnit(CEffectInstance &effect, std::int32_t index);

}  // namespace Tessitor::Tool
