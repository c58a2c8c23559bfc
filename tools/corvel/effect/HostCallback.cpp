#include "corvel/effect/HostCallback.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>

namespace Tessitor::Tool {

namespace {

constexpr std::intptr_t hostVersion = 1000;
constexpr std::intptr_t english = 1;

thread_local std::int32_t processLevel = kVstProcessLevelOffline;

std::intptr_t giveText(void *ptr, const char *text) {
    if (ptr == nullptr)
        return 0;
    std::snprintf(static_cast<char *>(ptr), kVstMaxVendorStrLen, "%s", text);
    return 1;
}

std::intptr_t canDo(const void *ptr) {
    if (ptr == nullptr)
        return 0;
    constexpr std::string_view abilities[] = {"sendVstTimeInfo", "startStopProcess",
                                              "sendVstEvents", "sendVstMidiEvent", "sizeWindow"};
    const std::string_view what = static_cast<const char *>(ptr);
    return std::find(std::begin(abilities), std::end(abilities), what) != std::end(abilities);
}

std::intptr_t resize(IEditorHost *editor, std::int32_t width, std::int32_t height) {
    if (editor == nullptr || width <= 0 || height <= 0)
        return 0;
    editor->resizeEditor(width, height);
    return 1;
}

// Inverted in the published interface: 0 means connected, so a host without this opcode says yes.
std::intptr_t pinConnected(const SHostState &state, std::int32_t pin, bool output) {
    const bool rightConnected = output ? state.rightOutputConnected : state.rightInputConnected;
    const bool connected = pin == 0 || (pin == 1 && rightConnected);
    return connected ? 0 : 1;
}

std::intptr_t answerOfInstance(SHostState &state, std::int32_t opcode, std::int32_t index,
                               std::intptr_t value) {
    switch (opcode) {
    case audioMasterSizeWindow:
        return resize(state.editor, index, static_cast<std::int32_t>(value));
    case audioMasterPinConnected:
        return pinConnected(state, index, value != 0);
    case audioMasterGetTime:
        return reinterpret_cast<std::intptr_t>(&state.time);
    case audioMasterGetSampleRate:
        return static_cast<std::intptr_t>(state.time.sampleRate);
    case audioMasterGetBlockSize:
        return state.blockSize;
    default:
        return 0;
    }
}

}  // namespace

void setProcessLevelOfThread(std::int32_t level) {
    processLevel = level;
}

std::intptr_t hostCallback(AEffect *effect, std::int32_t opcode, std::int32_t index,
                           std::intptr_t value, void *ptr, float /*opt*/) {
    switch (opcode) {
    case audioMasterVersion:
        return kVstVersion;
    case audioMasterCurrentId:
        return effect != nullptr ? effect->uniqueID : 0;
    case audioMasterGetCurrentProcessLevel:
        return processLevel;
    case audioMasterGetAutomationState:
        return kVstAutomationOff;
    case audioMasterGetVendorString:
        return giveText(ptr, "Lumatic");
    case audioMasterGetProductString:
        return giveText(ptr, "corvel");
    case audioMasterGetVendorVersion:
        return hostVersion;
    case audioMasterCanDo:
        return canDo(ptr);
    case audioMasterGetLanguage:
        return english;
    default:
        if (effect == nullptr || effect->resvd1 == 0)
            return 0;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the field is published as a number
        return answerOfInstance(*reinterpret_cast<SHostState *>(effect->resvd1), opcode, index,
                                value);
    }
}

}  // namespace Tessitor::Tool
