#include "hostlayer/CVstEffect.h"

#include "Allocation.h"
#include "foundation/CApplicationInformation.h"
#include "hostlayer/EventBlock.h"
#include "hostlayer/FakeHost.h"
#include "hostlayer/PinProperties.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

using namespace Tessitor;
using Tessitor::Vst::CVstEffect;

namespace {

/// Makes the protected members public.
class SampleEffect : public CVstEffect {
public:
    explicit SampleEffect(audioMasterCallback host = nullptr) : CVstEffect(host, 64, 20) {}

    std::intptr_t call(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0,
                       void *ptr = nullptr, float opt = 0.0f) {
        return getAeffect()->dispatcher(getAeffect(), opcode, index, value, ptr, opt);
    }

    using CVstEffect::m_blockSize;
    using CVstEffect::m_blockSizeChanged;
    using CVstEffect::m_changed;
    using CVstEffect::m_criticalSection;
    using CVstEffect::m_defaultTempo;
    using CVstEffect::m_hostCanDo;
    using CVstEffect::m_midiEvents;
    using CVstEffect::m_notes;
    using CVstEffect::m_sampleRate;
    using CVstEffect::m_sampleRateChanged;
    using CVstEffect::m_tempo;
};

/// Sets the application information during a test.
class CVstEffectNames : public testing::Test {
protected:
    static void setNames(const char *company, const char *application, const char *description) {
        Basics::CApplicationInformation::setApplicationInformation(
            company, application, description, "", "", "", nullptr);
    }
    void TearDown() override { Basics::CApplicationInformation::destroyApplicationInformation(); }

    SampleEffect m_effect;
};

}  // namespace

TEST(CVstEffect, TakesParametersBeforePrograms) {
    SampleEffect effect;
    EXPECT_EQ(effect.getAeffect()->numParams, 64);
    EXPECT_EQ(effect.getAeffect()->numPrograms, 20);
}

TEST(CVstEffect, AsksOnlyForCapabilitiesAndNamesDuringConstruction) {
    FakeHost host;
    host.canDo = {{"sizeWindow", 1}};
    host.product = "Product";
    host.vendor = "Vendor";
    host.answers[audioMasterGetVendorVersion] = 900;
    SampleEffect effect(FakeHost::callback);

    const std::vector<SHostCall> calls = host.calls();
    ASSERT_EQ(calls.size(), 19u);
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_EQ(calls[i].opcode, audioMasterCanDo);
    EXPECT_EQ(calls[16].opcode, audioMasterGetProductString);
    EXPECT_EQ(calls[17].opcode, audioMasterGetVendorString);
    EXPECT_EQ(calls[18].opcode, audioMasterGetVendorVersion);
    for (const SHostCall &call : calls)
        EXPECT_EQ(call.effect, effect.getAeffect());
    EXPECT_TRUE(effect.m_hostCanDo.canDo(Vst::hostSizesWindow));
    EXPECT_FALSE(effect.m_hostCanDo.canDo(Vst::hostEditsFile));
    EXPECT_STREQ(effect.m_hostCanDo.getProduct().getString(), "Product");
    EXPECT_STREQ(effect.m_hostCanDo.getVendor().getString(), "Vendor");
    EXPECT_EQ(effect.m_hostCanDo.getVersion(), 900);
}

TEST(CVstEffect, NeverAsksForCapabilitiesAgain) {
    FakeHost host;
    SampleEffect effect(FakeHost::callback);
    host.canDo = {{"offline", 1}};
    effect.call(effOpen);
    effect.call(effMainsChanged, 0, 1);
    EXPECT_FALSE(effect.m_hostCanDo.canDo(Vst::hostWorksOffline));
}

TEST(CVstEffect, StartsWithItsDefaults) {
    const SampleEffect effect;
    EXPECT_EQ(effect.m_defaultTempo, 120.0);
    EXPECT_EQ(effect.m_sampleRate, 44100.0);
    EXPECT_EQ(effect.m_blockSize, 1024);
    EXPECT_FALSE(effect.m_changed);
    EXPECT_FALSE(effect.m_blockSizeChanged);
    EXPECT_FALSE(effect.m_sampleRateChanged);
    EXPECT_EQ(effect.m_midiEvents.getChannel(), 0);
    EXPECT_EQ(effect.m_midiEvents.getCount(), 0);
}

