#include "hostlayer/AudioEffectX.h"

#include "hostlayer/FakeHost.h"
#include "hostlayer/RecordingEffect.h"

#include <array>
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <ostream>
#include <vector>

// What the published classes answer if an effect overrides nothing. The table lists each opcode by
// number and by name, so it also checks the names.

namespace {

struct SDefault {
    int number;
    AEffectOpcode opcode;
    std::intptr_t result;
    bool emptiesText = false;
};

void PrintTo(const SDefault &entry, std::ostream *stream) {
    *stream << "opcode " << entry.number;
}

const SDefault defaults[] = {
    {0, effOpen, 0},
    {2, effSetProgram, 0},
    {3, effGetProgram, 0},
    {4, effSetProgramName, 0},
    {5, effGetProgramName, 0, true},
    {6, effGetParamLabel, 0, true},
    {7, effGetParamDisplay, 0, true},
    {8, effGetParamName, 0, true},
    {9, effGetVu, 0},
    {10, effSetSampleRate, 0},
    {11, effSetBlockSize, 0},
    {12, effMainsChanged, 0},
    {13, effEditGetRect, 0},
    {14, effEditOpen, 0},
    {15, effEditClose, 0},
    {16, effEditDraw, 0},
    {17, effEditMouse, 0},
    {18, effEditKey, 0},
    {19, effEditIdle, 0},
    {20, effEditTop, 0},
    {21, effEditSleep, 0},
    {22, effIdentify, 0x4E764566},
    {23, effGetChunk, 0},
    {24, effSetChunk, 0},
    {25, effProcessEvents, 0},
    {26, effCanBeAutomated, 1},
    {27, effString2Parameter, 0},
    {28, effGetNumProgramCategories, 1},
    {29, effGetProgramNameIndexed, 0},
    {30, effCopyProgram, 0},
    {31, effConnectInput, 1},
    {32, effConnectOutput, 1},
    {33, effGetInputProperties, 0},
    {34, effGetOutputProperties, 0},
    {35, effGetPlugCategory, 0},
    {36, effGetCurrentPosition, 0},
    {37, effGetDestinationBuffer, 0},
    {38, effOfflineNotify, 0},
    {39, effOfflinePrepare, 0},
    {40, effOfflineRun, 0},
    {41, effProcessVarIo, 0},
    {42, effSetSpeakerArrangement, 0},
    {43, effSetBlockSizeAndSampleRate, 1},
    {44, effSetBypass, 0},
    {45, effGetEffectName, 0},
    {46, effGetErrorText, 0},
    {47, effGetVendorString, 0},
    {48, effGetProductString, 0},
    {49, effGetVendorVersion, 0},
    {50, effVendorSpecific, 0},
    {51, effCanDo, 0},
    {52, effGetTailSize, 0},
    {53, effIdle, 0},
    {54, effGetIcon, 0},
    {55, effSetViewPosition, 0},
    {56, effGetParameterProperties, 0},
    {57, effKeysRequired, 1},
    {58, effGetVstVersion, 2400},
    {59, effEditKeyDown, 0},
    {60, effEditKeyUp, 0},
    {61, effSetEditKnobMode, 0},
    {62, effGetMidiProgramName, 0},
    {63, effGetCurrentMidiProgram, -1},
    {64, effGetMidiProgramCategory, 0},
    {65, effHasMidiProgramsChanged, 0},
    {66, effGetMidiKeyName, 0},
    {67, effBeginSetProgram, 0},
    {68, effEndSetProgram, 0},
    {70, effShellGetNextPlugin, 0},
    {71, effStartProcess, 0},
    {72, effStopProcess, 0},
    {73, effSetTotalSampleToProcess, 1},
    {74, effSetPanLaw, 0},
    {75, effBeginLoadBank, 0},
    {76, effBeginLoadProgram, 0},
    {77, effSetProcessPrecision, 0},
    {78, effGetNumMidiInputChannels, 0},
    {79, effGetNumMidiOutputChannels, 0},
};

using Memory = std::array<char, 1024>;

Memory filledMemory() {
    Memory memory;
    memory.fill('\x5A');
    return memory;
}

std::array<char, sizeof(AEffect)> bytesOf(const AEffect &record) {
    std::array<char, sizeof(AEffect)> bytes;
    std::memcpy(bytes.data(), &record, sizeof record);
    return bytes;
}

}  // namespace

