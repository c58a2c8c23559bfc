#include "dspclasses/strip/CDSPMultiFX.h"

#include "dspclasses/modules/PlainModules.h"
#include "dspclasses/support/CWitness.h"
#include "dspclasses/support/Oracle.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <gmock/gmock.h>
#include <limits>
#include <utility>
#include <vector>

using Calls = std::vector<std::string>;

static const float stereo = 1.0f;

// Construction and destruction

TEST(CDSPMultiFX, StartsWithTheEmptyChain) {
    CDSPMultiFX strip;
    EXPECT_EQ(strip.orderEntry(kInGainSlot).prev, kNoSlot);
    EXPECT_EQ(strip.orderEntry(kInGainSlot).next, kInMonoSlot);
    EXPECT_EQ(strip.orderEntry(kInMonoSlot).prev, kInGainSlot);
    EXPECT_EQ(strip.orderEntry(kInMonoSlot).next, kNoSlot);
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot) {
        EXPECT_EQ(strip.orderEntry(slot).prev, kNoSlot) << slot;
        EXPECT_EQ(strip.orderEntry(slot).next, kNoSlot) << slot;
    }
    EXPECT_EQ(strip.getFXCount(), 0);
}

TEST(CDSPMultiFX, SetsOnlyTheTempoOfTheDelayAtTheStart) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    EXPECT_EQ(log.take(), (Calls{"Delay: set 6 120.000000"}));
}

TEST(CDSPMultiFX, DestroysItsModulesInSlotOrder) {
    SWitnessLog log;
    { CDSPMultiFX strip(makeWitnesses(log)); }
    Calls expected{"Delay: set 6 120.000000"};
    for (std::size_t slot = 0; slot < kSlotCount; ++slot)
        expected.push_back(slotLabels[slot] + std::string(": destroy"));
    EXPECT_EQ(log.take(), expected);
}

TEST(CDSPMultiFX, HasALabelForEverySlot) {
    const CDSPMultiFX strip;
    const char *const labels[] = {
        "InGain",        "MonoType",    "Balance",     "Pan",        "Gain",  "3Band",
        "Rumble Filter", "HiPass",      "Presence",    "Parametric", "Gate",  "Compressor",
        "DeEsser",       "Modulator 1", "Modulator 2", "Warmer",     "Delay", "Reverb"};
    for (int slot = 0; slot < kSlotCount; ++slot) {
        char text[32] = "untouched";
        strip.getFXName(slot, text);
        EXPECT_STREQ(text, labels[slot]);
    }
    char text[32] = "untouched";
    strip.getFXName(kSlotCount, text);
    EXPECT_STREQ(text, "untouched");
}

// Tempo and resets

TEST(CDSPMultiFX, PassesOnlyAChangeOfTempoToTheDelay) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    log.take();
    strip.setTempo(120.0f);
    EXPECT_TRUE(log.calls.empty());
    strip.setTempo(95.5f);
    strip.setTempo(95.5f);
    strip.setTempo(0.0f);
    EXPECT_EQ(log.take(), (Calls{"Delay: set 6 95.500000", "Delay: set 6 0.000000"}));
}

TEST(CDSPMultiFX, ResetsOnlyTheModulesInTheChain) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    strip.appendFX(kParametricSlot);
    strip.appendFX(kGainSlot);
    log.take();
    strip.reset();
    EXPECT_EQ(log.take(),
              (Calls{"InGain: reset", "MonoType: reset", "Parametric: reset", "Gain: reset"}));
}

TEST(CDSPMultiFX, ResetsAllModulesInSlotOrder) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    strip.appendFX(kParametricSlot);
    log.take();
    strip.resetAllModules();
    Calls expected;
    for (std::size_t slot = 0; slot < kSlotCount; ++slot)
        expected.push_back(slotLabels[slot] + std::string(": reset"));
    EXPECT_EQ(log.take(), expected);
}