TEST(CVstEffect, BuildsAnEmptyCollectionForEachNote) {
    const SampleEffect effect;
    ASSERT_EQ(effect.m_notes.getInsertIndex(), 128);
    for (int note = 0; note < 128; ++note) {
        ASSERT_NE(effect.m_notes.elementAtIndex(note), nullptr) << note;
        EXPECT_EQ(effect.m_notes.elementAtIndex(note)->getInsertIndex(), 0) << note;
    }
}

TEST(CVstEffect, HoldsOneReferenceToItsLock) {
    const SampleEffect effect;
    EXPECT_EQ(effect.m_criticalSection->getReferenceCount(), 1);
}

TEST(CVstEffect, ReleasesEverythingItCreated) {
    Basics::CClass &effects = SampleEffect().getClass();
    Basics::CClass &locks = SampleEffect().m_criticalSection->getClass();
    Basics::CClass &notes = SampleEffect().m_notes.elementAtIndex(0)->getClass();
    Basics::CClass &events = SampleEffect().m_midiEvents.getClass();
    const auto counts = [&] {
        return std::vector{effects.getInstanceCount(), locks.getInstanceCount(),
                           notes.getInstanceCount(), events.getInstanceCount()};
    };
    const auto before = counts();
    {
        const SampleEffect effect;
        EXPECT_EQ(counts(),
                  (std::vector{before[0] + 1, before[1] + 1, before[2] + 128, before[3] + 1}));
    }
    EXPECT_EQ(counts(), before);
    EXPECT_STREQ(effects.getClassName(), "CVstEffect");
}

TEST(CVstEffect, IsDeletedByClose) {
    auto *effect = new SampleEffect;
    const Basics::CClass &record = effect->getClass();
    const auto before = record.getInstanceCount();
    EXPECT_EQ(effect->call(effClose), 1);
    EXPECT_EQ(record.getInstanceCount(), before - 1);
}

TEST(CVstEffect, RecordsANewSampleRateAndFlagsTheChange) {
    SampleEffect effect;
    effect.call(effSetSampleRate, 0, 0, nullptr, 44100.0f);
    EXPECT_FALSE(effect.m_sampleRateChanged);
    effect.call(effSetSampleRate, 0, 0, nullptr, 48000.0f);
    EXPECT_TRUE(effect.m_sampleRateChanged);
    EXPECT_EQ(effect.m_sampleRate, 48000.0);
    EXPECT_EQ(effect.getSampleRate(), 48000.0f);
    effect.m_sampleRateChanged = false;
    effect.call(effSetSampleRate, 0, 0, nullptr, 48000.0f);
    EXPECT_FALSE(effect.m_sampleRateChanged);
    EXPECT_FALSE(effect.m_blockSizeChanged);
    EXPECT_FALSE(effect.m_changed);
}

TEST(CVstEffect, RecordsANewBlockSizeAndFlagsTheChange) {
    SampleEffect effect;
    effect.call(effSetBlockSize, 0, 1024);
    EXPECT_FALSE(effect.m_blockSizeChanged);
    effect.call(effSetBlockSize, 0, 353);
    EXPECT_TRUE(effect.m_blockSizeChanged);
    EXPECT_EQ(effect.m_blockSize, 353);
    EXPECT_EQ(effect.getBlockSize(), 353);
    effect.m_blockSizeChanged = false;
    effect.call(effSetBlockSize, 0, 353);
    EXPECT_FALSE(effect.m_blockSizeChanged);
    EXPECT_FALSE(effect.m_sampleRateChanged);
    EXPECT_FALSE(effect.m_changed);
}

TEST(CVstEffect, RecordsRateAndBlockSizeOfTheOldCombinedCall) {
    SampleEffect effect;
    EXPECT_EQ(effect.call(effSetBlockSizeAndSampleRate, 0, 353, nullptr, 48000.0f), 1);
    EXPECT_EQ(effect.m_sampleRate, 48000.0);
    EXPECT_EQ(effect.m_blockSize, 353);
}

