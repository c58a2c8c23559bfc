#include "effect/CCorvel.h"

#include "dspclasses/support/Signals.h"
#include "effect/FactoryPrograms.h"
#include "hostlayer/FakeHost.h"

#include <gtest/gtest.h>
#include <string>

using Tessitor::Corvel::CCorvel;

namespace {

class CCorvelTest : public testing::Test {
protected:
    FakeHost host;
    CCorvel effect{FakeHost::callback};

    void tellTempo(double tempo, int flags) {
        host.time = VstTimeInfo{};
        host.time->sampleRate = 44100.0;
        host.time->tempo = tempo;
        host.time->flags = flags;
    }

    template <typename Getter>
    std::string textOf(Getter getter, int index) {
        char text[64] = {};
        (effect.*getter)(index, text);
        return text;
    }
};

constexpr int emptyProgram = 19;

}  // namespace

TEST_F(CCorvelTest, FillsThePublishedFields) {
    const AEffect &fields = *effect.getAeffect();
    EXPECT_EQ(fields.numPrograms, 20);
    EXPECT_EQ(fields.numParams, 64);
    EXPECT_EQ(fields.numInputs, 2);
    EXPECT_EQ(fields.numOutputs, 2);
    EXPECT_EQ(fields.flags, effFlagsHasEditor | effFlagsCanReplacing | effFlagsCanDoubleReplacing |
                                effFlagsProgramChunks);
    EXPECT_EQ(fields.uniqueID, 0x6B4D7251);
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(&fields.uniqueID), 4), "QrMk");
    EXPECT_EQ(fields.version, 1);
    EXPECT_EQ(fields.initialDelay, 0);
}

TEST_F(CCorvelTest, CountsItselfInItsClassRecord) {
    EXPECT_STREQ(effect.getClass().getClassName(), "CCorvel");
    const auto before = effect.getClass().getInstanceCount();
    {
        CCorvel another(FakeHost::callback);
        EXPECT_EQ(effect.getClass().getInstanceCount(), before + 1);
    }
    EXPECT_EQ(effect.getClass().getInstanceCount(), before);
}

TEST_F(CCorvelTest, StartsWithAllValuesOfLeadVocal) {
    const Tessitor::Corvel::SProgram &lead = Tessitor::Corvel::factoryPrograms[0];
    EXPECT_EQ(effect.getProgram(), 0);
    for (int id = 0; id < 64; ++id)
        EXPECT_EQ(effect.getParameter(id), lead.parameters[std::size_t(id)]) << id;
}

TEST_F(CCorvelTest, ReturnsNameDisplayAndUnitOfAParameter) {
    EXPECT_EQ(textOf(&CCorvel::getParameterName, 20), "CmpThresh");
    EXPECT_EQ(textOf(&CCorvel::getParameterLabel, 20), "dB");
    effect.setParameter(kCmpThresh, 0.5f);
    EXPECT_EQ(textOf(&CCorvel::getParameterDisplay, 20), "-30.00");
    EXPECT_EQ(textOf(&CCorvel::getParameterName, 62), "");
}

TEST_F(CCorvelTest, LeavesANullTextAlone) {
    effect.getParameterName(0, nullptr);
    effect.getParameterDisplay(0, nullptr);
    effect.getParameterLabel(0, nullptr);
}

TEST_F(CCorvelTest, StoresTheUnusedParametersWithoutChangingTheSound) {
    CCorvel untouched(FakeHost::callback);
    effect.setParameter(kUnused62, 0.25f);
    effect.setParameter(kUnused63, 1.0f);
    EXPECT_EQ(effect.getParameter(kUnused62), 0.25f);
    EXPECT_EQ(effect.getParameter(kUnused63), 1.0f);
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 1, 3000);
    EXPECT_EQ(render(effect, voice, 512), render(untouched, voice, 512));
}

TEST_F(CCorvelTest, CanDoFourThingsAndNothingElse) {
    for (const char *word : {"plugAsChannelInsert", "plugAsSend", "2in2out", "receiveVstMidiEvent"})
        EXPECT_EQ(effect.canDo(const_cast<char *>(word)), 1) << word;
    for (const char *word :
         {"receiveVstEvents", "plugAsSen", "plugAsSend ", "PlugAsSend", "bypass", ""})
        EXPECT_EQ(effect.canDo(const_cast<char *>(word)), -1) << word;
    EXPECT_EQ(effect.canDo(nullptr), -1);
}