TEST(CDSPMultiFX, ResetsAnInsertedModuleOnlyOnRequest) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    log.take();
    strip.appendFX(kParametricSlot);
    strip.insertFX(kParametricSlot, kGainSlot, true, false);
    strip.replaceFX(kGainSlot, k3BandSlot);
    strip.moveFXBefore(k3BandSlot, kParametricSlot);
    EXPECT_TRUE(log.calls.empty());
    strip.insertFX(kParametricSlot, kRumbleFilterSlot, true, true);
    EXPECT_EQ(log.take(), (Calls{"Rumble Filter: reset"}));
}

// The run

static Calls slotsOfARun(CDSPMultiFX &strip, SWitnessLog &log) {
    log.take();
    log.buffers.clear();
    TStereo<float> input(1);
    render(strip, input, 1);
    Calls slots;
    for (const std::string &call : log.take())
        slots.push_back(call.substr(0, call.find(':')));
    return slots;
}

TEST(CDSPMultiFX, RunsTheHeadAndThenTheChainInItsOrder) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    EXPECT_EQ(slotsOfARun(strip, log), (Calls{"InGain", "MonoType"}));
    for (const int slot : {kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kReverbSlot})
        strip.appendFX(slot);
    EXPECT_EQ(slotsOfARun(strip, log),
              (Calls{"InGain", "MonoType", "Rumble Filter", "Compressor", "3Band", "Reverb"}));
    strip.removeFX(kReverbSlot);
    EXPECT_EQ(slotsOfARun(strip, log),
              (Calls{"InGain", "MonoType", "Rumble Filter", "Compressor", "3Band"}));
    strip.insertFX(k3BandSlot, kPanSlot, true, true);
    strip.insertFX(kRumbleFilterSlot, kBalanceSlot, false, false);
    EXPECT_EQ(slotsOfARun(strip, log), (Calls{"InGain", "MonoType", "Rumble Filter", "Balance",
                                              "Compressor", "Pan", "3Band"}));
    strip.moveFXBefore(kRumbleFilterSlot, k3BandSlot);
    EXPECT_EQ(slotsOfARun(strip, log), (Calls{"InGain", "MonoType", "3Band", "Rumble Filter",
                                              "Balance", "Compressor", "Pan"}));
    EXPECT_EQ(strip.getFXCount(), 5);
    strip.initOrder();
    EXPECT_EQ(slotsOfARun(strip, log), (Calls{"InGain", "MonoType"}));
}

TEST(CDSPMultiFX, KeepsRunningTheRemovedSuccessorOfAReplacement) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    for (const int slot : {kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kHiPassSlot})
        strip.appendFX(slot);
    strip.replaceFX(kCompressorSlot, kPresenceSlot);
    EXPECT_EQ(slotsOfARun(strip, log),
              (Calls{"InGain", "MonoType", "Rumble Filter", "Presence", "3Band", "HiPass"}));
    strip.removeFX(k3BandSlot);
    EXPECT_EQ(slotsOfARun(strip, log),
              (Calls{"InGain", "MonoType", "Rumble Filter", "Presence", "3Band"}));
    EXPECT_EQ(strip.orderEntry(k3BandSlot).prev, kNoSlot);
    EXPECT_EQ(strip.getFXCount(), 3);
}

TEST(CDSPMultiFX, RunsAnOrderWrittenEntryByEntry) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    strip.setOrderEntry(kInMonoSlot, kInGainSlot, kModulator1Slot);
    strip.setOrderEntry(kModulator1Slot, kInMonoSlot, kBalanceSlot);
    strip.setOrderEntry(kBalanceSlot, kModulator1Slot, kNoSlot);
    EXPECT_EQ(strip.getFXCount(), 0);
    strip.recountFX();
    EXPECT_EQ(strip.getFXCount(), 2);
    EXPECT_EQ(strip.orderEntry(kBalanceSlot).prev, kModulator1Slot);
    EXPECT_EQ(slotsOfARun(strip, log), (Calls{"InGain", "MonoType", "Modulator 1", "Balance"}));
}

TEST(CDSPMultiFX, RunsAllSixteenModules) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot)
        strip.appendFX(slot);
    EXPECT_EQ(slotsOfARun(strip, log).size(), 18u);
}