TEST(CVstEffect, HoldsTheHostsEventsUntilTheEndOfTheBlock) {
    SampleEffect effect;
    AEffect *record = effect.getAeffect();
    EventBlock block;
    block.midi(0x90, 60, 100, 3);

    EXPECT_EQ(effect.call(effProcessEvents, 0, 0, block.get()), 1);
    ASSERT_EQ(effect.m_midiEvents.getCount(), 1);
    EXPECT_EQ(effect.m_midiEvents.getEventAtIndex(0)->getDelta(), 3);
    record->processReplacing(record, nullptr, nullptr, 64);
    EXPECT_EQ(effect.m_midiEvents.getCount(), 0);

    effect.call(effProcessEvents, 0, 0, block.get());
    record->processDoubleReplacing(record, nullptr, nullptr, 64);
    EXPECT_EQ(effect.m_midiEvents.getCount(), 0);

    effect.call(effProcessEvents, 0, 0, block.get());
    effect.process(nullptr, nullptr, 64L);
    EXPECT_EQ(effect.m_midiEvents.getCount(), 0);
}

TEST(CVstEffect, TheAccumulatingEntryDoesNotReachItsProcess) {
    SampleEffect effect;
    AEffect *record = effect.getAeffect();
    effect.call(effProcessEvents, 0, 0, EventBlock().midi(0x90, 60, 100).get());
    float samples[]{0.5f, 0.25f};
    float *buffers[]{samples, samples};
    record->process(record, buffers, buffers, 2);
    EXPECT_EQ(effect.m_midiEvents.getCount(), 1);
    EXPECT_EQ(samples[0], 0.5f);
    EXPECT_EQ(samples[1], 0.25f);
}

TEST(CVstEffect, LeavesTheBuffersAlone) {
    SampleEffect effect;
    AEffect *record = effect.getAeffect();
    float samples[]{0.5f};
    float *buffers[]{samples, samples};
    double doubles[]{0.25};
    double *doubleBuffers[]{doubles, doubles};
    record->processReplacing(record, buffers, buffers, 1);
    record->processDoubleReplacing(record, doubleBuffers, doubleBuffers, 1);
    effect.process(buffers, buffers, 1L);
    EXPECT_EQ(samples[0], 0.5f);
    EXPECT_EQ(doubles[0], 0.25);
}

TEST(CVstEffect, ListensToTheMidiChannelThatIsSet) {
    SampleEffect effect;
    effect.setMidiChannel(8);
    effect.call(effProcessEvents, 0, 0, EventBlock().midi(0x90, 60, 100).midi(0x9F, 61, 100).get());
    ASSERT_EQ(effect.m_midiEvents.getCount(), 1);
    EXPECT_EQ(effect.m_midiEvents.getEventAtIndex(0)->getValue(), 61);
}

TEST(CVstEffect, ReadsItsHostsTempo) {
    FakeHost host;
    host.time = VstTimeInfo{};
    host.time->tempo = 93.0;
    host.time->flags = kVstTempoValid;
    SampleEffect effect(FakeHost::callback);
    EXPECT_TRUE(effect.m_tempo.getTempoInformation(kVstTempoValid));
    EXPECT_EQ(effect.m_tempo.getInformation().tempo, 93.0);
    EXPECT_EQ(host.calls(audioMasterGetTime).back().effect, effect.getAeffect());
}

TEST(CVstEffect, AllocatesNothingInABlock) {
    FakeHost host;
    host.logging = false;
    host.time = VstTimeInfo{};
    SampleEffect effect(FakeHost::callback);
    AEffect *record = effect.getAeffect();
    EventBlock block;
    VstEvents *events = block.midi(0x90, 60, 100).midi(0xE0, 0, 64).get();
    const auto allocations = allocationsOfThisThread();
    effect.call(effProcessEvents, 0, 0, events);
    effect.m_tempo.getTempoInformation(kVstTempoValid);
    record->processReplacing(record, nullptr, nullptr, 64);
    record->processDoubleReplacing(record, nullptr, nullptr, 64);
    EXPECT_EQ(allocationsOfThisThread(), allocations);
}