TEST_F(CCorvelTest, DescribesTwoPinsAtEachEnd) {
    const char *expected[2][2][2] = {{{"Left input", "L in"}, {"Right input", "R in"}},
                                     {{"Left output", "L out"}, {"Right output", "R out"}}};
    for (int pin = 0; pin < 2; ++pin) {
        VstPinProperties in{}, out{};
        EXPECT_TRUE(effect.getInputProperties(pin, &in));
        EXPECT_TRUE(effect.getOutputProperties(pin, &out));
        EXPECT_STREQ(in.label, expected[0][pin][0]);
        EXPECT_STREQ(in.shortLabel, expected[0][pin][1]);
        EXPECT_STREQ(out.label, expected[1][pin][0]);
        EXPECT_STREQ(out.shortLabel, expected[1][pin][1]);
        EXPECT_EQ(in.flags, 3);
        EXPECT_EQ(out.flags, 3);
    }
}

TEST_F(CCorvelTest, LeavesTheRecordOfAnUnknownPinAlone) {
    for (int pin : {-1, 2, 100}) {
        VstPinProperties properties{};
        properties.label[0] = 'x';
        EXPECT_FALSE(effect.getInputProperties(pin, &properties));
        EXPECT_FALSE(effect.getOutputProperties(pin, &properties));
        EXPECT_STREQ(properties.label, "x");
    }
}

TEST_F(CCorvelTest, FeedsBothChannelsFromTheLeftIfTheRightIsNotConnected) {
    host.unconnectedInputs = {1};
    effect.setProgram(emptyProgram);
    effect.resume();
    TStereo<float> voice = makeSignal<float>(ESignal::Noise, 3, 64);
    const TStereo<float> result = render(effect, voice, 64);
    EXPECT_EQ(result.channels[0], voice.channels[0]);
    EXPECT_EQ(result.channels[1], voice.channels[0]);

    host.unconnectedInputs.clear();
    effect.resume();
    EXPECT_EQ(render(effect, voice, 64), voice);
}

TEST_F(CCorvelTest, SumsBothChannelsForAHostWithASingleOutput) {
    host.unconnectedInputs = {1};
    effect.setProgram(emptyProgram);
    effect.getStrip().appendFX(kBalanceSlot);
    effect.setParameter(kBalance, 0.0f);  // all left, so that the channels differ
    effect.resume();
    TStereo<float> voice = makeSignal<float>(ESignal::Noise, 4, 64);
    TStereo<float> result(64);
    float *out[2] = {result.channels[0].data(), nullptr};
    effect.processReplacing(voice.pointers().data(), out, 64);
    for (int i = 0; i < 64; ++i)
        EXPECT_EQ(result.left(i), voice.left(i) * 0.5f);
}

TEST_F(CCorvelTest, IsStereoBeforeMainsAreEverSwitchedOn) {
    host.unconnectedInputs = {1};
    CCorvel fresh(FakeHost::callback);
    fresh.setProgram(emptyProgram);
    const TStereo<float> voice = makeSignal<float>(ESignal::Noise, 5, 64);
    EXPECT_EQ(render(fresh, voice, 64), voice);
}

TEST_F(CCorvelTest, ClearsItsStateWhenMainsAreSwitchedOn) {
    effect.getStrip().appendFX(kDelaySlot);
    effect.resume();
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 12, 2000);
    const TStereo<float> first = render(effect, voice, 500);
    EXPECT_FALSE(render(effect, voice, 500) == first);
    effect.resume();
    EXPECT_EQ(render(effect, voice, 500), first);
}

TEST_F(CCorvelTest, DoesNotAskForEventsWhenMainsAreSwitchedOn) {
    effect.resume();
    EXPECT_TRUE(host.calls(audioMasterWantMidi).empty());
}

TEST_F(CCorvelTest, PassesTheHostsTempoToTheStrip) {
    tellTempo(90.0, kVstTempoValid);
    render(effect, TStereo<float>(16), 16);
    EXPECT_EQ(effect.getStrip().getTempo(), 90.0f);
    tellTempo(100.0, kVstTempoValid);
    render(effect, TStereo<double>(16), 16);
    EXPECT_EQ(effect.getStrip().getTempo(), 100.0f);
}

