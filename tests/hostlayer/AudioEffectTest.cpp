#include "hostlayer/AudioEffect.h"

#include "hostlayer/FakeHost.h"
#include "hostlayer/RecordingEffect.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

TEST(AudioEffect, StartsWithThePublishedRecord) {
    ProbeEffect effect;
    const AEffect &record = *effect.getAeffect();
    EXPECT_EQ(record.magic, 0x56737450);
    EXPECT_NE(record.dispatcher, nullptr);
    EXPECT_NE(record.process, nullptr);
    EXPECT_NE(record.setParameter, nullptr);
    EXPECT_NE(record.getParameter, nullptr);
    EXPECT_NE(record.processReplacing, nullptr);
    EXPECT_NE(record.processDoubleReplacing, nullptr);
    EXPECT_EQ(record.numPrograms, 3);
    EXPECT_EQ(record.numParams, 2);
    EXPECT_EQ(record.numInputs, 0);
    EXPECT_EQ(record.numOutputs, 0);
    EXPECT_EQ(record.flags, 0x10);
    EXPECT_EQ(record.resvd1, 0);
    EXPECT_EQ(record.resvd2, 0);
    EXPECT_EQ(record.initialDelay, 0);
    EXPECT_EQ(record.realQualities, 0);
    EXPECT_EQ(record.offQualities, 0);
    EXPECT_EQ(record.ioRatio, 1.0f);
    EXPECT_EQ(record.user, nullptr);
    EXPECT_EQ(record.uniqueID, 0);
    EXPECT_EQ(record.version, 1);
    EXPECT_TRUE(std::ranges::all_of(record.future, [](char byte) { return byte == 0; }));
}

TEST(AudioEffect, HasARateAndABlockSizeBeforeTheHostSetsThem) {
    ProbeEffect effect;
    EXPECT_EQ(effect.getSampleRate(), 44100.0f);
    EXPECT_EQ(effect.getBlockSize(), 1024);
    EXPECT_EQ(effect.getProgram(), 0);
}

TEST(AudioEffect, RecordsRateAndBlockSizeBeforeOpen) {
    ProbeEffect effect;
    EXPECT_EQ(effect.call(10, 0, 0, nullptr, 48000.0f), 0);
    EXPECT_EQ(effect.call(11, 0, 353), 0);
    EXPECT_EQ(effect.getSampleRate(), 48000.0f);
    EXPECT_EQ(effect.getBlockSize(), 353);
}

TEST(AudioEffect, RecordsRateAndBlockSizeOfTheOldCombinedCall) {
    ProbeEffect effect;
    EXPECT_EQ(effect.call(43, 0, 256, nullptr, 96000.0f), 1);
    EXPECT_EQ(effect.getSampleRate(), 96000.0f);
    EXPECT_EQ(effect.getBlockSize(), 256);
}

TEST(AudioEffect, RecordsItsSettings) {
    ProbeEffect effect;
    const AEffect &record = *effect.getAeffect();
    effect.setNumInputs(2);
    effect.setNumOutputs(3);
    effect.setUniqueID(0x6B4D7251);
    effect.setInitialDelay(64);
    EXPECT_EQ(record.numInputs, 2);
    EXPECT_EQ(record.numOutputs, 3);
    EXPECT_EQ(record.uniqueID, 0x6B4D7251);
    EXPECT_EQ(record.initialDelay, 64);
}

TEST(AudioEffect, SetsAndClearsOneFlagAtATime) {
    ProbeEffect effect;
    const AEffect &record = *effect.getAeffect();
    effect.canDoubleReplacing();
    EXPECT_EQ(record.flags, 0x1010);
    effect.programsAreChunks();
    EXPECT_EQ(record.flags, 0x1030);
    effect.isSynth();
    EXPECT_EQ(record.flags, 0x1130);
    effect.canProcessReplacing(false);
    EXPECT_EQ(record.flags, 0x1120);
    effect.isSynth(false);
    effect.canDoubleReplacing(false);
    effect.programsAreChunks(false);
    EXPECT_EQ(record.flags, 0);
    effect.canProcessReplacing();
    EXPECT_EQ(record.flags, 0x10);
}

TEST(AudioEffect, TheRecordsEntriesCallTheOperationsOfTheSameName) {
    RecordingEffect effect;
    AEffect *record = effect.getAeffect();
    float *in[2]{}, *out[2]{};
    double *inDouble[2]{}, *outDouble[2]{};

    record->process(record, in, out, 5);
    EXPECT_EQ(effect.reached, (SReached{"process 5", in, out}));
    record->processReplacing(record, in, out, 6);
    EXPECT_EQ(effect.reached, (SReached{"processReplacing 6", in, out}));
    record->processDoubleReplacing(record, inDouble, outDouble, 7);
    EXPECT_EQ(effect.reached, (SReached{"processDoubleReplacing 7", inDouble, outDouble}));
    record->setParameter(record, 1, 0.5f);
    EXPECT_EQ(effect.reached, (SReached{"setParameter 1 0.5"}));
    EXPECT_EQ(record->getParameter(record, 1), 0.25f);
    EXPECT_EQ(effect.reached, (SReached{"getParameter 1"}));
}