TEST(CVstEffect, ReturnsDefaultsThatSubclassesReplace) {
    SampleEffect effect;
    AEffect *record = effect.getAeffect();
    record->setParameter(record, 3, 0.5f);
    EXPECT_EQ(record->getParameter(record, 3), 0.0f);
    effect.call(effSetProgram, 0, 19);
    EXPECT_EQ(effect.call(effGetProgram), 19);

    char text[kVstMaxProgNameLen] = "Given by the host";
    effect.call(effSetProgramName, 0, 0, text);
    EXPECT_STREQ(text, "Default");
    *text = '\0';
    effect.call(effGetProgramName, 0, 0, text);
    EXPECT_STREQ(text, "Default");
    *text = '\0';
    EXPECT_EQ(effect.call(effGetProgramNameIndexed, 7, 0, text), 1);
    EXPECT_STREQ(text, "Default");
    for (const int opcode : {effGetParamLabel, effGetParamDisplay, effGetParamName}) {
        *text = '\0';
        effect.call(opcode, 3, 0, text);
        EXPECT_STREQ(text, "No param") << opcode;
    }
}

TEST(CVstEffect, HasNoOptionalFeatures) {
    SampleEffect effect;
    char text[] = "0.5";
    EXPECT_EQ(effect.call(effString2Parameter, 0, 0, text), 0);
    EXPECT_EQ(effect.call(effSetBypass, 0, 1), 0);
    EXPECT_EQ(effect.call(effCanBeAutomated, 0), 1);
    EXPECT_EQ(effect.call(effGetPlugCategory), 0);
    EXPECT_EQ(effect.call(effGetVendorVersion), 0);
    EXPECT_EQ(effect.call(effVendorSpecific), 0);
    EXPECT_EQ(effect.call(effGetTailSize), 0);
    EXPECT_EQ(effect.call(effGetVstVersion), 2400);
    EXPECT_EQ(effect.call(effGetNumMidiInputChannels), 1);
    EXPECT_EQ(effect.call(effGetNumMidiOutputChannels), 0);
}

TEST_F(CVstEffectNames, AreThoseOfTheApplication) {
    setNames("Some company", "Some effect", "Some description");
    char text[kVstMaxEffectNameLen];
    EXPECT_EQ(m_effect.call(effGetEffectName, 0, 0, text), 1);
    EXPECT_STREQ(text, "Some effect");
    EXPECT_EQ(m_effect.call(effGetVendorString, 0, 0, text), 1);
    EXPECT_STREQ(text, "Some company");
    EXPECT_EQ(m_effect.call(effGetProductString, 0, 0, text), 1);
    EXPECT_STREQ(text, "Some description");
}

TEST_F(CVstEffectNames, AreCutAfterTwentyFourCharacters) {
    setNames("", "123456789012345678901234567890", "");
    char text[kVstMaxEffectNameLen];
    std::memset(text, 0x5A, sizeof text);
    m_effect.call(effGetEffectName, 0, 0, text);
    EXPECT_STREQ(text, "123456789012345678901234");
    EXPECT_EQ(text[25], 0x5A);
}

TEST_F(CVstEffectNames, AreNotWrittenToANullText) {
    EXPECT_EQ(m_effect.call(effGetEffectName), 0);
    EXPECT_EQ(m_effect.call(effGetVendorString), 0);
    EXPECT_EQ(m_effect.call(effGetProductString), 0);
}

TEST(CVstEffect, DoesNotWritePastAShortPinRecord) {
    class Effect : public SampleEffect {
    public:
        bool getInputProperties(int, VstPinProperties *pin) override {
            fillPinProperties(*pin, "Left input", "L in", kVstPinIsActive | kVstPinIsStereo);
            return true;
        }
    } effect;
    alignas(VstPinProperties) unsigned char memory[sizeof(VstPinProperties)];
    std::memset(memory, 0x5A, sizeof memory);
    EXPECT_EQ(effect.call(effGetInputProperties, 0, 0, memory), 1);
    for (std::size_t i = 80; i < sizeof memory; ++i)
        EXPECT_EQ(memory[i], 0x5A) << i;
    EXPECT_EQ(effect.call(effGetOutputProperties, 0, 0, memory), 0);
}