TEST_F(CCorvelTest, KeepsTheLastTempoWhenTheHostHasNoTime) {
    tellTempo(90.0, kVstTempoValid);
    render(effect, TStereo<float>(16), 16);
    host.time.reset();
    render(effect, TStereo<float>(16), 16);
    EXPECT_EQ(effect.getStrip().getTempo(), 90.0f);
}

TEST_F(CCorvelTest, UsesATempoOfZeroFromAHostWithoutATempo) {
    tellTempo(90.0, 0);
    render(effect, TStereo<float>(16), 16);
    EXPECT_EQ(effect.getStrip().getTempo(), 0.0f);
}

TEST_F(CCorvelTest, AsksTheHostOnlyForTheTempo) {
    host.forgetCalls();
    render(effect, TStereo<float>(16), 16);
    ASSERT_EQ(host.calls(audioMasterGetTime).size(), 1u);
    EXPECT_EQ(host.calls(audioMasterGetTime)[0].value, kVstTempoValid);
}

TEST_F(CCorvelTest, SoundsTheSameAtEveryHostRateAndBlockSize) {
    CCorvel other(FakeHost::callback);
    other.setSampleRate(96000.0f);
    other.setBlockSize(64);
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 6, 4000);
    EXPECT_EQ(render(effect, voice, 1000), render(other, voice, 1000));
}

TEST_F(CCorvelTest, OverwritesTheOutputInItsProcessOperation) {
    effect.setProgram(emptyProgram);
    TStereo<float> voice = makeSignal<float>(ESignal::Noise, 7, 32);
    TStereo<float> result(32, 9.0f);
    effect.process(voice.pointers().data(), result.pointers().data(), 32L);
    EXPECT_EQ(result, voice);
}

TEST_F(CCorvelTest, LeavesTheBuffersOfTheAccumulatingEntryAlone) {
    TStereo<float> voice = makeSignal<float>(ESignal::Noise, 8, 32);
    TStereo<float> result(32, 9.0f);
    AEffect *record = effect.getAeffect();
    record->process(record, voice.pointers().data(), result.pointers().data(), 32);
    EXPECT_EQ(result, TStereo<float>(32, 9.0f));
}

TEST_F(CCorvelTest, WorksInPlace) {
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 9, 2048);
    CCorvel other(FakeHost::callback);
    TStereo<float> inPlace = voice;
    effect.processReplacing(inPlace.pointers().data(), inPlace.pointers().data(), 2048);
    EXPECT_EQ(inPlace, render(other, voice, 2048));
}

TEST_F(CCorvelTest, NeverWritesToTheInput) {
    for (int program = 0; program < 20; ++program) {
        effect.setProgram(program);
        TStereo<float> voice = makeSignal<float>(ESignal::Mixed, 10, 777);
        const TStereo<float> kept = voice;
        TStereo<float> result(777);
        effect.processReplacing(voice.pointers().data(), result.pointers().data(), 777);
        EXPECT_EQ(voice, kept) << program;
    }
}

namespace {

class CListening : public CCorvel {
public:
    using CCorvel::CCorvel;
    int heard() { return m_midiEvents.getCount(); }
};

}  // namespace

TEST_F(CCorvelTest, DiscardsMidiAtTheEndOfTheBlock) {
    VstMidiEvent note{};
    note.type = kVstMidiType;
    note.byteSize = sizeof(VstMidiEvent);
    note.midiData[0] = static_cast<char>(0x90);
    note.midiData[1] = 60;
    note.midiData[2] = 100;
    VstEvents events{};
    events.numEvents = 1;
    events.events[0] = reinterpret_cast<VstEvent *>(&note);

    CListening listening(FakeHost::callback);
    const auto expectDropped = [&](auto play) {
        EXPECT_EQ(listening.processEvents(&events), 1);
        EXPECT_EQ(listening.heard(), 1);
        play();
        EXPECT_EQ(listening.heard(), 0);
    };
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 11, 512);
    expectDropped([&] { EXPECT_EQ(render(listening, voice, 512), render(effect, voice, 512)); });
    expectDropped([&] { render(listening, TStereo<double>(16), 16); });
    expectDropped([&] {
        TStereo<float> in(16), out(16);
        listening.process(in.pointers().data(), out.pointers().data(), 16L);
    });
}
