#include "corvel/presets/CPresetText.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Printable.h"
#include "corvel/console/Text.h"
#include "corvel/presets/Encoding.h"
#include "corvel/presets/RecordJson.h"
#include "corvel/presets/StrictJson.h"

#include <bit>
#include <bitset>

namespace Tessitor::Tool {

namespace {

using Corvel::SProgram;
using Json = nlohmann::ordered_json;

constexpr const char *programFormat = "Corvel program";
constexpr const char *bankFormat = "Corvel bank";
constexpr int formatVersion = 1;

constexpr int namedParameters = kUnused62;

// JSON numbers are doubles. Converted through its text, 0.1f becomes 0.1, not 0.10000000149011612.
Json normalisedJson(float value) {
    const double written = std::stod(shortest(value));
    return static_cast<float>(written) == value ? written : static_cast<double>(value);
}

int parameterFrom(const std::string &name) {
    for (int id = 0; id < kParameterCount; ++id)
        if (equalInAnyCapitals(parameterName(id), name))
            return id;
    throw CPresetError("there is no parameter " + shortQuote(name));
}

float normalisedFrom(const Json &json) {
    if (!json.is_number())
        throw CPresetError("its normalised value is not a number");
    const double value = json.get<double>();
    if (!(value >= 0.0 && value <= 1.0))
        throw CPresetError("is " + json.dump() + ", outside 0 to 1");
    return static_cast<float>(value);
}

bool isBankFormat(const Json &json) {
    if (!json.is_object() || !json.contains("format"))
        throw CPresetError("not a preset (no \"format\")");
    const std::string &format = textOf(json, "format");
    if (format != programFormat && format != bankFormat)
        throw CPresetError("not a preset (its format is " + shortQuote(format) + ")");
    if (entryOf(json, "version") != formatVersion)
        throw CPresetError("unknown version of the file format");
    return format == bankFormat;
}

}  // namespace

CPresetText::CPresetText() {
    for (int id = 0; id < namedParameters; ++id)
        m_units.push_back(std::make_unique<CUnitText>(id));
}

CPresetText::~CPresetText() = default;

std::string CPresetText::textFrom(const SPreset &preset) const {
    Json json = {{"format", preset.isBank() ? bankFormat : programFormat},
                 {"version", formatVersion}};
    if (preset.isBank()) {
        json["current"] = preset.current;
        for (const SProgram &program : preset.programs)
            json["programs"].push_back(jsonFrom(program));
    } else {
        json.update(jsonFrom(preset.programs[0]));
    }
    return laidOut(json);
}

Json CPresetText::jsonFrom(const SProgram &program) const {
    Json json;
    addName(json, program);
    addChain(json, program);
    for (int id = 0; id < kParameterCount; ++id) {
        const float value = program.parameters[static_cast<std::size_t>(id)];
        // The parameters without a name are 0 in all programs that the effect makes.
        if (id < namedParameters || std::bit_cast<std::uint32_t>(value) != 0)
            json["parameters"][parameterName(id)] = valueJson(id, value);
    }
    return json;
}

Json CPresetText::valueJson(int id, float value) const {
    if (id >= namedParameters)
        return {{"normalised", normalisedJson(value)}};
    const CUnitText &unit = *m_units[static_cast<std::size_t>(id)];
    if (const std::optional<std::string> text = unit.exactText(value))
        return *text;
    return {{"shown", unit.display(value)}, {"normalised", normalisedJson(value)}};
}

SPreset CPresetText::presetFrom(std::string_view text) const {
    Json json = strictJson(text);
    SPreset preset;
    if (isBankFormat(json)) {
        preset = bankFrom(json);
    } else {
        json.erase("format");
        json.erase("version");
        preset.programs.push_back(programFrom(json));
    }
    requireSound(preset);
    return preset;
}

SPreset CPresetText::bankFrom(const Json &json) const {
    requireEntries(json, "the bank", {"format", "version", "current", "programs"});
    const Json &current = entryOf(json, "current"), &programs = entryOf(json, "programs");
    if (!current.is_number_unsigned() || current >= Corvel::programCount)
        throw CPresetError("its current program is not a number from 0 to " +
                           std::to_string(Corvel::programCount - 1));
    if (!programs.is_array() || programs.size() != Corvel::programCount)
        throw CPresetError("a bank needs a list of " + std::to_string(Corvel::programCount) +
                           " programs");
    SPreset bank;
    bank.current = current.get<std::size_t>();
    for (const Json &program : programs) {
        try {
            bank.programs.push_back(programFrom(program));
        } catch (const CPresetError &error) {
            throw CPresetError("program " + std::to_string(bank.programs.size()) + ": " +
                               error.what());
        }
    }
    return bank;
}

SProgram CPresetText::programFrom(const Json &json) const {
    requireEntries(json, "the program",
                   {"name", "encoding", "nameRecord", "chain", "links", "parameters"});
    SProgram program{};
    readName(json, program);
    readChain(json, program);

    const Json &parameters = entryOf(json, "parameters");
    if (!parameters.is_object())
        throw CPresetError("the parameters are not a JSON object");
    std::bitset<kParameterCount> given;
    for (const auto &[name, value] : parameters.items()) {
        const int id = parameterFrom(name);
        const auto place = static_cast<std::size_t>(id);
        if (given[place])
            throw CPresetError("has the parameter " + parameterName(id) + " twice");
        given[place] = true;
        try {
            program.parameters[place] = valueFrom(id, value);
        } catch (const std::runtime_error &error) {
            throw CPresetError(parameterName(id) + ": " + error.what());
        }
    }
    for (int id = 0; id < namedParameters; ++id)
        if (!given[static_cast<std::size_t>(id)])
            throw CPresetError("the parameter " + parameterName(id) + " is missing");
    return program;
}

std::string CPresetText::displayOf(int id, float value) const {
    return id < namedParameters ? m_units[static_cast<std::size_t>(id)]->display(value) : "";
}

float CPresetText::valueFrom(int id, const Json &json) const {
    if (json.is_string() && id < namedParameters) {
        const auto &text = json.get_ref<const std::string &>();
        constexpr std::size_t longest = 40;
        if (text.size() > longest)
            throw CPresetError(shortQuote(text) + " is too long for a value");
        if (printable(text) != text)
            throw CPresetError(shortQuote(text) + " is not a value");
        return m_units[static_cast<std::size_t>(id)]->valueOf(text);
    }
    if (!json.is_object())
        throw CPresetError("expected a text like " + shortQuote(displayOf(id, 0.5f)) +
                           " or {\"normalised\": 0.5}");
    requireEntries(json, "the value", {"shown", "normalised"});
    const float value = normalisedFrom(entryOf(json, "normalised"));
    if (!json.contains("shown"))
        return value;
    const std::string shown = displayOf(id, value);
    if (textOf(json, "shown") != shown) {
        throw CPresetError(shortQuote(textOf(json, "shown")) + " is not how " +
                           entryOf(json, "normalised").dump() + " is shown, " + shortQuote(shown) +
                           "; keep only one of the two");
    }
    return value;
}

}  // namespace Tessitor::Tool