/// The two channels that a module read, or wrote, in one run of the strip.
static std::array<const void *, 2> pairOf(const SWitnessLog &log, std::size_t run, bool written) {
    const std::size_t first = 4 * run + (written ? 2 : 0);
    return {log.buffers[first], log.buffers[first + 1]};
}

TEST(CDSPMultiFX, PassesTheSignalOnWithoutCopies) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    strip.setStripParameter(kOutMono, stereo);
    for (const int slot : {kRumbleFilterSlot, kCompressorSlot, kGateSlot})
        strip.appendFX(slot);
    TStereo<float> input(8), output(8);
    process(strip, input.pointers().data(), output.pointers().data(), 8);
    ASSERT_EQ(log.buffers.size(), 20u);
    EXPECT_EQ(pairOf(log, 0, false)[0], input.channels[0].data());
    EXPECT_EQ(pairOf(log, 0, false)[1], input.channels[1].data());
    for (std::size_t run = 1; run < 5; ++run)
        EXPECT_EQ(pairOf(log, run, false), pairOf(log, run - 1, true)) << run;
    EXPECT_EQ(pairOf(log, 4, true)[0], output.channels[0].data());
    EXPECT_EQ(pairOf(log, 4, true)[1], output.channels[1].data());
}

TEST(CDSPMultiFX, LetsTheLastModuleWriteToOutputsThatDoNotOverlap) {
    constexpr int frames = 8;
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    strip.setStripParameter(kOutMono, stereo);
    TStereo<float> input(frames);
    std::vector<float> memory(3 * frames);
    for (const int apart : {-8, -7, -1, 0, 1, 7, 8}) {
        log.buffers.clear();
        float *left = memory.data() + frames;
        float *out[] = {left, left + apart};
        process(strip, input.pointers().data(), out, frames);
        ASSERT_EQ(log.buffers.size(), 8u);
        EXPECT_EQ(pairOf(log, 1, true)[0] == left, std::abs(apart) >= frames) << apart;
    }
}

TEST(CDSPMultiFX, NeverRunsAModuleInPlace) {
    for (const bool isRouted : {false, true}) {
        SWitnessLog log;
        CDSPMultiFX strip(makeWitnesses(log));
        strip.setStripParameter(kOutMono, isRouted ? 0.0f : stereo);
        TStereo<float> both(8);
        for (const int slot : {kRumbleFilterSlot, kCompressorSlot, kGateSlot}) {
            log.buffers.clear();
            process(strip, both.pointers().data(), both.pointers().data(), 8);
            ASSERT_EQ(log.buffers.size() % 4, 0u);
            for (std::size_t run = 0; run < log.buffers.size() / 4; ++run)
                for (const void *read : pairOf(log, run, false))
                    for (const void *written : pairOf(log, run, true))
                        EXPECT_NE(read, written) << run;
            strip.appendFX(slot);
        }
    }
}

TEST(CDSPMultiFX, PassesTheLengthOfTheBlockToEveryModule) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    log.take();
    TStereo<float> input(100);
    render(strip, input, 37);
    EXPECT_EQ(log.take(), (Calls{"InGain: run 37", "MonoType: run 37", "InGain: run 37",
                                 "MonoType: run 37", "InGain: run 26", "MonoType: run 26"}));
}

TEST(CDSPMultiFX, RunsBothPrecisionsThroughTheSameModules) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    log.take();
    TStereo<double> input(3);
    render(strip, input, 3);
    EXPECT_EQ(log.take(), (Calls{"InGain: run 3", "MonoType: run 3"}));
}