class AudioEffectXDefaults : public testing::TestWithParam<SDefault> {};

TEST_P(AudioEffectXDefaults, AreReturnedBeforeOpenAndWriteAtMostAnEmptyText) {
    const SDefault &entry = GetParam();
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    Memory memory = filledMemory(), expected = memory;
    if (entry.emptiesText)
        expected[0] = '\0';

    EXPECT_EQ(entry.opcode, entry.number);
    EXPECT_EQ(effect.call(entry.number, 1, 1, memory.data(), 1.0f), entry.result);
    EXPECT_EQ(memory, expected);
    EXPECT_TRUE(host.calls().empty());
}
INSTANTIATE_TEST_SUITE_P(Opcodes, AudioEffectXDefaults, testing::ValuesIn(defaults));

TEST(AudioEffectX, ReturnsNoSpeakerArrangement) {
    ProbeEffect effect;
    VstSpeakerArrangement arrangement{};
    VstSpeakerArrangement *in = &arrangement, *out = &arrangement;
    EXPECT_EQ(effect.call(69, 0, reinterpret_cast<std::intptr_t>(&in), &out), 0);
    EXPECT_EQ(in, nullptr);
    EXPECT_EQ(out, nullptr);
}

TEST(AudioEffectX, AnswersZeroToUnknownOpcodesAndWritesNothing) {
    ProbeEffect effect;
    Memory memory = filledMemory();
    const auto before = bytesOf(*effect.getAeffect());
    for (const int opcode : {80, 81, 99, 1000, -1, INT_MAX, INT_MIN})
        EXPECT_EQ(effect.call(opcode, 1, 1, memory.data(), 1.0f), 0) << opcode;
    EXPECT_EQ(memory, filledMemory());
    EXPECT_EQ(bytesOf(*effect.getAeffect()), before);
}

TEST(AudioEffectX, HasTheSynthCategoryOnlyAfterIsSynth) {
    ProbeEffect effect;
    effect.isSynth();
    EXPECT_EQ(effect.call(35), 2);
    effect.isSynth(false);
    EXPECT_EQ(effect.call(35), 0);
}

// Each opcode passes its arguments to an operation and returns the result.

