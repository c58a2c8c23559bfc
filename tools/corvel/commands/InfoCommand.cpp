#include "corvel/commands/Commands.h"
#include "corvel/console/Print.h"
#include "corvel/console/Text.h"

#include <array>
#include <cstdio>

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;

struct SFlagName {
    VstAEffectFlags flag;
    const char *name;
};

constexpr SFlagName flagNames[] = {
    {effFlagsHasEditor, "HasEditor"},
    {effFlagsHasClip, "HasClip"},
    {effFlagsHasVu, "HasVu"},
    {effFlagsCanMono, "CanMono"},
    {effFlagsCanReplacing, "CanReplacing"},
    {effFlagsProgramChunks, "ProgramChunks"},
    {effFlagsIsSynth, "IsSynth"},
    {effFlagsNoSoundInStop, "NoSoundInStop"},
    {effFlagsExtIsAsync, "ExtIsAsync"},
    {effFlagsExtHasBuffer, "ExtHasBuffer"},
    {effFlagsCanDoubleReplacing, "CanDoubleReplacing"},
};

constexpr std::array categoryNames = {
    "unknown",     "effect",          "synth",       "analysis",        "mastering", "spatializer",
    "room effect", "surround effect", "restoration", "offline process", "shell",     "generator"};

// The capabilities that hosts are known to ask about
constexpr const char *canDoWords[] = {"plugAsChannelInsert",
                                      "plugAsSend",
                                      "mixDryWet",
                                      "1in1out",
                                      "1in2out",
                                      "2in1out",
                                      "2in2out",
                                      "bypass",
                                      "offline",
                                      "noRealTime",
                                      "receiveVstEvents",
                                      "receiveVstMidiEvent",
                                      "receiveVstMidiEvents",
                                      "receiveVstTimeInfo",
                                      "sendVstEvents",
                                      "sendVstMidiEvent",
                                      "sendVstMidiEvents",
                                      "sendVstTimeInfo",
                                      "midiProgramNames"};

Json flagsOf(const CEffectInstance &effect) {
    Json flags = Json::array();
    for (const SFlagName &entry : flagNames)
        if (effect.has(entry.flag))
            flags.push_back(entry.name);
    return flags;
}

std::string hexadecimal(std::int32_t number) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "0x%08X", static_cast<std::uint32_t>(number));
    return text.data();
}

// By the published interface the first letter is the highest byte. Some effects store the letters
// in memory order instead.
std::string lettersInMemory(std::int32_t id) {
    std::string letters;
    for (int byte = 0; byte < 4; ++byte) {
        const auto letter = static_cast<unsigned char>(static_cast<std::uint32_t>(id) >> 8 * byte);
        letters += letter >= 0x20 && letter < 0x7F ? static_cast<char>(letter) : '?';
    }
    return letters;
}

std::string categoryOf(CEffectInstance &effect) {
    const auto category = static_cast<std::size_t>(effect.dispatch(effGetPlugCategory));
    return category < categoryNames.size() ? categoryNames[category] : std::to_string(category);
}

Json editorOf(CEffectInstance &effect) {
    ERect *bounds = nullptr;
    if (effect.has(effFlagsHasEditor))
        effect.dispatch(effEditGetRect, 0, 0, &bounds);
    if (bounds == nullptr)
        return nullptr;
    return {{"width", bounds->right - bounds->left}, {"height", bounds->bottom - bounds->top}};
}

Json pinsOf(CEffectInstance &effect, AEffectOpcode opcode, std::int32_t count) {
    Json pins = Json::array();
    for (std::int32_t pin = 0; pin < count; ++pin) {
        VstPinProperties properties{};
        if (effect.dispatch(opcode, pin, 0, &properties) == 0) {
            pins.push_back(nullptr);
            continue;
        }
        properties.label[kVstMaxLabelLen - 1] = '\0';
        properties.shortLabel[kVstMaxShortLabelLen - 1] = '\0';
        pins.push_back({{"label", properties.label},
                        {"shortLabel", properties.shortLabel},
                        {"active", (properties.flags & kVstPinIsActive) != 0},
                        {"stereo", (properties.flags & kVstPinIsStereo) != 0}});
    }
    return pins;
}

