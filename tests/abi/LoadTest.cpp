#include "abi/HeapInUse.h"
#include "abi/LoadedPlugin.h"
#include "dspclasses/parameters/ParameterIds.h"
#include "dspclasses/support/Signals.h"
#include "hostlayer/FakeHost.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <thread>

namespace {

void loadRunAndUnload() {
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    effect.send(effMainsChanged, 0, 1);
    TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 1, 500), out(500);
    effect.processReplacing(voice.pointers().data(), out.pointers().data(), 500);
}

}  // namespace

TEST(PluginFile, HasOneEntryUnderTwoNames) {
    const CPluginFile file;
    ASSERT_NE(file.symbol("VSTPluginMain"), nullptr);
    EXPECT_EQ(file.symbol("VSTPluginMain"), file.symbol("main"));
}

TEST(PluginFile, ReturnsNoEffectToAHostWithoutAVersion) {
    FakeHost host;
    host.answers[audioMasterVersion] = 0;
    const CPluginFile file;
    EXPECT_EQ(file.entry()(FakeHost::callback), nullptr);
}

// Qtractor 0.9.31 gives its version as 2, MusE 4.1 as 2300.
TEST(PluginFile, ReturnsAnEffectToHostsOfOldVersions) {
    FakeHost host;
    const CPluginFile file;
    for (int version : {1, 2, 2300, 2400}) {
        host.answers[audioMasterVersion] = version;
        const CLoadedEffect effect(file, FakeHost::callback);
        EXPECT_EQ(effect.record().magic, kEffectMagic) << version;
    }
}

// Audacity 3.2.4 crashes if it is asked for more.
TEST(PluginFile, AsksOnlyForTheVersionBeforeThereIsAnEffect) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    for (const SHostCall &call : host.calls())
        EXPECT_EQ(call.effect == nullptr, call.opcode == audioMasterVersion) << call.opcode;
    EXPECT_EQ(host.calls(audioMasterVersion).size(), 1u);
}

TEST(PluginFile, CanBeLoadedAndUnloadedRepeatedly) {
    FakeHost host;
    for (int i = 0; i < 5; ++i) {
        const CPluginFile file;
        const CLoadedEffect effect(file, FakeHost::callback);
        EXPECT_EQ(effect.text(effGetEffectName), "Corvel");
    }
}

TEST(PluginFile, FreesAllItsMemoryWhenItIsUnloaded) {
    FakeHost host;
    host.logging = false;
    loadRunAndUnload();  // the loader keeps what it allocates for the first library
    const std::size_t before = heapInUse();
    constexpr std::size_t loads = 50;
    for (std::size_t i = 0; i < loads; ++i)
        loadRunAndUnload();
    constexpr std::size_t bytesPerLoad = 1024;
    EXPECT_LT(heapInUse(), before + loads * bytesPerLoad);
}

TEST(PluginFile, FreesTheMemoryOfEachOfManyEffects) {
    FakeHost host;
    host.logging = false;
    const CPluginFile file;
    constexpr std::size_t count = 50, bytesPerEffect = 100;
    const auto useMany = [&] {
        std::vector<std::unique_ptr<CLoadedEffect>> effects;
        for (int i = 0; i < int{count}; ++i) {
            effects.push_back(std::make_unique<CLoadedEffect>(file, FakeHost::callback));
            effects.back()->send(effSetProgram, 0, i % 20);
        }
    };
    useMany();  // the first effect loads what all share
    const std::size_t before = heapInUse();
    useMany();
    EXPECT_LT(heapInUse(), before + count * bytesPerEffect);
}

TEST(LoadedEffect, NamesItself) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    EXPECT_EQ(effect.text(effGetEffectName), "Corvel");
    EXPECT_EQ(effect.text(effGetVendorString), "Lumatic");
    EXPECT_EQ(effect.text(effGetProductString), "Vocal VST plugin");
    EXPECT_EQ(effect.send(effGetVendorVersion), 0);
    EXPECT_EQ(effect.send(effGetVstVersion), 2400);
    EXPECT_EQ(effect.send(effGetPlugCategory), 0);
    EXPECT_EQ(effect.send(effIdentify), kEffectIdentity);
}