namespace {

struct SRoute {
    AEffectOpcode opcode;
    int index;
    std::intptr_t value;
    double opt;
    const char *reached;
    std::intptr_t result;
    bool takesPointer = false;
};

void PrintTo(const SRoute &route, std::ostream *stream) {
    *stream << route.reached;
}

const SRoute routes[] = {
    {effOpen, 0, 0, 0, "open", 0},
    {effSetProgram, 0, 2, 0, "setProgram 2", 0},
    {effGetProgram, 0, 0, 0, "getProgram", 7},
    {effSetProgramName, 0, 0, 0, "setProgramName", 0, true},
    {effGetProgramName, 0, 0, 0, "getProgramName", 0, true},
    {effGetParamLabel, 5, 0, 0, "getParameterLabel 5", 0, true},
    {effGetParamDisplay, 6, 0, 0, "getParameterDisplay 6", 0, true},
    {effGetParamName, 7, 0, 0, "getParameterName 7", 0, true},
    {effSetSampleRate, 0, 0, 48000.0, "setSampleRate 48000", 0},
    {effSetBlockSize, 0, 353, 0, "setBlockSize 353", 0},
    {effGetChunk, 0, 0, 0, "getChunk 0", 7, true},
    {effGetChunk, 1, 0, 0, "getChunk 1", 7, true},
    {effGetChunk, 2, 0, 0, "getChunk 1", 7, true},
    {effSetChunk, 0, 8480, 0, "setChunk 8480 0", 7, true},
    {effSetChunk, 1, 424, 0, "setChunk 424 1", 7, true},
    {effProcessEvents, 0, 0, 0, "processEvents", 7, true},
    {effCanBeAutomated, 3, 0, 0, "canParameterBeAutomated 3", 1},
    {effString2Parameter, 3, 0, 0, "string2parameter 3", 1, true},
    {effGetProgramNameIndexed, 19, -1, 0, "getProgramNameIndexed -1 19", 1, true},
    {effGetInputProperties, 1, 0, 0, "getInputProperties 1", 1, true},
    {effGetOutputProperties, 1, 0, 0, "getOutputProperties 1", 1, true},
    {effGetPlugCategory, 0, 0, 0, "getPlugCategory", 7},
    {effProcessVarIo, 0, 0, 0, "processVariableIo", 1, true},
    {effSetBypass, 0, 1, 0, "setBypass 1", 1},
    {effSetBypass, 0, 0, 0, "setBypass 0", 1},
    {effGetEffectName, 0, 0, 0, "getEffectName", 1, true},
    {effGetVendorString, 0, 0, 0, "getVendorString", 1, true},
    {effGetProductString, 0, 0, 0, "getProductString", 1, true},
    {effGetVendorVersion, 0, 0, 0, "getVendorVersion", 7},
    {effVendorSpecific, 4, 5, 0.5, "vendorSpecific 4 5 0.5", 7, true},
    {effCanDo, 0, 0, 0, "canDo", 7, true},
    {effGetTailSize, 0, 0, 0, "getTailSize", 7},
    {effGetParameterProperties, 3, 0, 0, "getParameterProperties 3", 1, true},
    {effGetVstVersion, 0, 0, 0, "getVstVersion", 7},
    {effBeginSetProgram, 0, 0, 0, "beginSetProgram", 1},
    {effEndSetProgram, 0, 0, 0, "endSetProgram", 1},
    {effShellGetNextPlugin, 0, 0, 0, "getNextShellPlugin", 7, true},
    {effStartProcess, 0, 0, 0, "startProcess", 7},
    {effStopProcess, 0, 0, 0, "stopProcess", 7},
    {effSetTotalSampleToProcess, 0, 9, 0, "setTotalSampleToProcess 9", 7},
    {effSetPanLaw, 0, 2, 0.5, "setPanLaw 2 0.5", 1},
    {effBeginLoadBank, 0, 0, 0, "beginLoadBank", 7, true},
    {effBeginLoadProgram, 0, 0, 0, "beginLoadProgram", 7, true},
    {effSetProcessPrecision, 0, 1, 0, "setProcessPrecision 1", 1},
    {effGetNumMidiInputChannels, 0, 0, 0, "getNumMidiInputChannels", 7},
    {effGetNumMidiOutputChannels, 0, 0, 0, "getNumMidiOutputChannels", 7},
};

}  // namespace

class AudioEffectXRoutes : public testing::TestWithParam<SRoute> {};

TEST_P(AudioEffectXRoutes, CallTheOperationAndReturnItsResult) {
    const SRoute &route = GetParam();
    RecordingEffect effect;
    Memory memory = filledMemory();
    EXPECT_EQ(effect.call(route.opcode, route.index, route.value, memory.data(),
                          static_cast<float>(route.opt)),
              route.result);
    EXPECT_EQ(effect.reached.text, route.reached);
    EXPECT_EQ(effect.reached.first, route.takesPointer ? memory.data() : nullptr);
    EXPECT_EQ(effect.reached.second, nullptr);
}
INSTANTIATE_TEST_SUITE_P(Opcodes, AudioEffectXRoutes, testing::ValuesIn(routes));

TEST(AudioEffectX, PassesBothSpeakerArrangements) {
    RecordingEffect effect;
    VstSpeakerArrangement in{}, out{};
    VstSpeakerArrangement *inAnswer = nullptr, *outAnswer = nullptr;
    EXPECT_EQ(effect.call(42, 0, reinterpret_cast<std::intptr_t>(&in), &out), 1);
    EXPECT_EQ(effect.reached, (SReached{"setSpeakerArrangement", &in, &out}));
    EXPECT_EQ(effect.call(69, 0, reinterpret_cast<std::intptr_t>(&inAnswer), &outAnswer), 1);
    EXPECT_EQ(effect.reached, (SReached{"getSpeakerArrangement", &inAnswer, &outAnswer}));
}