template <typename Sample>
class CDSPMultiFXRun : public testing::Test {
protected:
    CDSPMultiFXRun() {
        strip.setStripParameter(kInMono, stereo);
        strip.setStripParameter(kOutMono, stereo);
    }
    TStereo<Sample> input = makeSignal<Sample>(ESignal::Noise, 3, 64);
    CDSPMultiFX strip;
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(CDSPMultiFXRun, Precisions);

TYPED_TEST(CDSPMultiFXRun, PassesTheSignalThroughAnEmptyChain) {
    EXPECT_EQ(render(this->strip, this->input, 64), this->input);
}

TYPED_TEST(CDSPMultiFXRun, AppliesTheInputGain) {
    this->strip.setStripParameter(kInGain, 1.0f);
    TStereo<TypeParam> louder = render(this->strip, this->input, 64);
    EXPECT_NEAR(static_cast<double>(louder.left(5) / this->input.left(5)), 1.9952623, 1e-6);
    EXPECT_NEAR(static_cast<double>(louder.right(9) / this->input.right(9)), 1.9952623, 1e-6);
    this->strip.setStripParameter(kInGain, 0.0f);
    TStereo<TypeParam> silence = render(this->strip, this->input, 64);
    EXPECT_EQ(silence.left(5), 0);
    EXPECT_EQ(silence.right(9), 0);
}

TYPED_TEST(CDSPMultiFXRun, RoutesTheInputAndTheOutput) {
    for (const int id : {kInMono, kOutMono}) {
        this->strip.setStripParameter(id, 0.4f);  // all left
        TStereo<TypeParam> left = render(this->strip, this->input, 64);
        EXPECT_EQ(left.channels[0], this->input.channels[0]) << id;
        EXPECT_EQ(left.channels[1], this->input.channels[0]) << id;
        this->strip.setStripParameter(id, 0.8f);  // all right
        TStereo<TypeParam> right = render(this->strip, this->input, 64);
        EXPECT_EQ(right.channels[0], this->input.channels[1]) << id;
        EXPECT_EQ(right.channels[1], this->input.channels[1]) << id;
        this->strip.setStripParameter(id, 0.0f);  // combine
        TStereo<TypeParam> sum = render(this->strip, this->input, 64);
        const TypeParam rootHalf = 0.70710677f;
        EXPECT_EQ(sum.left(7), (this->input.left(7) + this->input.right(7)) * rootHalf) << id;
        EXPECT_EQ(sum.channels[1], sum.channels[0]) << id;
        this->strip.setStripParameter(id, stereo);
    }
}

TYPED_TEST(CDSPMultiFXRun, StartsWithBothRoutingsSetToCombine) {
    CDSPMultiFX fresh;
    TStereo<TypeParam> sum = render(fresh, this->input, 64);
    const TypeParam rootHalf = 0.70710677f;
    const TypeParam once = (this->input.left(7) + this->input.right(7)) * rootHalf;
    EXPECT_EQ(sum.left(7), (once + once) * rootHalf);
}

TYPED_TEST(CDSPMultiFXRun, FeedsBothChannelsFromAMonoInput) {
    this->strip.setMonoInput(true);
    TStereo<TypeParam> output(64);
    TypeParam *in[] = {this->input.channels[0].data(), nullptr};
    process(this->strip, in, output.pointers().data(), 64);
    EXPECT_EQ(output.channels[0], this->input.channels[0]);
    EXPECT_EQ(output.channels[1], this->input.channels[0]);
    this->strip.setMonoInput(false);
    EXPECT_EQ(render(this->strip, this->input, 64), this->input);
}

TYPED_TEST(CDSPMultiFXRun, OutputsHalfTheSumWithMonoInputAndOneOutput) {
    this->strip.setMonoInput(true);
    this->strip.setStripParameter(kBalance, 0.125f);  // the balance halves the right channel
    this->strip.appendFX(kBalanceSlot);
    TStereo<TypeParam> output(65, 7);
    TypeParam *out[] = {output.channels[0].data(), nullptr};
    process(this->strip, this->input.pointers().data(), out, 64);
    for (int i = 0; i < 64; ++i) {
        const TypeParam left = this->input.left(i);
        const TypeParam sum = left + left * static_cast<TypeParam>(0.5);
        ASSERT_EQ(output.left(i), sum * static_cast<TypeParam>(0.5)) << i;
    }
    EXPECT_EQ(output.left(64), 7);
}

TYPED_TEST(CDSPMultiFXRun, DoesNothingIfAnArrayOfChannelsIsNull) {
    TStereo<TypeParam> output(64, 7);
    TypeParam **none = nullptr;
    process(this->strip, none, output.pointers().data(), 64);
    EXPECT_EQ(output, TStereo<TypeParam>(64, 7));
    process(this->strip, this->input.pointers().data(), none, 64);
    process(this->strip, none, none, 64);
    // The buffers have grown nevertheless, so a block of no frames is now accepted.
    process(this->strip, this->input.pointers().data(), output.pointers().data(), 0);
    EXPECT_EQ(output, TStereo<TypeParam>(64, 7));
}

TYPED_TEST(CDSPMultiFXRun, KeepsTheSignalWholeWhenBlocksGrow) {
    TStereo<TypeParam> longer = makeSignal<TypeParam>(ESignal::Noise, 4, 3000);
    EXPECT_EQ(render(this->strip, longer, 7), longer);
    EXPECT_EQ(render(this->strip, longer, 513), longer);
    EXPECT_EQ(render(this->strip, longer, 3000), longer);
    EXPECT_EQ(render(this->strip, longer, 1), longer);
}

TYPED_TEST(CDSPMultiFXRun, WorksInPlace) {
    this->strip.appendFX(kGainSlot);
    this->strip.setStripParameter(kGain, 1.0f);
    this->strip.setStripParameter(kOutMono, 0.0f);
    TStereo<TypeParam> expected = render(this->strip, this->input, 64);
    std::array<TypeParam *, 2> both = this->input.pointers();
    process(this->strip, both.data(), both.data(), 64);
    EXPECT_EQ(this->input, expected);
}

TYPED_TEST(CDSPMultiFXRun, WorksInPlaceWithTheChannelsSwapped) {
    this->strip.appendFX(kGainSlot);
    this->strip.setStripParameter(kGain, 1.0f);
    TStereo<TypeParam> expected = render(this->strip, this->input, 64);
    std::array<TypeParam *, 2> in = this->input.pointers();
    TypeParam *out[] = {in[1], in[0]};
    process(this->strip, in.data(), out, 64);
    EXPECT_EQ(this->input.channels[0], expected.channels[1]);
    EXPECT_EQ(this->input.channels[1], expected.channels[0]);
}

TYPED_TEST(CDSPMultiFXRun, LeavesTheRightChannelInABufferThatIsBothOutputs) {
    this->strip.appendFX(kReverbSlot);
    this->strip.appendFX(kWarmerSlot);
    CDSPMultiFX same;
    same.setStripParameter(kInMono, stereo);
    same.setStripParameter(kOutMono, stereo);
    same.appendFX(kReverbSlot);
    same.appendFX(kWarmerSlot);
    TStereo<TypeParam> expected = render(this->strip, this->input, 64);
    TStereo<TypeParam> output(64);
    TypeParam *out[] = {output.channels[0].data(), output.channels[0].data()};
    process(same, this->input.pointers().data(), out, 64);
    EXPECT_EQ(output.channels[0], expected.channels[1]);
}

TYPED_TEST(CDSPMultiFXRun, LeavesTheRightChannelWhereTheOutputsOverlap) {
    constexpr std::ptrdiff_t apart = 16;
    this->strip.appendFX(kPanSlot);
    this->strip.setStripParameter(kPan, 0.3f);
    const TStereo<TypeParam> rendered = render(this->strip, this->input, 64);
    for (const bool isRightFirst : {false, true}) {
        const std::ptrdiff_t left = isRightFirst ? apart : 0, right = apart - left;
        std::vector<TypeParam> expected(64 + apart), memory(expected.size());
        std::copy_n(rendered.channels[0].begin(), 64, expected.begin() + left);
        std::copy_n(rendered.channels[1].begin(), 64, expected.begin() + right);
        TypeParam *out[] = {memory.data() + left, memory.data() + right};
        process(this->strip, this->input.pointers().data(), out, 64);
        EXPECT_EQ(memory, expected) << isRightFirst;
    }
}

TYPED_TEST(CDSPMultiFXRun, DoesNotWriteToTheInput) {
    this->strip.appendFX(kCompressorSlot);
    std::fill_n(this->input.channels[0].begin() + 5, 9,
                std::numeric_limits<TypeParam>::denorm_min());
    const TStereo<TypeParam> before = this->input;
    TStereo<TypeParam> output(64);
    process(this->strip, this->input.pointers().data(), output.pointers().data(), 64);
    EXPECT_EQ(this->input, before);
}

TYPED_TEST(CDSPMultiFXRun, SoundsLikeThePlainVersionIfARoutingIsInvalid) {
    constexpr float invalid = 2.0f, negative = -1.0f;
    for (const std::vector<int> &chain :
         {std::vector<int>{}, std::vector<int>{kGainSlot}, std::vector<int>{kGainSlot, kPanSlot}}) {
        for (const float inMono : {0.0f, stereo, invalid, negative}) {
            for (const float outMono : {0.0f, stereo, invalid, negative}) {
                SCOPED_TRACE(testing::Message() << chain.size() << ' ' << inMono << ' ' << outMono);
                CDSPMultiFX fresh;
                CPlainStrip plain(makePlainModules());
                for (const auto &[id, value] : {std::pair{kInMono, inMono},
                                                {kOutMono, outMono},
                                                {kInGain, 0.9f},
                                                {kGain, 0.8f},
                                                {kPan, 0.3f}}) {
                    fresh.setStripParameter(id, value);
                    plain.setParameter(id, value);
                }
                for (const int slot : chain)
                    fresh.appendFX(slot);
                plain.setChain(chain);
                EXPECT_EQ(render(fresh, this->input, 16), render(plain, this->input, 16));
            }
        }
    }
}

TYPED_TEST(CDSPMultiFXRun, RunsTheOutputRoutingUnlessItIsStereo) {
    SWitnessLog log;
    CDSPMultiFX witnessed(makeWitnesses(log));
    witnessed.appendFX(kGainSlot);
    for (const float routing : {0.0f, 0.4f, 0.8f}) {
        witnessed.setStripParameter(kOutMono, routing);
        CPlainMono plain;
        plain.setParameter(0, routing);
        EXPECT_EQ(render(witnessed, this->input, 64), render(plain, this->input, 64)) << routing;
        witnessed.setStripParameter(kOutMono, stereo);
        EXPECT_EQ(render(witnessed, this->input, 64), this->input) << routing;
    }
}

// The assertions

static void processNoFrames() {
    CDSPMultiFX strip;
    TStereo<float> input(1), output(1);
    strip.processReplacing(input.pointers().data(), output.pointers().data(), 0);
}

TEST(CDSPMultiFXDeathTest, AssertsThatTheFirstBlockHasFrames) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(processNoFrames(),
                 testing::HasSubstr("DryBuf[0]!=(float *)0, file DSPMultiFX, line 503"));
}

