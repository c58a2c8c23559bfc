#include "corvel/commands/Commands.h"
#include "corvel/console/Print.h"
#include "corvel/console/Text.h"
#include "corvel/settings/Parameters.h"
#include "corvel/settings/ProgramDescriptions.h"

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;
using Rows = std::vector<std::vector<std::string>>;

// JSON numbers are doubles. Converted through its text, 0.1f becomes 0.1, not 0.10000000149011612.
double asWritten(float number) {
    return std::stod(shortest(number));
}

std::string joined(const std::vector<std::string> &parts) {
    std::string text;
    for (const std::string &part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text;
}

struct SValue {
    float value;
    std::string display;
};

std::vector<SValue> valuesOf(CEffectInstance &effect) {
    std::vector<SValue> values;
    values.reserve(static_cast<std::size_t>(effect.record().numParams));
    for (std::int32_t index = 0; index < effect.record().numParams; ++index)
        values.push_back({effect.parameter(index), effect.text(effGetParamDisplay, index)});
    return values;
}

// Leaves the parameter at another value.
std::string rangeOf(CEffectInstance &effect, std::int32_t index) {
    return parameterText(effect, index).range();
}

std::vector<std::string> labelsOf(const Chain &chain) {
    std::vector<std::string> labels;
    for (const int slot : chain)
        labels.emplace_back(moduleLabel(slot));
    return labels;
}

}  // namespace

int runPrograms(const SProgramsCall &call) {
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance effect(library);
    const bool chained = hasChain(effect);
    Json json = Json::array();
    Rows rows = {{"#", "Name"}};
    if (call.describe)
        rows.front().emplace_back("For");
    if (chained)
        rows.front().emplace_back("Chain");
    for (std::int32_t program = 0; program < effect.record().numPrograms; ++program) {
        const std::string name = programName(effect, program);
        json.push_back({{"program", program}, {"name", name}});
        rows.push_back({std::to_string(program), name});
        if (call.describe) {
            const std::string_view description = chained ? programDescription(name) : "";
            json.back()["description"] = description;
            rows.back().emplace_back(description);
        }
        if (!chained)
            continue;
        effect.dispatch(effSetProgram, 0, program);
        const std::vector<std::string> labels = labelsOf(chainOf(effect));
        json.back()["chain"] = labels;
        rows.back().push_back(joined(labels));
    }
    call.json ? printJson(json) : print(inColumns(rows));
    return 0;
}

int runParams(const SParamsCall &call) {
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance effect(library);
    const std::vector<SValue> defaults = valuesOf(effect);
    if (call.program)
        effect.dispatch(effSetProgram, 0, programFromText(effect, *call.program));
    const std::vector<SValue> values = valuesOf(effect);
    Json json = Json::array();
    Rows rows = {{"#", "Name", "Value", "Display", "Unit", "Default", "Range"}};
    for (std::int32_t index = 0; index < effect.record().numParams; ++index) {
        const std::string name = effect.text(effGetParamName, index);
        const std::string unit = effect.text(effGetParamLabel, index);
        const std::string range = rangeOf(effect, index);
        const auto [value, display] = values[static_cast<std::size_t>(index)];
        const auto &[usual, usualDisplay] = defaults[static_cast<std::size_t>(index)];
        json.push_back({{"parameter", index},
                        {"name", name},
                        {"value", asWritten(value)},
                        {"display", display},
                        {"unit", unit},
                        {"default", asWritten(usual)},
                        {"defaultDisplay", usualDisplay},
                        {"range", range}});
        rows.push_back(
            {std::to_string(index), name, shortest(value), display, unit, usualDisplay, range});
    }
    call.json ? printJson(json) : print(inColumns(rows));
    return 0;
}

}  // namespace Tessitor::Tool