Json canDoAnswersOf(CEffectInstance &effect) {
    Json answers = Json::object();
    for (const char *word : canDoWords) {
        std::string text = word;  // the published argument is not const
        answers[word] = effect.dispatch(effCanDo, 0, 0, text.data());
    }
    return answers;
}

Json infoOf(const CEffectLibrary &library, CEffectInstance &effect) {
    const AEffect &record = effect.record();
    return {{"file", library.file().string()},
            {"entries", library.entryNames()},
            {"name", effect.text(effGetEffectName)},
            {"vendor", effect.text(effGetVendorString)},
            {"product", effect.text(effGetProductString)},
            {"vendorVersion", effect.dispatch(effGetVendorVersion)},
            {"vstVersion", effect.dispatch(effGetVstVersion)},
            {"category", categoryOf(effect)},
            {"uniqueId", hexadecimal(record.uniqueID)},
            {"uniqueIdLetters", lettersInMemory(record.uniqueID)},
            {"version", record.version},
            {"flags", flagsOf(effect)},
            {"programs", record.numPrograms},
            {"parameters", record.numParams},
            {"inputs", record.numInputs},
            {"outputs", record.numOutputs},
            {"initialDelay", record.initialDelay},
            {"tailSize", effect.dispatch(effGetTailSize)},
            {"editor", editorOf(effect)},
            {"inputPins", pinsOf(effect, effGetInputProperties, record.numInputs)},
            {"outputPins", pinsOf(effect, effGetOutputProperties, record.numOutputs)},
            {"canDo", canDoAnswersOf(effect)}};
}

std::string joinedTexts(const Json &texts) {
    std::string text;
    for (const Json &part : texts)
        text += (text.empty() ? "" : ", ") + part.get<std::string>();
    return text;
}

std::string describePin(const Json &pin) {
    if (pin.is_null())
        return "not described";
    return pin["label"].get<std::string>() + " (" + pin["shortLabel"].get<std::string>() +
           (pin["active"] ? ", active" : ", inactive") + (pin["stereo"] ? ", stereo)" : ")");
}

std::string wordsWithAnswer(const Json &answers, bool (*wanted)(int answer)) {
    std::string text;
    for (const auto &[word, answer] : answers.items())
        if (wanted(answer.get<int>()))
            text += (text.empty() ? "" : ", ") + word;
    return text.empty() ? "none" : text;
}

std::string describe(const Json &info) {
    const auto text = [&](const char *key) {
        return info[key].is_string() ? info[key].get<std::string>() : info[key].dump();
    };
    std::vector<std::vector<std::string>> rows = {
        {"file", text("file")},
        {"entry", joinedTexts(info["entries"])},
        {"name", text("name")},
        {"vendor", text("vendor") + ", version " + text("vendorVersion")},
        {"product", text("product")},
        {"interface", "VST " + text("vstVersion")},
        {"category", text("category")},
        {"unique id", text("uniqueId") + ", in memory \"" + text("uniqueIdLetters") + "\""},
        {"version", text("version")},
        {"flags", joinedTexts(info["flags"])},
        {"programs", text("programs")},
        {"parameters", text("parameters")},
        {"inputs", text("inputs")},
        {"outputs", text("outputs")},
        {"latency", text("initialDelay") + " frames"},
        {"tail", text("tailSize")}};
    const Json &editor = info["editor"];
    rows.push_back({"editor", editor.is_null() ? "none"
                                               : editor["width"].dump() + " x " +
                                                     editor["height"].dump() + " pixels"});
    for (const Json &pin : info["inputPins"])
        rows.push_back({"input pin", describePin(pin)});
    for (const Json &pin : info["outputPins"])
        rows.push_back({"output pin", describePin(pin)});
    const Json &answers = info["canDo"];
    rows.push_back({"can do", wordsWithAnswer(answers, [](int answer) { return answer > 0; })});
    rows.push_back({"cannot do", wordsWithAnswer(answers, [](int answer) { return answer < 0; })});
    rows.push_back({"not known", wordsWithAnswer(answers, [](int answer) { return answer == 0; })});
    return inColumns(rows);
}

}  // namespace

int runInfo(const SInfoCall &call) {
    const CEffectLibrary library(CEffectLibrary::choose(call.plugin));
    CEffectInstance effect(library);
    const Json info = infoOf(library, effect);
    call.json ? printJson(info) : print(describe(info));
    return 0;
}

}  // namespace Tessitor::Tool
