#include "corvel/live/CControllers.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/settings/CEffectSettings.h"
#include "corvel/settings/Chain.h"
#include "dspclasses/parameters/ParameterIds.h"

#include <algorithm>
#include <charconv>

namespace Tessitor::Tool {

namespace {

constexpr int lastController = 119;  // from 120 up the numbers mean "all notes off" and the like

int controllerFromText(std::string_view text) {
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    if (isWhole && number >= 0 && number <= lastController)
        return number;
    throw CCallError("--cc: " + inQuotes(text) + " is not a controller's number from 0 to " +
                     std::to_string(lastController));
}

}  // namespace

CControllers::CControllers(const std::vector<std::string> &texts, CEffectInstance &effect)
    : m_isStrip(hasChain(effect)) {
    for (const std::string &text : texts)
        add(text, effect);
}

void CControllers::add(const std::string &text, CEffectInstance &effect) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos)
        throw CCallError("--cc: " + inQuotes(text) + " is not NUMBER=PARAMETER");
    const int controller = controllerFromText(trimmed(std::string_view(text).substr(0, equals)));
    STarget target{
        parameterFromName(effect, "--cc", trimmed(std::string_view(text).substr(equals + 1))),
        {},
        {}};
    for (std::size_t i = 0; i < valueCount; ++i) {
        const SStep asked = {target.parameter, static_cast<float>(i) / (valueCount - 1)};
        target.steps[i] = m_isStrip ? stepsToHear({asked}, false) : std::vector{asked};
        target.stepsIfSynchronised[i] = m_isStrip ? stepsToHear({asked}, true) : std::vector{asked};
    }
    m_targets[static_cast<std::size_t>(controller)].push_back(std::move(target));
}

bool CControllers::canSetOnAudioThread(int controller) const {
    return !m_isStrip ||
           std::none_of(at(controller).begin(), at(controller).end(),
                        [](const STarget &target) { return target.parameter == kRvSpread; });
}

void CControllers::apply(int controller, int value, CEffectInstance &effect) const {
    const auto index = static_cast<std::size_t>(value);
    for (const STarget &target : at(controller)) {
        const bool isSynchronised = m_isStrip && isDelaySynchronised(effect);
        for (const SStep &step :
             isSynchronised ? target.stepsIfSynchronised[index] : target.steps[index])
            effect.setParameter(step.index, step.value);
    }
}

}  // namespace Tessitor::Tool
