#include "corvel/presets/PresetCommand.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Print.h"
#include "corvel/console/Text.h"
#include "corvel/presets/CPresetText.h"
#include "corvel/presets/CUnitText.h"
#include "corvel/presets/Encoding.h"
#include "corvel/presets/PresetFile.h"
#include "dspclasses/parameters/ParameterTable.h"

#include <cstring>

namespace Tessitor::Tool {

namespace {

using Corvel::SProgram;
using Rows = std::vector<std::vector<std::string>>;

std::string describeChain(const SProgram &program) {
    std::string text;
    for (const int slot : chainOf(program))
        text += (text.empty() ? "" : ", ") + std::string(moduleLabel(slot));
    return text.empty() ? "none" : text;
}

std::string describeProgram(const SProgram &program) {
    Rows rows = {{"#", "Name", "Value", "Display", "Unit"}};
    for (int id = 0; id < kParameterCount; ++id) {
        const SParameter &parameter = parameterTable[static_cast<std::size_t>(id)];
        const float value = program.parameters[static_cast<std::size_t>(id)];
        rows.push_back({std::to_string(id), parameter.name, shortest(value),
                        parameterDisplay(id, value), parameter.unit});
    }
    return inColumns(
               {{"program", shortQuote(nameOf(program))}, {"chain", describeChain(program)}}) +
           "\n" + inColumns(rows);
}

std::string describeBank(const SPreset &bank) {
    Rows rows = {{"#", "Name", "Chain"}};
    for (std::size_t number = 0; number < bank.programs.size(); ++number)
        rows.push_back({std::to_string(number), shortQuote(nameOf(bank.programs[number])),
                        describeChain(bank.programs[number])});
    return inColumns(rows);
}

std::vector<SProgram> programsIn(CEffectInstance &effect, bool all) {
    void *data = nullptr;
    const std::intptr_t bytes = effect.dispatch(effGetChunk, all ? 0 : 1, 0, &data);
    std::vector<SProgram> programs(all ? Corvel::programCount : 1);
    const std::size_t expected = programs.size() * sizeof(SProgram);
    if (data == nullptr || static_cast<std::size_t>(bytes) != expected)
        throw CJobError(effect.fileName() + ": the effect's state has " + std::to_string(bytes) +
                        " bytes, not " + std::to_string(expected));
    std::memcpy(programs.data(), data, expected);
    return programs;
}

}  // namespace

int runPresetShow(const SPresetShowCall &call) {
    const SPreset preset = readPreset(presetPlaceFrom(call.file));
    if (call.json)
        print(CPresetText().textFrom(preset));
    else
        print(preset.isBank() ? describeBank(preset) : describeProgram(preset.programs[0]));
    return 0;
}

int runPresetSave(const SPresetSaveCall &call) {
    presetFormatOf(call.file);
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance trial(library);
    savePreset(call.file, library, CEffectSettings(call.settings, trial), call.force);
    return 0;
}

int runPresetConvert(const SPresetConvertCall &call) {
    presetFormatOf(call.out);
    writePreset(call.out, readPreset(presetPlaceFrom(call.in)), call.force);
    return 0;
}

int runPresetCheck(const SPresetCheckCall &call) {
    int status = 0;
    for (const std::string &file : call.files) {
        try {
            const SPreset preset = readPreset(std::filesystem::path(file));
            print(file + ": " +
                  (preset.isBank()
                       ? "a bank of " + std::to_string(preset.programs.size()) + " programs"
                       : "the program " + shortQuote(nameOf(preset.programs[0]))) +
                  "\n");
        } catch (const CJobError &error) {
            printRemark(error.what());
            status = 1;
        }
    }
    return status;
}

void savePreset(const std::string &file, const CEffectLibrary &library,
                const CEffectSettings &settings, bool replace) {
    presetFormatOf(file);
    CEffectInstance effect(library);
    requirePresets(effect);
    settings.applyTo(effect);
    savePreset(file, effect, replace);
}

void requirePresets(const CEffectInstance &effect) {
    if (!hasChain(effect))
        throw CCallError(effect.fileName() + ": not a Corvel effect; its presets cannot be saved");
}

void savePreset(const std::string &file, CEffectInstance &effect, bool replace) {
    SPreset preset;
    preset.programs = programsIn(effect, presetFormatOf(file) == EPresetFormat::fxb);
    if (preset.isBank())
        preset.current = static_cast<std::size_t>(effect.dispatch(effGetProgram));
    writePreset(file, preset, replace);
}

}  // namespace Tessitor::Tool
