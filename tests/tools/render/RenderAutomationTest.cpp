#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"
#include "tools/support/Program.h"

#include <cmath>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// `corvel render --automate` as a user runs it.

using testing::HasSubstr;

namespace {

class RenderAutomation : public testing::Test {
protected:
    RenderAutomation() {
        sound.samples.assign(40000, 0.25);
        writeSound(folder / "in.wav", sound);
    }

    std::vector<double> render(const std::string &moves, std::vector<std::string> options = {},
                               const std::string &effect = testEffect("Whole")) {
        writeFile(folder / "moves", moves);
        options.insert(options.begin(), {"render", folder / "in.wav", folder / "out.wav", "--force",
                                         "--plugin", effect, "--automate", folder / "moves"});
        run = corvel(options, "CORVEL_TEST_LOG=" + (folder / "log").string());
        EXPECT_EQ(run.status, 0) << run.errors;
        return readSound(folder / "out.wav").samples;
    }

    /// @return the first frame whose left sample differs from the one before.
    static std::size_t firstChange(const std::vector<double> &samples) {
        for (std::size_t i = 2; i < samples.size(); i += 2)
            if (samples[i] != samples[i - 2])
                return i / 2;
        return samples.size();
    }

    CTemporaryFolder folder;
    SSound sound{SF_FORMAT_WAV | SF_FORMAT_FLOAT, 44100, 2, {}};
    SProgramRun run{};
};

double gain(double normalised) {
    return std::pow(10.0, (normalised - 0.5) * 12.0 / 20.0);
}

}  // namespace

class RenderAutomationBlocks : public RenderAutomation, public testing::WithParamInterface<int> {};

TEST_P(RenderAutomationBlocks, APointTakesEffectAtItsFrame) {
    const std::vector<double> out = render("0.1 Gain 3dB\n0.2 Gain @0.75\n0.2 Gain -6dB\n",
                                           {"--block", std::to_string(GetParam())});
    EXPECT_EQ(firstChange(out), 4410u);
    EXPECT_EQ(out[2 * 4409], 0.25);
    EXPECT_NEAR(out[2 * 4410], 0.25 * gain(0.75), 1e-6);
    EXPECT_EQ(out[2 * 8819], out[2 * 4410]);
    EXPECT_NEAR(out[2 * 8820], 0.25 * gain(0.0), 1e-6);
    EXPECT_EQ(out.back(), out[2 * 8820]);
    EXPECT_EQ(run.errors, "");
}
INSTANTIATE_TEST_SUITE_P(Blocks, RenderAutomationBlocks,
                         testing::Values(1, 7, 64, 1000, 1024, 16384, 100000));

TEST_F(RenderAutomation, ALineFollowsTheBlocks) {
    const std::vector<double> out = render("0 Gain @0\n0.4 Gain @1\n", {"--block", "441"});
    for (std::size_t frame = 0; frame < 17640; ++frame) {
        const double value = std::floor(static_cast<double>(frame) / 441.0) / 40.0;
        ASSERT_NEAR(out[2 * frame], 0.25 * gain(value), 1e-6) << frame;
    }
}

TEST_F(RenderAutomation, OnePointAtTheStartSoundsLikeSet) {
    sound = voice(5, 30000);
    writeSound(folder / "in.wav", sound);
    const std::vector<std::string> options = {
        "--chain", "Pan,Parametric,Modulator 1,Delay,Compressor", "--program", "1"};
    for (const auto &[name, value] :
         std::vector<std::pair<std::string, std::string>>{{"Pan", "100:0"},
                                                          {"ParaBW", "0.5 Oct"},
                                                          {"Mod1Dpth", "25 %"},
                                                          {"DlyTime", "300 ms"},
                                                          {"DlySync", "Quaver"},
                                                          {"CmpThresh", "-40 dB"}}) {
        const std::string assignment = name + "=" + value;
        std::vector<std::string> set = options;
        set.insert(set.end(), {"--set", assignment});
        EXPECT_TRUE(render("0 " + name + " " + value, options, CORVEL_EFFECT) ==
                    render("", set, CORVEL_EFFECT))
            << assignment;
    }
}

TEST_F(RenderAutomation, AHardPanIsHeardInTheMiddleOfTheFile) {
    sound = voice(5, 20000);
    writeSound(folder / "in.wav", sound);
    const std::vector<double> out =
        render("0.2 Pan 100:0", {"--chain", "Pan", "--program", "0"}, CORVEL_EFFECT);
    double right = 0.0;
    for (std::size_t frame = 9000; frame < 20000; ++frame)
        right = std::max(right, std::abs(out[2 * frame + 1]));
    EXPECT_EQ(right, 0.0);
}

