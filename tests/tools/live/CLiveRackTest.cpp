#include "corvel/live/CLiveRack.h"

#include "Allocation.h"
#include "Locks.h"
#include "corvel/settings/Chain.h"
#include "dspclasses/parameters/ParameterIds.h"
#include "tools/live/CJackBench.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <regex>

using namespace Tessitor::Tool;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr std::int32_t blockFrames = 64;
constexpr double sampleRate = 48000.0;

SMidiMessage controller(int number, int value, int channel = 1) {
    return {0, static_cast<std::uint8_t>(0xB0 + channel - 1), static_cast<std::uint8_t>(number),
            static_cast<std::uint8_t>(value)};
}

SMidiMessage programChange(int program, int channel = 1) {
    return {0, static_cast<std::uint8_t>(0xC0 + channel - 1), static_cast<std::uint8_t>(program),
            0};
}

/// A rack, and what goes through it. Call process() as the audio thread does.
class CRackUnderTest {
public:
    explicit CRackUnderTest(const std::string &file = CORVEL_EFFECT,
                            const std::vector<std::string> &controllers = {},
                            std::optional<int> channel = {})
        : library(file), effect(library),
          rack(effect, {CControllers(controllers, effect), channel}, 120.0) {
        for (std::size_t side = 0; side < 2; ++side)
            for (std::uint32_t i = 0; i < blockFrames; ++i)
                in[side][i] = CJackBench::sampleAt(side, i);
    }

    void process(const std::vector<SMidiMessage> &midi = {}, std::int32_t frames = blockFrames) {
        rack.process({{in[0].data(), in[1].data()},
                      {out[0].data(), out[1].data()},
                      frames,
                      midi,
                      transport});
    }
    float gain() const { return out[0][0] / in[0][0]; }

    CEffectLibrary library;
    CEffectInstance effect;
    CLiveRack rack;
    STransport transport;
    std::array<std::vector<float>, 2> in = {std::vector<float>(blockFrames),
                                            std::vector<float>(blockFrames)};
    std::array<std::vector<float>, 2> out = {std::vector<float>(2 * blockFrames, 9.0f),
                                             std::vector<float>(2 * blockFrames, 9.0f)};
};

/// @return the log of a test effect, without the numbers of the instances.
std::string logIn(const std::filesystem::path &file) {
    return std::regex_replace(readFile(file), std::regex("(^|\n)[0-9]+ "), "$1");
}

std::vector<float> firstOf(const std::vector<float> &samples) {
    return {samples.begin(), samples.begin() + blockFrames};
}

}  // namespace

// Sound

TEST(CLiveRack, IsSilentUnlessStarted) {
    CRackUnderTest test;
    test.process();
    EXPECT_THAT(firstOf(test.out[0]), Each(0.0f));
    EXPECT_THAT(firstOf(test.out[1]), Each(0.0f));
    EXPECT_EQ(test.rack.framesPlayed(), 0u);
    test.rack.start(sampleRate, blockFrames);
    test.process();
    EXPECT_THAT(firstOf(test.out[0]), Not(Each(0.0f)));
    EXPECT_EQ(test.rack.framesPlayed(), 64u);
    test.rack.stop();
    test.process();
    EXPECT_THAT(firstOf(test.out[0]), Each(0.0f));
    EXPECT_EQ(test.rack.framesPlayed(), 64u);
}

TEST(CLiveRack, PlaysWhatTheEffectPlays) {
    CRackUnderTest test;
    test.rack.start(sampleRate, blockFrames);
    CEffectInstance other(test.library);
    other.start({.sampleRate = sampleRate, .blockSize = blockFrames});
    std::vector<float> left(blockFrames), right(blockFrames);
    for (int block = 0; block < 100; ++block) {
        float *ins[] = {test.in[0].data(), test.in[1].data()},
              *outs[] = {left.data(), right.data()};
        other.process(ins, outs, blockFrames);
        test.process();
        ASSERT_EQ(firstOf(test.out[0]), left) << block;
        ASSERT_EQ(firstOf(test.out[1]), right) << block;
    }
}

TEST(CLiveRack, IsSilentForBlocksThatAreLongerThanAnnounced) {
    CRackUnderTest test;
    test.rack.start(sampleRate, blockFrames / 2);
    test.process();
    EXPECT_THAT(firstOf(test.out[0]), Each(0.0f));
    test.process({}, blockFrames / 2);
    EXPECT_NE(test.out[0][0], 0.0f);
}