TEST(AudioEffectX, AsksForMidiAtResumeIfItReceivesMidi) {
    class Receiver : public ProbeEffect {
    public:
        using ProbeEffect::ProbeEffect;
        int canDo(char *text) override {
            return std::strcmp(text, "receiveVstMidiEvent") == 0 ? answer : 0;
        }
        int answer = 1;
    };
    FakeHost host;
    Receiver effect(FakeHost::callback);
    effect.call(effMainsChanged, 0, 1);
    ASSERT_EQ(host.calls().size(), 1u);
    EXPECT_EQ(host.calls().front().opcode, 6);
    EXPECT_EQ(host.calls().front().value, 1);

    host.forgetCalls();
    effect.answer = -1;
    effect.call(effMainsChanged, 0, 1);
    EXPECT_TRUE(host.calls().empty());
    effect.isSynth();
    effect.call(effMainsChanged, 0, 1);
    EXPECT_EQ(host.calls(audioMasterWantMidi).size(), 1u);
}

// The questions to the host

namespace {

struct SQuestion {
    const char *name;
    std::intptr_t (*ask)(ProbeEffect &);
    int opcode;
    std::intptr_t answer;  // of the host
    std::intptr_t result;
    std::intptr_t index = 0;
    std::intptr_t value = 0;
};

void PrintTo(const SQuestion &question, std::ostream *stream) {
    *stream << question.name;
}

const SQuestion questions[] = {
    {"getMasterVersion", [](ProbeEffect &e) -> std::intptr_t { return e.getMasterVersion(); }, 1,
     2300, 2300},
    {"getCurrentUniqueId", [](ProbeEffect &e) -> std::intptr_t { return e.getCurrentUniqueId(); },
     2, 77, 77},
    {"masterIdle",
     [](ProbeEffect &e) -> std::intptr_t {
         e.masterIdle();
         return 0;
     },
     3, 0, 0},
    {"sendVstEventsToHost",
     [](ProbeEffect &e) -> std::intptr_t { return e.sendVstEventsToHost(nullptr); }, 8, 1, 1},
    {"ioChanged", [](ProbeEffect &e) -> std::intptr_t { return e.ioChanged(); }, 13, 1, 1},
    {"sizeWindow", [](ProbeEffect &e) -> std::intptr_t { return e.sizeWindow(748, 370); }, 15, 1, 1,
     748, 370},
    {"getInputLatency", [](ProbeEffect &e) -> std::intptr_t { return e.getInputLatency(); }, 18,
     128, 128},
    {"getOutputLatency", [](ProbeEffect &e) -> std::intptr_t { return e.getOutputLatency(); }, 19,
     256, 256},
    {"getCurrentProcessLevel",
     [](ProbeEffect &e) -> std::intptr_t { return e.getCurrentProcessLevel(); }, 23, 2, 2},
    {"getAutomationState", [](ProbeEffect &e) -> std::intptr_t { return e.getAutomationState(); },
     24, 4, 4},
    {"getHostVendorVersion",
     [](ProbeEffect &e) -> std::intptr_t { return e.getHostVendorVersion(); }, 34, 900, 900},
    {"getHostLanguage", [](ProbeEffect &e) -> std::intptr_t { return e.getHostLanguage(); }, 38, 1,
     1},
    {"updateDisplay", [](ProbeEffect &e) -> std::intptr_t { return e.updateDisplay(); }, 42, 1, 1},
    {"beginEdit", [](ProbeEffect &e) -> std::intptr_t { return e.beginEdit(5); }, 43, 1, 1, 5},
    {"endEdit", [](ProbeEffect &e) -> std::intptr_t { return e.endEdit(6); }, 44, 1, 1, 6},
};

}  // namespace

class AudioEffectXQuestions : public testing::TestWithParam<SQuestion> {};

TEST_P(AudioEffectXQuestions, ReachTheHostAndReturnItsAnswer) {
    const SQuestion &question = GetParam();
    FakeHost host;
    host.answers[question.opcode] = question.answer;
    ProbeEffect effect(FakeHost::callback);
    EXPECT_EQ(question.ask(effect), question.result);
    ASSERT_EQ(host.calls().size(), 1u);
    const SHostCall call = host.calls().front();
    EXPECT_EQ(call.effect, effect.getAeffect());
    EXPECT_EQ(call.opcode, question.opcode);
    EXPECT_EQ(call.index, question.index);
    EXPECT_EQ(call.value, question.value);
}