TEST(LoadedEffect, FillsItsRecord) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    const AEffect &record = effect.record();
    EXPECT_EQ(record.magic, 0x56737450);
    EXPECT_EQ(record.numPrograms, 20);
    EXPECT_EQ(record.numParams, 64);
    EXPECT_EQ(record.numInputs, 2);
    EXPECT_EQ(record.numOutputs, 2);
    EXPECT_EQ(record.flags, 1 << 0 | 1 << 4 | 1 << 5 | 1 << 12);
    EXPECT_EQ(record.uniqueID, 0x6B4D7251);
    EXPECT_EQ(record.version, 1);
    for (char byte : record.future)
        EXPECT_EQ(byte, 0);
}

TEST(LoadedEffect, HasADifferentNameForEachParameterInUse) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    std::set<std::string> names;
    for (int id = 0; id <= kOutMono; ++id)
        names.insert(effect.text(effGetParamName, id));
    EXPECT_EQ(names.size(), 62u);
    EXPECT_EQ(effect.text(effGetParamName, 17), "GateThrsh");
    EXPECT_EQ(effect.text(effGetParamLabel, 17), "dB");
    EXPECT_EQ(effect.text(effGetParamName, 63), "");
}

TEST(LoadedEffect, ListsItsProgramsForOldAndNewHosts) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    char name[kVstMaxProgNameLen] = {};
    for (int category : {-1, 0}) {
        EXPECT_EQ(effect.send(effGetProgramNameIndexed, 19, category, name), 1);
        EXPECT_STREQ(name, "Empty");
        EXPECT_EQ(effect.send(effGetProgramNameIndexed, 20, category, name), 0);
    }
    effect.send(effSetProgram, 0, 3);
    EXPECT_EQ(effect.text(effGetProgramName), "BV (Pop)");
    EXPECT_EQ(effect.send(effGetProgram), 3);
    effect.send(effSetProgram, 0, 20);
    EXPECT_EQ(effect.send(effGetProgram), 3);
}

TEST(LoadedEffect, AnswersUnknownOpcodesWithZero) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    for (int opcode : {80, 100, 1000, -1})
        EXPECT_EQ(effect.send(static_cast<AEffectOpcode>(opcode)), 0) << opcode;
}

// Audacity 3.2.4 asks for the rectangle before it opens the editor.
TEST(LoadedEffect, HasAnEditorWhoseSizeIsKnownBeforeItOpens) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    ERect *rect = nullptr;
    ASSERT_EQ(effect.send(effEditGetRect, 0, 0, &rect), 1);
    EXPECT_EQ(rect->top, 0);
    EXPECT_EQ(rect->left, 0);
    EXPECT_EQ(rect->bottom, 370);
    EXPECT_EQ(rect->right, 748);
}

TEST(LoadedEffect, MayIdleAndCloseAnEditorThatIsNotOpen) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    EXPECT_EQ(effect.send(effEditIdle), 0);
    EXPECT_EQ(effect.send(effEditClose), 0);
    EXPECT_EQ(effect.send(effEditIdle), 0);
}

// Hosts that scan call it from a thread that ends, and use the effect elsewhere.
TEST(LoadedEffect, MayBeCreatedAndClosedOnDifferentThreads) {
    FakeHost host;
    const CPluginFile file;
    std::optional<CLoadedEffect> effect;
    std::thread([&] { effect.emplace(file, FakeHost::callback); }).join();
    effect->send(effSetProgram, 0, 5);
    EXPECT_EQ(effect->text(effGetProgramName), "Pop Vocal");
    std::thread([&] { effect.reset(); }).join();
}

// Giada's pin record ends after the first 80 bytes.
TEST(LoadedEffect, WritesNoMoreThanTheShortestPinRecordOfAnyHost) {
    FakeHost host;
    const CPluginFile file;
    const CLoadedEffect effect(file, FakeHost::callback);
    VstPinProperties pin;
    std::memset(&pin, 0x55, sizeof pin);
    EXPECT_EQ(effect.send(effGetInputProperties, 1, 0, &pin), 1);
    EXPECT_STREQ(pin.label, "Right input");
    EXPECT_STREQ(pin.shortLabel, "R in");
    for (std::size_t i = 80; i < sizeof pin; ++i)
        EXPECT_EQ(reinterpret_cast<const char *>(&pin)[i], 0x55) << i;
    EXPECT_EQ(effect.send(effGetOutputProperties, 2, 0, &pin), 0);
}