TEST(CDSPMultiFX, AcceptsAFirstBlockOfNoFramesInDoublePrecision) {
    CDSPMultiFX strip;
    TStereo<double> input(1, 3.0), output(1, 7.0);
    strip.processDoubleReplacing(input.pointers().data(), output.pointers().data(), 0);
    EXPECT_EQ(output, TStereo<double>(1, 7.0));
}

// Parameters

TEST(CDSPMultiFX, FillsItsCacheFromTheModules) {
    SWitnessLog log;
    const CDSPMultiFX strip(makeWitnesses(log));
    for (int id = 0; id < kOutMono; ++id) {
        const SParameter &row = parameterTable[static_cast<std::size_t>(id)];
        EXPECT_EQ(strip.getStripParameter(id),
                  static_cast<float>(100 * (row.slot + 1) + row.index));
    }
    EXPECT_EQ(strip.getStripParameter(kOutMono), 0.0f);
    EXPECT_EQ(strip.getStripParameter(kUnused62), 0.0f);
    EXPECT_EQ(strip.getStripParameter(kUnused63), 0.0f);
    EXPECT_EQ(strip.getStripParameter(kParameterCount), 0.0f);
}

TEST(CDSPMultiFX, SendsEachParameterToItsModuleThroughItsLaw) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    log.take();
    for (int id = 0; id < kOutMono; ++id) {
        const SParameter &row = parameterTable[static_cast<std::size_t>(id)];
        strip.setStripParameter(id, 0.3f);
        EXPECT_EQ(log.take(),
                  (Calls{slotLabels[std::size_t(row.slot)] + std::string(": set ") +
                         std::to_string(row.index) + " " + std::to_string(row.law(0.3f))}))
            << id;
        EXPECT_EQ(strip.getStripParameter(id), 0.3f);
    }
}