TEST_F(RenderAutomation, DelayTimeAndSynchronisationGoTogether) {
    sound = voice(5, 40000);
    writeSound(folder / "in.wav", sound);
    const std::vector<std::string> options = {"--chain", "Delay", "--tempo", "90"};
    const auto out = [&](const std::string &moves) {
        return render(moves, options, CORVEL_EFFECT);
    };
    // While the delay follows the tempo, a change of its time is not heard.
    EXPECT_TRUE(out("0 DlySync Quaver\n0 DlyTime 300 ms\n0.1 DlyTime 100 ms\n") ==
                out("0 DlySync Quaver\n0 DlyTime 300 ms\n"));
    // After that, the last time that was set is heard.
    EXPECT_TRUE(out("0 DlyTime 300 ms\n0 DlySync Quaver\n0 DlySync ms\n") ==
                out("0 DlyTime 300 ms\n"));
}

TEST_F(RenderAutomation, TimesAreThoseOfTheFileWhenItIsResampled) {
    sound.sampleRate = 22050;
    writeSound(folder / "in.wav", sound);
    const std::vector<double> out = render("0.5 Gain @1\n", {"--resample"});
    // Around the jump, the converter rings.
    EXPECT_NEAR(out[2 * (11025 - 10)], 0.25, 0.02);
    EXPECT_NEAR(out[2 * (11025 + 10)], 0.25 * gain(1.0), 0.02);
}

TEST_F(RenderAutomation, TheLatencyOfTheEffectDoesNotShiftThePoints) {
    EXPECT_EQ(firstChange(render("0.1 Gain @1\n", {}, testEffect("Late"))), 4410u);
}

TEST_F(RenderAutomation, PointsInTheTailTakeEffect) {
    sound = voice(5, 4410);
    writeSound(folder / "in.wav", sound);
    const std::vector<std::string> options = {"--chain",       "Delay",  "--set",
                                              "DlyTime=200ms", "--tail", "0.5"};
    const auto cut = render("0.2 Gain 0dB\n0.25 DlyWet -oo\n", options, CORVEL_EFFECT);
    const auto whole = render("", options, CORVEL_EFFECT);
    ASSERT_EQ(cut.size(), whole.size());
    EXPECT_TRUE(std::equal(cut.begin(), cut.begin() + 2 * 11025, whole.begin()));
    EXPECT_FALSE(std::equal(cut.begin() + 2 * 11025, cut.end(), whole.begin() + 2 * 11025));
}

TEST_F(RenderAutomation, BothPrecisionsAreAutomated) {
    EXPECT_EQ(firstChange(render("0.1 Gain @1\n", {"--double"})), 4410u);
}

TEST_F(RenderAutomation, AMonoFileIsAutomated) {
    sound.channels = 1;
    sound.samples.resize(20000);
    writeSound(folder / "in.wav", sound);
    EXPECT_EQ(firstChange(render("0.1 Gain @1\n")), 4410u);
    render("0.1 Gain @1\n", {"--mono"});
    const std::vector<double> mono = readSound(folder / "out.wav").samples;
    EXPECT_EQ(mono[4409], 0.25);
    EXPECT_NEAR(mono[4410], 0.25 * gain(1.0), 1e-6);
}

TEST_F(RenderAutomation, AnExcerptKeepsTheTimesOfTheFile) {
    EXPECT_EQ(firstChange(render("0.2 Gain @1\n", {"--start", "0.05"})), 6615u);
    const std::vector<double> out = render("0.02 Gain @1\n", {"--start", "0.05"});
    EXPECT_NEAR(out.front(), 0.25 * gain(1.0), 1e-6);
    EXPECT_EQ(out.back(), out.front());
}

TEST_F(RenderAutomation, WithoutPointsNothingChanges) {
    render("# nothing yet\n");
    EXPECT_EQ(readSound(folder / "out.wav").samples, sound.samples);
    EXPECT_THAT(readFile(folder / "log"), testing::Not(HasSubstr("process 1025")));
}

TEST_F(RenderAutomation, TheReportNamesTheFile) {
    render("0 Gain @1\n");
    EXPECT_THAT(run.out, HasSubstr("automate   " + (folder / "moves").string() + "\n"));
    render("0 Gain @1\n", {"--json"});
    EXPECT_THAT(run.out, HasSubstr("\"automate\":\"" + (folder / "moves").string() + "\""));
}

TEST_F(RenderAutomation, AWrongFileIsOneLineAndNoOutput) {
    const auto wrong = [&](const std::string &moves) {
        writeFile(folder / "moves", moves);
        return corvel({"render", folder / "in.wav", folder / "none.wav", "--plugin",
                       testEffect("Whole"), "--automate", folder / "moves"});
    };
    const std::string file = folder / "moves";
    expectOneError(wrong("0 Gain @0\n1 Gian @0\n"), 1,
                   file + ":2: no parameter \"Gian\"; corvel params lists them");
    expectOneError(wrong("x Gain @0\n"), 1, file + ":1: \"x\" is not a time");
    std::filesystem::remove(file);
    expectOneError(corvel({"render", folder / "in.wav", folder / "none.wav", "--plugin",
                           testEffect("Whole"), "--automate", file}),
                   1, file + ": no such file");
    expectOneError(corvel({"render", folder / "in.wav", folder / "none.wav", "--automate"}), 2,
                   "--automate: needs a value");
    EXPECT_FALSE(std::filesystem::exists(folder / "none.wav"));
}
