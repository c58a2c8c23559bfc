#include "corvel/settings/CEffectSettings.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/presets/PresetFile.h"
#include "corvel/settings/Parameters.h"

#include <algorithm>
#include <charconv>
#include <span>

namespace Tessitor::Tool {

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
    std::vector<std::int32_t> begun;
    std::string names;
    for (std::int32_t program = 0; program < programs; ++program) {
        const std::string name = programName(effect, program);
        if (equalInAnyCapitals(name, trimmed(text)))
            return program;
        if (trimmed(text).empty() || !beginsInAnyCapitals(name, trimmed(text)))
            continue;
        names += (begun.empty() ? "" : ", ") + inQuotes(name);
        begun.push_back(program);
    }
    if (begun.size() == 1)
        return begun.front();
    if (begun.size() > 1)
        throw CCallError("--program: " + inQuotes(text) + " may be " + names);
    throw CCallError("--program: no program " + inQuotes(text) +
                     "; expected a name from corvel programs or a number from 0 to " +
                     std::to_string(programs - 1));
}

std::int32_t parameterFromName(CEffectInstance &effect, const std::string &option,
                               std::string_view name) {
    if (const auto index = findParameter(effect, name))
        return *index;
    throw CCallError(option + ": no parameter " + inQuotes(name) + "; corvel params lists them");
}

CEffectSettings::CEffectSettings(const SSettingsRequest &request, CEffectInstance &trial) {
    if (request.program)
        m_program = programFromText(trial, *request.program);
    if (request.preset) {
        if (!hasChain(trial))
            throw CCallError("--preset: " + trial.fileName() +
                             " is not a Corvel effect; its presets cannot be loaded");
        m_preset = readProgram(*request.preset);
    }
    if (request.chain) {
        if (!hasChain(trial))
            throw CCallError("--chain: " + trial.fileName() +
                             " is not a Corvel effect and has no chain");
        m_newChain = chainFromText(*request.chain);
    }
    loadProgram(trial);
    const bool isStrip = hasChain(trial), isSynchronised = isStrip && isDelaySynchronised(trial);
    for (const std::string &text : request.set)
        assign(text, trial);
    findSteps(isStrip, isSynchronised);
    if (request.automate) {
        m_automation.emplace(*request.automate, trial);
        m_notes.insert(m_notes.end(), m_automation->notes().begin(), m_automation->notes().end());
    }

    applyTo(trial);
    m_programName = trial.text(effGetProgramName);
    if (hasChain(trial))
        m_chain = chainOf(trial);
    for (SAssignment &assignment : m_assignments)
        assignment.display = displayWithUnit(trial, assignment.index);
}

void CEffectSettings::assign(const std::string &text, CEffectInstance &trial) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos)
        throw CCallError("--set: " + inQuotes(text) + " is not NAME=VALUE");
    const std::int32_t index =
        parameterFromName(trial, "--set", trimmed(std::string_view(text).substr(0, equals)));
    const std::string_view value = trimmed(std::string_view(text).substr(equals + 1));
    const std::string name = trial.text(effGetParamName, index);
    const CParameterText parameter = parameterText(trial, index);
    try {
        dropEarlier(index);
        m_assignments.push_back({index, parameter.valueOf(value), name, {}});
    } catch (const CCallError &error) {
        throw CCallError("--set " + name + ": " + error.what());
    }
    const std::string other = parameter.otherMeaningOf(value);
    if (other.empty())
        return;
    trial.setParameter(index, m_assignments.back().value);
    m_notes.push_back(
        "note: --set " + text + ": taken as a normalised value, which is " +
        displayWithUnit(trial, index) + "; write " + name + "=@" + std::string(value) +
        " for this" +
        (other == value ? "" : ", or " + inQuotes(name + "=" + other) + " for " + other));
}

void CEffectSettings::dropEarlier(std::int32_t index) {
    const auto earlier =
        std::find_if(m_assignments.begin(), m_assignments.end(),
                     [&](const SAssignment &assignment) { return assignment.index == index; });
    if (earlier == m_assignments.end())
        return;
    m_notes.push_back("note: --set " + earlier->name +
                      ": given more than once; the last value counts");
    m_assignments.erase(earlier);
}

void CEffectSettings::findSteps(bool isStrip, bool isSynchronised) {
    std::vector<SStep> asked;
    for (const SAssignment &assignment : m_assignments)
        asked.push_back({assignment.index, assignment.value});
    if (!isStrip) {
        m_steps = asked;
        return;
    }
    m_steps = stepsToHear(asked, isSynchronised);
    const std::string note = noteOnDelay(asked, isSynchronised);
    if (!note.empty())
        m_notes.push_back(note);
}

void CEffectSettings::loadProgram(CEffectInstance &effect) const {
    if (m_program)
        effect.dispatch(effSetProgram, 0, *m_program);
    if (m_preset)
        effect.setProgramChunk(std::as_bytes(std::span(&*m_preset, 1)));
}

void CEffectSettings::applyTo(CEffectInstance &effect) const {
    loadProgram(effect);
    if (m_newChain)
        setChain(effect, *m_newChain);
    for (const SStep &step : m_steps)
        effect.setParameter(step.index, step.value);
}

}  // namespace Tessitor::Tool