TEST(CLiveRack, RestartsWithAnotherFormat) {
    const CTemporaryFolder folder;
    setenv("CORVEL_TEST_LOG", (folder / "log").c_str(), 1);
    CRackUnderTest test(testEffect("Lively"));
    test.rack.start(44100.0, blockFrames);
    test.rack.start(48000.0, 32);
    test.rack.stop();
    test.rack.stop();
    unsetenv("CORVEL_TEST_LOG");
    EXPECT_THAT(logIn(folder / "log"),
                HasSubstr("rate 44100\nblock 64\nsingle\nmains 1\nstereo\nstart\n"
                          "stop\nmains 0\n"
                          "rate 48000\nblock 32\nsingle\nmains 1\nstereo\nstart\n"
                          "stop\nmains 0\n"));
}

TEST(CLiveRack, CountsTheSecondsThatItPlays) {
    CRackUnderTest test;
    EXPECT_EQ(test.rack.secondsPlayed(), 0.0);
    test.rack.start(6400.0, blockFrames);
    test.process();
    EXPECT_EQ(test.rack.secondsPlayed(), 0.01);
    test.rack.start(64000.0, blockFrames);
    EXPECT_EQ(test.rack.secondsPlayed(), 0.01);
    test.process();
    EXPECT_DOUBLE_EQ(test.rack.secondsPlayed(), 0.011);
}

TEST(CLiveRack, PlaysSamplesThatAreNoNumbersAsSilence) {
    CRackUnderTest test, clean;
    test.in[0][3] = std::numeric_limits<float>::quiet_NaN();
    test.in[1][4] = std::numeric_limits<float>::infinity();
    clean.in[0][3] = clean.in[1][4] = 0.0f;
    for (CRackUnderTest *each : {&test, &clean}) {
        each->rack.start(sampleRate, blockFrames);
        each->process();
    }
    EXPECT_EQ(test.out, clean.out);
    EXPECT_EQ(test.rack.nonFiniteSamples(), 2u);
    EXPECT_EQ(clean.rack.nonFiniteSamples(), 0u);
    EXPECT_TRUE(std::isnan(test.in[0][3]));  // the server's buffer
}

TEST(CLiveRack, TellsTheEffectTheTimeOfTheServer) {
    const CTemporaryFolder folder;
    setenv("CORVEL_TEST_LOG", (folder / "log").c_str(), 1);
    CRackUnderTest test(testEffect("Lively"));
    test.rack.start(sampleRate, blockFrames);
    test.process();
    test.transport.frame = 4800;
    test.transport.beat = STransport::SBeat{.beatsPerMinute = 97.0};
    test.process();
    unsetenv("CORVEL_TEST_LOG");
    EXPECT_THAT(logIn(folder / "log"), HasSubstr("tempo 120\nprocess 64 at 0\n"
                                                 "tempo 97\nprocess 64 at 4800\n"));
}

// MIDI

TEST(CLiveRack, SetsParametersInTheBlockOfTheController) {
    CRackUnderTest test(testEffect("Lively"), {"7=Gain"});
    test.rack.start(sampleRate, blockFrames);
    test.process({controller(7, 127)});
    EXPECT_FLOAT_EQ(test.gain(), std::pow(10.0f, 6.0f / 20.0f));
    test.process({controller(7, 0), controller(8, 127)});
    EXPECT_FLOAT_EQ(test.gain(), std::pow(10.0f, -6.0f / 20.0f));
}

TEST(CLiveRack, PansHardAtOnce) {
    CRackUnderTest test(CORVEL_EFFECT, {"10=Pan"});
    setChain(test.effect, chainFromText("Pan"));
    test.rack.start(sampleRate, blockFrames);
    test.process({controller(10, 0)});
    for (int block = 0; block < 2000; ++block)
        test.process();
    EXPECT_THAT(firstOf(test.out[0]), Not(Each(0.0f)));
    EXPECT_THAT(firstOf(test.out[1]), Each(0.0f));
}

TEST(CLiveRack, LeavesProgramsToTheMainThread) {
    CRackUnderTest test(testEffect("Lively"));
    test.rack.start(sampleRate, blockFrames);
    test.process({programChange(1)});
    EXPECT_FLOAT_EQ(test.gain(), 1.0f);
    EXPECT_THAT(test.rack.runErrands(), ElementsAre(1));
    EXPECT_THAT(test.rack.runErrands(), IsEmpty());
    test.process();
    EXPECT_FLOAT_EQ(test.gain(), std::pow(10.0f, 6.0f / 20.0f));
}

TEST(CLiveRack, IgnoresProgramsThatTheEffectDoesNotHave) {
    CRackUnderTest test;
    test.rack.start(sampleRate, blockFrames);
    test.process({programChange(19), programChange(20), programChange(127)});
    EXPECT_THAT(test.rack.runErrands(), ElementsAre(19, 20, 127));
    EXPECT_EQ(test.effect.dispatch(effGetProgram), 19);
}