TEST(AudioEffect, TheAccumulatingEntryLeavesTheBuffersAlone) {
    ProbeEffect effect;
    float input[]{0.5f, 0.25f}, output[]{1.0f, 2.0f};
    float *in[]{input, input}, *out[]{output, output};
    effect.getAeffect()->process(effect.getAeffect(), in, out, 2);
    EXPECT_EQ(input[0], 0.5f);
    EXPECT_EQ(input[1], 0.25f);
    EXPECT_EQ(output[0], 1.0f);
    EXPECT_EQ(output[1], 2.0f);
}

TEST(AudioEffect, WithoutDoublePrecisionLeavesTheBuffersAlone) {
    ProbeEffect effect;
    double input[]{0.5}, output[]{1.0};
    double *in[]{input, input}, *out[]{output, output};
    effect.getAeffect()->processDoubleReplacing(effect.getAeffect(), in, out, 1);
    EXPECT_EQ(output[0], 1.0);
}

TEST(AudioEffect, IgnoresAProgramNumberThatIsTooHigh) {
    ProbeEffect effect;
    effect.call(2, 0, 2);
    EXPECT_EQ(effect.call(3), 2);
    effect.call(2, 0, 3);
    EXPECT_EQ(effect.call(3), 2);
    effect.call(2, 0, std::intptr_t{1} << 32);
    EXPECT_EQ(effect.call(3), 2);
}

TEST(AudioEffect, PassesOnANegativeProgramNumber) {
    ProbeEffect effect;
    effect.call(2, 0, -1);
    EXPECT_EQ(effect.call(3), -1);
}

TEST(AudioEffect, SuspendsAndResumesAtEveryCall) {
    RecordingEffect effect;
    for (const int value : {0, 1, 1, 0, 0}) {
        effect.reached = {};
        EXPECT_EQ(effect.call(12, 0, value), 0);
        EXPECT_EQ(effect.reached.text, value != 0 ? "resume" : "suspend");
    }
}

TEST(AudioEffect, SetsAnAutomatedParameterBeforeInformingTheHost) {
    class Effect : public ProbeEffect {
    public:
        Effect(FakeHost &host) : ProbeEffect(FakeHost::callback), m_host(host) {}
        void setParameter(int index, float value) override {
            EXPECT_TRUE(m_host.calls().empty());
            set = {index, value};
        }
        std::pair<int, float> set;

    private:
        FakeHost &m_host;
    };
    FakeHost host;
    Effect effect(host);
    effect.setParameterAutomated(1, 0.75f);
    EXPECT_EQ(effect.set, (std::pair{1, 0.75f}));
    ASSERT_EQ(host.calls().size(), 1u);
    const SHostCall call = host.calls().front();
    EXPECT_EQ(call.effect, effect.getAeffect());
    EXPECT_EQ(call.opcode, 0);
    EXPECT_EQ(call.index, 1);
    EXPECT_EQ(call.opt, 0.75f);
}

TEST(AudioEffect, SetsAnAutomatedParameterWithoutAHost) {
    RecordingEffect effect;
    effect.setParameterAutomated(1, 0.75f);
    EXPECT_EQ(effect.reached, (SReached{"setParameter 1 0.75"}));
}

TEST(AudioEffect, ClosesThenDeletesItselfAndItsEditor) {
    struct SLog {
        bool closed = false, effectDeleted = false, editorDeleted = false;
    } log;
    class Editor : public ProbeEditor {
    public:
        Editor(AudioEffect *owner, SLog &log) : ProbeEditor(owner), m_log(log) {}
        ~Editor() override {
            EXPECT_TRUE(m_log.effectDeleted);
            m_log.editorDeleted = true;
        }

    private:
        SLog &m_log;
    };
    class Effect : public ProbeEffect {
    public:
        Effect(SLog &log) : m_log(log) { setEditor(new Editor(this, log)); }
        ~Effect() override {
            EXPECT_TRUE(m_log.closed);
            m_log.effectDeleted = true;
        }
        void close() override { m_log.closed = true; }

    private:
        SLog &m_log;
    };
    auto *effect = new Effect(log);
    EXPECT_EQ(effect->call(1), 1);
    EXPECT_TRUE(log.editorDeleted);
}

TEST(AudioEffect, FlagsWhetherItHasAnEditor) {
    ProbeEffect effect;
    ProbeEditor editor;
    EXPECT_EQ(effect.getEditor(), nullptr);
    effect.setEditor(&editor);
    EXPECT_EQ(effect.getEditor(), &editor);
    EXPECT_EQ(effect.getAeffect()->flags, 0x11);
    effect.setEditor(nullptr);
    EXPECT_EQ(effect.getEditor(), nullptr);
    EXPECT_EQ(effect.getAeffect()->flags, 0x10);
}

TEST(AudioEffect, PassesExceptionsOn) {
    class Effect : public ProbeEffect {
    public:
        void open() override { throw std::runtime_error("cannot open"); }
    } effect;
    EXPECT_THROW(effect.call(0), std::runtime_error);
}