TEST(CDSPMultiFX, SendsNothingForAnUnchangedValue) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    strip.setStripParameter(k3EQLo, 0.3f);
    log.take();
    strip.setStripParameter(k3EQLo, 0.3f);
    EXPECT_TRUE(log.calls.empty());
    strip.setStripParameter(k3EQLo, 0.31f);
    EXPECT_EQ(log.calls.size(), 1u);
}

TEST(CDSPMultiFX, IgnoresAFirstValueThatEqualsTheModulesInitialOne) {
    CDSPMultiFX strip;
    char text[32];
    strip.setStripParameter(kGain, 0.0f);  // the initial value of the gain is 0 dB
    strip.getParameterDisplay(kGain, text);
    EXPECT_STREQ(text, "0.00");
    strip.setStripParameter(kGain, 0.5f);
    strip.setStripParameter(kGain, 0.0f);
    strip.getParameterDisplay(kGain, text);
    EXPECT_STREQ(text, "-oo");
}

TEST(CDSPMultiFX, StoresTheTwoUnusedParameters) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    log.take();
    for (const int id : {kUnused62, kUnused63}) {
        strip.setStripParameter(id, 0.7f);
        EXPECT_EQ(strip.getStripParameter(id), 0.7f);
        char text[8] = "full";
        strip.getParameterName(id, text);
        EXPECT_STREQ(text, "");
        std::strcpy(text, "full");
        strip.getParameterDisplay(id, text);
        EXPECT_STREQ(text, "");
        std::strcpy(text, "full");
        strip.getParameterLabel(id, text);
        EXPECT_STREQ(text, "");
    }
    EXPECT_TRUE(log.calls.empty());
}