TEST_P(AudioEffectXQuestions, ReturnZeroWithoutAHost) {
    ProbeEffect effect;
    EXPECT_EQ(GetParam().ask(effect), 0);
}
INSTANTIATE_TEST_SUITE_P(Wrappers, AudioEffectXQuestions, testing::ValuesIn(questions),
                         [](const auto &entry) { return std::string(entry.param.name); });

TEST(AudioEffectX, PassesTheTimeMaskAndReturnsTheTimeRecord) {
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    EXPECT_EQ(effect.getTimeInfo(kVstTempoValid), nullptr);
    host.time = VstTimeInfo{};
    host.time->tempo = 93.5;
    ASSERT_NE(effect.getTimeInfo(kVstTempoValid), nullptr);
    EXPECT_EQ(effect.getTimeInfo(kVstTempoValid)->tempo, 93.5);
    EXPECT_EQ(host.calls().front().opcode, 7);
    EXPECT_EQ(host.calls().front().value, 0x400);
    EXPECT_EQ(ProbeEffect().getTimeInfo(kVstTempoValid), nullptr);
}

TEST(AudioEffectX, ReturnsTheHostsCanDoAnswerUnchanged) {
    FakeHost host;
    host.canDo = {{"sizeWindow", 1}, {"offline", -1}};
    ProbeEffect effect(FakeHost::callback);
    EXPECT_EQ(effect.canHostDo("sizeWindow"), 1);
    EXPECT_EQ(effect.canHostDo("offline"), -1);
    EXPECT_EQ(effect.canHostDo("editFile"), 0);
    EXPECT_EQ(ProbeEffect().canHostDo("sizeWindow"), 0);
    EXPECT_EQ(host.calls(audioMasterCanDo).back().text, "editFile");
}

TEST(AudioEffectX, ReturnsTheHostsNames) {
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    char text[kVstMaxProductStrLen] = "as it was";
    EXPECT_FALSE(effect.getHostProductString(text));
    EXPECT_FALSE(effect.getHostVendorString(text));
    EXPECT_STREQ(text, "as it was");

    host.product.emplace("Product\0", 8);
    host.vendor.emplace("Vendor\0", 7);
    EXPECT_TRUE(effect.getHostProductString(text));
    EXPECT_STREQ(text, "Product");
    EXPECT_TRUE(effect.getHostVendorString(text));
    EXPECT_STREQ(text, "Vendor");
    EXPECT_FALSE(ProbeEffect().getHostProductString(text));
    EXPECT_FALSE(ProbeEffect().getHostVendorString(text));
}

TEST(AudioEffectX, TreatsAnInputAsConnectedUnlessTheHostSaysOtherwise) {
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    EXPECT_TRUE(effect.isInputConnected(1));
    host.unconnectedInputs = {1};
    EXPECT_TRUE(effect.isInputConnected(0));
    EXPECT_FALSE(effect.isInputConnected(1));
    EXPECT_EQ(host.calls().back().opcode, 4);
    EXPECT_EQ(host.calls().back().index, 1);
    EXPECT_TRUE(ProbeEffect().isInputConnected(1));
}

TEST(AudioEffectX, KeepsRateAndBlockSizeIfTheHostReportsNone) {
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    EXPECT_EQ(effect.updateSampleRate(), 44100.0f);
    EXPECT_EQ(effect.updateBlockSize(), 1024);
    host.answers[audioMasterGetSampleRate] = 48000;
    host.answers[audioMasterGetBlockSize] = 256;
    EXPECT_EQ(effect.updateSampleRate(), 48000.0f);
    EXPECT_EQ(effect.updateBlockSize(), 256);
    EXPECT_EQ(effect.getSampleRate(), 48000.0f);
    EXPECT_EQ(effect.getBlockSize(), 256);
}

TEST(AudioEffectX, ReturnsTheHostsDirectory) {
    FakeHost host;
    char directory[] = "effects";
    host.answers[audioMasterGetDirectory] = reinterpret_cast<std::intptr_t>(directory);
    ProbeEffect effect(FakeHost::callback);
    EXPECT_EQ(effect.getDirectory(), directory);
    EXPECT_EQ(ProbeEffect().getDirectory(), nullptr);
}