TEST(CLiveRack, KeepsTheOrderOfProgramsAndControllers) {
    CRackUnderTest test(CORVEL_EFFECT, {"21=InGain"});
    test.rack.start(sampleRate, blockFrames);
    test.process({programChange(3), controller(21, 64)});
    test.process({controller(21, 65)});
    test.rack.runErrands();
    EXPECT_EQ(test.effect.parameter(kInGain), 65.0f / 127.0f);
    test.process({controller(21, 66)});
    EXPECT_EQ(test.effect.parameter(kInGain), 66.0f / 127.0f);
}

TEST(CLiveRack, LeavesParametersThatAllocateToTheMainThread) {
    CRackUnderTest test(CORVEL_EFFECT, {"21=RvSpread"});
    test.rack.start(sampleRate, blockFrames);
    const float before = test.effect.parameter(kRvSpread);
    test.process({controller(21, 127)});
    EXPECT_EQ(test.effect.parameter(kRvSpread), before);
    test.rack.runErrands();
    EXPECT_EQ(test.effect.parameter(kRvSpread), 1.0f);
}

TEST(CLiveRack, TakesMidiWhileTheEffectIsStopped) {
    CRackUnderTest test(CORVEL_EFFECT, {"21=InGain"});
    test.process({controller(21, 127)});
    test.process({programChange(3)});
    test.rack.runErrands();
    EXPECT_EQ(test.effect.dispatch(effGetProgram), 3);
    test.rack.runErrands();
    test.process({controller(21, 0)});
    test.rack.runErrands();
    EXPECT_EQ(test.effect.parameter(kInGain), 0.0f);
}

TEST(CLiveRack, ListensToOneChannelIfAsked) {
    CRackUnderTest test(CORVEL_EFFECT, {"21=InGain"}, 3);
    test.rack.start(sampleRate, blockFrames);
    const float before = test.effect.parameter(kInGain);
    test.process({controller(21, 1, 2), controller(21, 1, 4), programChange(5, 2)});
    EXPECT_EQ(test.effect.parameter(kInGain), before);
    EXPECT_THAT(test.rack.runErrands(), IsEmpty());
    test.process({controller(21, 1, 3), programChange(5, 3)});
    EXPECT_EQ(test.effect.parameter(kInGain), 1.0f / 127.0f);
    EXPECT_THAT(test.rack.runErrands(), ElementsAre(5));
}

TEST(CLiveRack, HandsOtherMessagesToTheEffect) {
    const CTemporaryFolder folder;
    setenv("CORVEL_TEST_LOG", (folder / "log").c_str(), 1);
    CRackUnderTest test(testEffect("Lively"), {"7=Gain"}, 1);
    test.rack.start(sampleRate, blockFrames);
    test.process({{5, 0x90, 60, 100},
                  controller(7, 1),
                  controller(8, 2),
                  {9, 0x91, 61, 100},
                  programChange(1),
                  {63, 0xF8, 0, 0}});
    test.process();
    unsetenv("CORVEL_TEST_LOG");
    const std::string log = logIn(folder / "log");
    EXPECT_THAT(log, HasSubstr("event at 5 144 60 100\nevent at 0 176 8 2\n"
                               "event at 63 248 0 0\n"));
    EXPECT_EQ(log.find("event at", log.find("248")), std::string::npos);
}

TEST(CLiveRack, CountsMessagesThatAreLost) {
    CRackUnderTest test;
    test.rack.start(sampleRate, blockFrames);
    test.process(std::vector<SMidiMessage>(300, programChange(1)));
    EXPECT_EQ(test.rack.lostMessages(), 44u);
    EXPECT_EQ(test.rack.runErrands().size(), 256u);
}

// The audio thread

TEST(CLiveRack, NeitherAllocatesNorLocks) {
    CRackUnderTest test(CORVEL_EFFECT, {"21=InGain", "22=RvSpread", "23=DlyTime", "10=Pan"});
    test.rack.start(sampleRate, blockFrames);
    test.process();
    const std::vector<SMidiMessage> midi = {
        controller(21, 3), {1, 0x90, 60, 100}, controller(23, 99), controller(10, 127),
        controller(22, 9), programChange(2),   controller(21, 5)};
    const auto countNothing = [&] {
        const std::uint64_t allocations = allocationsOfThisThread(), locks = locksOfThisThread();
        for (int block = 0; block < 100; ++block)
            test.process(midi);
        EXPECT_EQ(allocationsOfThisThread(), allocations);
        EXPECT_EQ(locksOfThisThread(), locks);
    };
    countNothing();  // all is queued after the first program change
    test.rack.runErrands();
    countNothing();
    test.rack.stop();
    countNothing();
    EXPECT_EQ(test.rack.framesPlayed(), 201u * blockFrames);
}