TEST(CDSPMultiFX, LeavesTheTextAloneForAnUnknownParameter) {
    CDSPMultiFX strip;
    for (const int id : {kParameterCount, 1000}) {
        char text[16] = "untouched";
        strip.getParameterName(id, text);
        strip.getParameterDisplay(id, text);
        strip.getParameterLabel(id, text);
        EXPECT_STREQ(text, "untouched");
    }
}

TEST(CDSPMultiFX, WritesCompleteNamesAndUnits) {
    const CDSPMultiFX strip;
    for (int id = 0; id < kParameterCount; ++id) {
        const SParameter &row = parameterTable[static_cast<std::size_t>(id)];
        char name[16] = "untouched", unit[16] = "untouched";
        strip.getParameterName(id, name);
        strip.getParameterLabel(id, unit);
        EXPECT_STREQ(name, row.name);
        EXPECT_STREQ(unit, row.unit);
    }
    char name[16];
    strip.getParameterName(kGateThrsh, name);
    EXPECT_STREQ(name, "GateThrsh");
}

TEST(CDSPMultiFX, ShowsTheModulesValue) {
    SWitnessLog log;
    CDSPMultiFX strip(makeWitnesses(log));
    for (int id = 0; id < kOutMono; ++id) {
        const SParameter &row = parameterTable[static_cast<std::size_t>(id)];
        for (const float v : {0.0f, 0.2f, 0.37f, 0.5f, 0.81f, 1.0f}) {
            strip.setStripParameter(id, v);
            char text[32] = "untouched";
            strip.getParameterDisplay(id, text);
            EXPECT_EQ(text, row.text(row.law(v))) << id << " at " << v;
        }
    }
}

static std::string displayAt(int id, float value) {
    CDSPMultiFX strip;
    // Another value first: one that equals the module's initial value would be ignored.
    strip.setStripParameter(id, value < 0.5f ? 0.9f : 0.1f);
    strip.setStripParameter(id, value);
    char text[32];
    strip.getParameterDisplay(id, text);
    return text;
}

