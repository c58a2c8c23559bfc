#include "corvel/commands/Suggestions.h"

#include "corvel/console/Text.h"
#include "corvel/settings/CEffectSettings.h"
#include "corvel/settings/Chain.h"
#include "corvel/settings/Parameters.h"
#include "corvel/settings/ProgramDescriptions.h"

#include <algorithm>

namespace Tessitor::Tool {

Suggestions suggestPrograms(const std::optional<std::string> &plugin) {
    const CEffectLibrary library(CEffectLibrary::choose(plugin));
    CEffectInstance effect(library);
    Suggestions programs;
    for (std::int32_t program = 0; program < effect.record().numPrograms; ++program) {
        const std::string name = programName(effect, program);
        programs.push_back({name, std::string(programDescription(name))});
    }
    return programs;
}

Suggestions suggestSettings(const std::optional<std::string> &plugin, std::string_view typed) {
    const CEffectLibrary library(CEffectLibrary::choose(plugin));
    CEffectInstance effect(library);
    const std::size_t equals = typed.find('=');
    Suggestions settings;
    for (std::int32_t index = 0; index < effect.record().numParams; ++index) {
        const std::string name = effect.text(effGetParamName, index);
        if (name.empty())
            continue;
        if (equals == std::string_view::npos)
            settings.push_back({name + "=", parameterText(effect, index).range()});
        else if (equalInAnyCapitals(name, typed.substr(0, equals)))
            for (const std::string &choice : parameterText(effect, index).choices())
                settings.push_back({std::string(typed.substr(0, equals + 1)) + choice, ""});
    }
    return settings;
}

Suggestions suggestChains(std::string_view typed) {
    const std::size_t comma = typed.rfind(',');
    const std::string before(typed.substr(0, comma == std::string_view::npos ? 0 : comma + 1));
    const std::vector<std::string_view> present = split(before, ',');
    const auto isPresent = [&](std::string_view label) {
        return std::ranges::any_of(present, [&](std::string_view other) {
            return equalInAnyCapitals(trimmed(other), label);
        });
    };
    Suggestions chains;
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot)
        if (!isPresent(moduleLabel(slot)))
            chains.push_back({before + std::string(moduleLabel(slot)), ""});
    return chains;
}

}  // namespace Tessitor::Tool
