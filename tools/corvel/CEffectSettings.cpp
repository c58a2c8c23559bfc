#include "corvel/CEffectSettings.h"

#include "corvel/CParameterText.h"
#include "corvel/Errors.h"
#include "corvel/Text.h"

#include <charconv>

namespace Tessitor::Tool {

namespace {

std::int32_t parameterFromName(CEffectInstance &effect, std::string_view name) {
    for (std::int32_t index = 0; index < effect.record().numParams; ++index)
        if (!name.empty() && equalInAnyCapitals(effect.text(effGetParamName, index), name))
            return index;
    throw CCallError("--set: no parameter \"" + std::string(name) + "\"; corvel params lists them");
}

std::string displayWithUnit(CEffectInstance &effect, std::int32_t index) {
    const std::string unit = effect.text(effGetParamLabel, index);
    return effect.text(effGetParamDisplay, index) + (unit.empty() ? "" : " " + unit);
}

}  // namespace

std::string programName(CEffectInstance &effect, std::int32_t program) {
    return effect.text(effGetProgramNameIndexed, program);
}

std::int32_t programFromText(CEffectInstance &effect, const std::string &text) {
    const std::int32_t programs = effect.record().numPrograms;
    std::int32_t number = -1;
    const char *const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (end == last && error == std::errc() && number >= 0 && number < programs)
        return number;
    for (std::int32_t program = 0; program < programs; ++program)
        if (equalInAnyCapitals(programName(effect, program), trimmed(text)))
            return program;
    throw CCallError("--program: no program \"" + text +
                     "\"; expected a name from corvel programs or a number from 0 to " +
                     std::to_string(programs - 1));
}

CEffectSettings::CEffectSettings(const SSettingsRequest &request, CEffectInstance &trial) {
    if (request.program)
        m_program = programFromText(trial, *request.program);
    if (request.chain) {
        if (!hasChain(trial))
            throw CCallError("--chain: " + trial.fileName() +
                             " is not a Corvel effect and has no chain");
        m_newChain = chainFromText(*request.chain);
    }
    for (const std::string &text : request.set)
        m_assignments.push_back(assignmentFromText(text, trial));

    applyTo(trial);
    m_programName = trial.text(effGetProgramName);
    if (hasChain(trial))
        m_chain = chainOf(trial);
    for (SAssignment &assignment : m_assignments)
        assignment.display = displayWithUnit(trial, assignment.index);
}

CEffectSettings::SAssignment CEffectSettings::assignmentFromText(const std::string &text,
                                                                 CEffectInstance &trial) const {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos)
        throw CCallError("--set: \"" + text + "\" is not NAME=VALUE");
    const std::int32_t index =
        parameterFromName(trial, trimmed(std::string_view(text).substr(0, equals)));
    const std::string name = trial.text(effGetParamName, index);
    const CParameterText parameter(trial.text(effGetParamLabel, index), [&](float value) {
        trial.setParameter(index, value);
        return trial.text(effGetParamDisplay, index);
    });
    try {
        return {index, parameter.valueOf(std::string_view(text).substr(equals + 1)), name, {}};
    } catch (const CCallError &error) {
        throw CCallError("--set " + name + ": " + error.what());
    }
}

void CEffectSettings::applyTo(CEffectInstance &effect) const {
    if (m_program)
        effect.dispatch(effSetProgram, 0, *m_program);
    if (m_newChain)
        setChain(effect, *m_newChain);
    for (const SAssignment &assignment : m_assignments)
        effect.setParameter(assignment.index, assignment.value);
}

}  // namespace Tessitor::Tool