TEST(CDSPMultiFX, ShowsTheLevelAndStereoModules) {
    EXPECT_EQ(displayAt(kInGain, 0.0f), "-oo");
    EXPECT_EQ(displayAt(kInGain, 0.2f), "-24.00");
    EXPECT_EQ(displayAt(kInGain, 0.24f), "-16.80");
    EXPECT_EQ(displayAt(kInGain, 0.25f), "-20.00");
    EXPECT_EQ(displayAt(kInGain, 1.0f), "6.00");
    EXPECT_EQ(displayAt(kBalance, 0.0f), "100:0");
    EXPECT_EQ(displayAt(kBalance, 1.0f), "0:100");
    EXPECT_EQ(displayAt(kPan, 0.5f), "100:100");
    for (const int id : {kInMono, kOutMono}) {
        EXPECT_EQ(displayAt(id, 0.0f), "Combine");
        EXPECT_EQ(displayAt(id, 0.4f), "AllLeft");
        EXPECT_EQ(displayAt(id, 0.999f), "AllRight");
        EXPECT_EQ(displayAt(id, 1.0f), "Stereo");
    }
}

TEST(CDSPMultiFX, ShowsModulatorAndDelayAtTheEndsOfTheirRanges) {
    EXPECT_EQ(displayAt(kMod1Dpth, 1.0f), "50");  // the law ends at 0.5, shown as a percentage
    EXPECT_EQ(displayAt(kDlySync, 0.999f), "Quaver");
    EXPECT_EQ(displayAt(kDlyDry, 0.0f), "-oo");
    EXPECT_EQ(displayAt(kDlyDry, 1.0f), "0.0");
}

TEST(CDSPMultiFX, ShowsMinusZeroDecibelsWhenReturningToTheMiddle) {
    EXPECT_EQ(displayAt(kInGain, 0.5f), "-0.00");
}

// Comparison with the plain version

/// Adapts a strip to the interface that the oracle expects.
class CStripCase {
public:
    void setParameter(int id, float value) { strip.setStripParameter(id, value); }
    float getParameter(int id) const { return strip.getStripParameter(id); }
    void processReplacing(float **in, float **out, int frames) {
        strip.processReplacing(in, out, frames);
    }
    void processDoubleReplacing(double **in, double **out, int frames) {
        strip.processDoubleReplacing(in, out, frames);
    }
    void reset() { strip.reset(); }
    void setTempo(float bpm) { strip.setTempo(bpm); }
    void setMonoInput(bool isMono) { strip.setMonoInput(isMono); }
    void setChain(const std::vector<int> &chain) {
        strip.initOrder();
        for (const int slot : chain)
            strip.appendFX(slot);
    }

private:
    CDSPMultiFX strip;
};

static std::vector<int> drawChain(CRandom &random) {
    std::vector<int> chain;
    while (chain.size() < 6 && random.chance(0.8)) {
        const int slot = random.whole(kFirstModuleSlot, kLastModuleSlot);
        if (std::find(chain.begin(), chain.end(), slot) == chain.end())
            chain.push_back(slot);
    }
    return chain;
}

/// Sets up a random case: chain, mono input or not, tempo. The same seed sets up both sides alike.
template <typename Strip>
static std::unique_ptr<Strip> setUp(std::unique_ptr<Strip> strip, std::uint64_t seed) {
    CRandom random(seed);
    strip->setChain(drawChain(random));
    strip->setMonoInput(random.chance(0.2));
    strip->setTempo(static_cast<float>(random.real(40.0, 200.0)));
    // The oracle may start with a block of no frames, which a new strip does not accept.
    TStereo<float> input(1), output(1);
    strip->processReplacing(input.pointers().data(), output.pointers().data(), 1);
    return strip;
}

TEST(CDSPMultiFX, EqualsThePlainVersionBitForBit) {
    std::uint64_t stripSeed = 0, plainSeed = 0;
    std::vector<SParameterRange> ranges(kParameterCount);
    for (int id = 0; id < kParameterCount; ++id)
        ranges[static_cast<std::size_t>(id)] = {id, 0.0f, 1.0f};
    expectSameBits([&stripSeed] { return setUp(std::make_unique<CStripCase>(), ++stripSeed); },
                   [&plainSeed] {
                       return setUp(std::make_unique<CPlainStrip>(makePlainModules()), ++plainSeed);
                   },
                   ranges, 1000);
}
