#include "corvel/settings/Parameters.h"

#include "corvel/console/Text.h"

namespace Tessitor::Tool {

std::optional<std::int32_t> findParameter(CEffectInstance &effect, std::string_view name) {
    for (std::int32_t index = 0; index < effect.record().numParams; ++index)
        if (!name.empty() && equalInAnyCapitals(effect.text(effGetParamName, index), name))
            return index;
    return std::nullopt;
}

CParameterText parameterText(CEffectInstance &trial, std::int32_t index) {
    return {trial.text(effGetParamLabel, index), [&trial, index](float value) {
                trial.setParameter(index, value);
                return trial.text(effGetParamDisplay, index);
            }};
}

std::string displayWithUnit(CEffectInstance &effect, std::int32_t index) {
    const std::string unit = effect.text(effGetParamLabel, index);
    return effect.text(effGetParamDisplay, index) + (unit.empty() ? "" : " " + unit);
}

}  // namespace Tessitor::Tool
