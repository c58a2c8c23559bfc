#include "corvel/audio/CLoudness.h"
#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

#include <cmath>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// The options --loudness, --normalize, --clip and --dither of `corvel render`, with an effect that
// does simple arithmetic.

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

using namespace Tessitor::Tool;

namespace {

class RenderLoudness : public testing::Test {
protected:
    /// Renders in.wav to out.wav.
    SSound render(const SSound &sound, const std::vector<std::string> &options) {
        writeSound(folder / "in.wav", sound);
        std::vector<std::string> arguments = {"in.wav", "out.wav", "--force"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        renderFiles(arguments);
        EXPECT_EQ(run.status, 0) << run.errors;
        return readSound(folder / "out.wav");
    }

    void renderFiles(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "render");
        arguments.insert(arguments.end(), {"--plugin", testEffect(effect)});
        run = corvel(arguments, "cd " + folder.path().string() + ";");
    }

    nlohmann::json result() const { return nlohmann::json::parse(run.out); }

    CTemporaryFolder folder;
    std::string effect = "Whole";
    SProgramRun run{};
};

SLoudness measure(const SSound &sound) {
    CLoudness meter(sound.sampleRate, sound.channels, {.truePeak = true});
    meter.add(sound.samples.data(), sound.frames());
    return meter.finish();
}

SSound scaled(SSound sound, double gain) {
    for (double &sample : sound.samples)
        sample *= gain;
    return sound;
}

/// Two samples clip at a gain of 6 dB.
SSound loudIntegers(std::size_t frames = 44100) {
    SSound sound = scaled(voice(5, frames), 0.5);
    sound.samples[1000] = 0.875;
    sound.samples[2000] = -0.75;
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    return sound;
}

const std::vector<std::string> twice = {"--set", "Gain=@1"};  // almost: 6 dB

std::vector<std::string> twiceAnd(std::vector<std::string> options) {
    options.insert(options.end(), twice.begin(), twice.end());
    return options;
}

}  // namespace

TEST_F(RenderLoudness, IsReportedOfInputAndOutputOnRequest) {
    SSound sine;
    for (int i = 0; i < 5 * 44100; ++i)
        for (int channel = 0; channel < 2; ++channel)
            sine.samples.push_back(0.1 * std::sin(2.0 * M_PI * 1000.0 * i / 44100.0));
    render(sine, twiceAnd({"--loudness"}));
    EXPECT_THAT(run.out, ContainsRegex("level in   peak -20.00 dBFS, RMS -23.01 dBFS, "
                                       "-(19.9|20.0).* LUFS, true peak -(19.9|20.0). dBTP\n"));
    EXPECT_THAT(run.out, ContainsRegex("level out  peak -14.00 dBFS, RMS -17.01 dBFS, "
                                       "-(13.9|14.0).* LUFS, true peak -(13.9|14.0). dBTP\n"));
    EXPECT_THAT(run.out, Not(HasSubstr("gain ")));

    render(sine, twiceAnd({"--loudness", "--json"}));
    EXPECT_NEAR(result()["levelIn"]["loudness"].get<double>(), -20.0, 0.1);
    EXPECT_NEAR(result()["levelIn"]["truePeak"].get<double>(), -20.0, 0.1);
    EXPECT_NEAR(result()["levelOut"]["loudness"].get<double>(), -14.0, 0.1);
    EXPECT_NEAR(result()["levelOut"]["truePeak"].get<double>(), -14.0, 0.1);
    EXPECT_FALSE(result().contains("gain"));
}

TEST_F(RenderLoudness, IsNotMeasuredWithoutARequest) {
    render(voice(1, 44100), {});
    EXPECT_THAT(run.out, Not(HasSubstr("LUFS")));
    EXPECT_THAT(run.out, Not(HasSubstr("dBTP")));
    render(voice(1, 44100), {"--json"});
    EXPECT_FALSE(result()["levelIn"].contains("loudness"));
}

TEST_F(RenderLoudness, MeasuringDoesNotChangeTheSound) {
    const SSound sound = voice(1, 44100);
    EXPECT_EQ(render(sound, {"--loudness"}).samples, sound.samples);
}

TEST_F(RenderLoudness, SilenceAndShortSoundsHaveNone) {
    render(voice(1, 10000), {"--loudness"});
    EXPECT_THAT(run.out, ContainsRegex("level in .* dBFS, no loudness, true peak -[0-9.]+ dBTP\n"));
    render(scaled(voice(1, 44100), 0.0), {"--loudness"});
    EXPECT_THAT(run.out, ContainsRegex("level out .* dBFS, no loudness\n"));
    render(voice(1, 0), {"--loudness", "--json"});
    for (const char *level : {"levelIn", "levelOut"}) {
        EXPECT_TRUE(result()[level]["loudness"].is_null());
        EXPECT_TRUE(result()[level]["truePeak"].is_null());
    }
}

struct SNormaliseCase {
    const char *target;
    std::vector<std::string> options;
    int channels;
};

class RenderNormalize : public RenderLoudness,
                        public testing::WithParamInterface<SNormaliseCase> {};

TEST_P(RenderNormalize, TheOutputReachesItsTarget) {
    SSound sound = voice(1, 2 * 44100, GetParam().channels);
    const SSound quiet = scaled(voice(2, 3 * 44100, GetParam().channels), 0.0005);
    sound.samples.insert(sound.samples.end(), quiet.samples.begin(), quiet.samples.end());
    std::vector<std::string> options = GetParam().options;
    options.insert(options.end(), {"--set", "Gain=@0.3", "--normalize", GetParam().target});
    const SSound out = render(sound, options);
    const SLoudness loudness = measure(out);
    const double target = std::stod(GetParam().target);
    const bool isPeak = std::string(GetParam().target).ends_with("TP");
    EXPECT_NEAR(isPeak ? *loudness.truePeak : *loudness.integrated, target, 1e-4);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"}));
}

INSTANTIATE_TEST_SUITE_P(Targets, RenderNormalize,
                         testing::Values(SNormaliseCase{"-16LUFS", {}, 2},
                                         SNormaliseCase{"-30 LUFS", {}, 2},
                                         SNormaliseCase{"-1dBTP", {}, 2},
                                         SNormaliseCase{"-9.5 dBTP", {"--tail", "3"}, 2},
                                         SNormaliseCase{"-16LUFS", {"--double"}, 2},
                                         SNormaliseCase{"-3LUFS", {}, 1},
                                         SNormaliseCase{"-23LUFS", {"--mono"}, 1}));

TEST_F(RenderLoudness, NormalizingIsOneGain) {
    const SSound sound = voice(1, 60000);
    const SSound out = render(sound, {"--normalize", "-20LUFS", "--json"});
    const double gain = std::pow(10.0, result()["gain"].get<double>() / 20.0);
    EXPECT_NEAR(result()["levelOut"]["loudness"].get<double>(), -20.0, 1e-4);
    ASSERT_EQ(out.samples.size(), sound.samples.size());
    for (std::size_t i = 0; i < out.samples.size(); ++i)
        ASSERT_NEAR(out.samples[i], sound.samples[i] * gain, 1e-6) << i;
}

TEST_F(RenderLoudness, TheGainIsReported) {
    const SSound sound = voice(1, 60000);
    const double missing = -20.0 - *measure(sound).integrated;
    render(sound, {"--normalize", "-20LUFS"});
    char line[80];
    std::snprintf(line, sizeof(line), "gain       %+.2f dB, to -20 LUFS\n", missing);
    EXPECT_THAT(run.out, HasSubstr(line));
    EXPECT_THAT(run.out, HasSubstr(" -20.00 LUFS, true peak "));
}

TEST_F(RenderLoudness, WhatHasNoneIsNotNormalized) {
    const SSound little = voice(1, 10000), silence = scaled(voice(1, 60000), 0.0);
    EXPECT_EQ(render(little, {"--normalize", "-20LUFS"}).samples, little.samples);
    EXPECT_EQ(
        run.errors,
        "corvel: note: out.wav: not normalised: silent, shorter than 0.4 s or not a number\n");
    EXPECT_THAT(run.out, HasSubstr("gain       none\n"));
    EXPECT_EQ(render(silence, {"--normalize", "-1dBTP"}).samples, silence.samples);
    EXPECT_EQ(run.errors, "corvel: note: out.wav: not normalised: silent or not a number\n");
    EXPECT_EQ(render(voice(1, 0), {"--normalize", "-1dBTP", "--json"}).frames(), 0u);
    EXPECT_EQ(result()["gain"], 0.0);
    EXPECT_NEAR(*measure(render(little, {"--normalize", "-1dBTP"})).truePeak, -1.0, 1e-4);
    EXPECT_EQ(run.errors, "");
}

TEST_F(RenderLoudness, ABatchHasOneNote) {
    for (const char *name : {"a.wav", "b.wav"})
        writeSound(folder / name, voice(1, 10000));
    writeSound(folder / "c.wav", voice(1, 60000));
    renderFiles({"a.wav", "b.wav", "c.wav", "out/", "--normalize", "-20LUFS", "--dither"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors,
              "corvel: note: 2 files: not normalised: silent, shorter than 0.4 s or not a number\n"
              "corvel: note: 3 files: not dithered: only outputs of 8 and 16 bits need it\n");
}

TEST_F(RenderLoudness, FloatingPointOutputsAreNotClippedByNormalizing) {
    for (const char *clip : {"warn", "fail", "headroom"}) {
        const SSound out = render(voice(1, 60000), {"--normalize", "-1LUFS", "--clip", clip});
        EXPECT_NEAR(*measure(out).integrated, -1.0, 1e-4);
        EXPECT_GT(*measure(out).truePeak, 1.0);
        EXPECT_EQ(run.errors, "");
    }
}

TEST_F(RenderLoudness, AFullDiskIsReported) {
    writeSound(folder / "in.wav", voice(1, 2 * 44100));
    run = corvel({"render", folder / "in.wav", folder / "out.flac", "--normalize", "-16LUFS",
                  "--plugin", testEffect(effect)},
                 "ulimit -f 500;");
    expectOneError(run, 1, "/out.flac: its temporary file cannot be used (File too large)");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"in.wav"});
}

TEST_F(RenderLoudness, AWrongTargetIsAWrongCall) {
    writeSound(folder / "in.wav", voice(1, 1000));
    for (const char *target : {"-16", "-16dB", "loud", "", "5LUFS"}) {
        renderFiles({"in.wav", "out.wav", "--normalize", target});
        expectOneError(run, 2, "--normalize: ");
    }
    renderFiles({"in.wav", "out.wav", "--normalize"});
    expectOneError(run, 2, "--normalize: ");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"in.wav"});
}

TEST_F(RenderLoudness, AWrongChoiceForClipIsAWrongCall) {
    writeSound(folder / "in.wav", voice(1, 1000));
    for (const char *choice : {"", "no", "warn,fail", "1"}) {
        renderFiles({"in.wav", "out.wav", "--clip", choice});
        expectOneError(run, 2,
                       std::string("--clip: \"") + choice +
                           "\" is not one of warn, fail and headroom");
    }
}

TEST_F(RenderLoudness, ByDefaultClippingIsAWarning) {
    const SSound out = render(loudIntegers(), twice);
    EXPECT_EQ(run.errors, "corvel: warning: out.wav: 2 samples clipped\n");
    EXPECT_EQ(render(loudIntegers(), twiceAnd({"--clip", "Warn"})).samples, out.samples);
    EXPECT_EQ(run.errors, "corvel: warning: out.wav: 2 samples clipped\n");
}

TEST_F(RenderLoudness, ClippingCanFail) {
    writeSound(folder / "in.wav", loudIntegers());
    writeFile(folder / "out.wav", "old");
    renderFiles(twiceAnd({"in.wav", "out.wav", "--force", "--clip", "fail"}));
    expectOneError(run, 1,
                   "out.wav: 2 samples would clip, so it was not written; --clip headroom turns "
                   "it down");
    EXPECT_TRUE(readFile(folder / "out.wav") == "old");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"}));
    render(loudIntegers(), {"--clip", "fail"});
    EXPECT_EQ(run.errors, "");
}

TEST_F(RenderLoudness, WhatClipsDoesNotReachStandardOutput) {
    writeSound(folder / "in.wav", loudIntegers());
    renderFiles(twiceAnd({"in.wav", "-", "--clip", "fail", "--raw", "44100:2:s16"}));
    expectOneError(run, 1, "standard output: it would clip, so nothing was written");
    renderFiles({"in.wav", "-", "--clip", "fail", "--raw", "44100:2:s16"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.out.size(), 44100u * 4u);
}

TEST_F(RenderLoudness, AStreamIsNormalized) {
    writeSound(folder / "in.wav", voice(1, 60000));
    renderFiles({"in.wav", "-", "--normalize", "-16LUFS", "--format", "wav:float"});
    EXPECT_EQ(run.status, 0) << run.errors;
    writeFile(folder / "out.wav", run.out);
    EXPECT_NEAR(*measure(readSound(folder / "out.wav")).integrated, -16.0, 1e-4);
}

TEST_F(RenderLoudness, AFileThatClipsFailsAlone) {
    writeSound(folder / "loud.wav", loudIntegers());
    writeSound(folder / "quiet.wav", scaled(voice(1, 1000), 0.1));
    renderFiles(twiceAnd({"loud.wav", "quiet.wav", "out/", "--clip", "fail"}));
    EXPECT_EQ(run.status, 1);
    EXPECT_FALSE(std::filesystem::exists(folder / "out/loud.wav"));
    EXPECT_EQ(readSound(folder / "out/quiet.wav").frames(), 1000u);
}

TEST_F(RenderLoudness, HeadroomTurnsTheOutputDown) {
    const SSound out = render(loudIntegers(), twiceAnd({"--clip", "headroom"}));
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(out.samples[1000], 32767.0 / 32768.0);
    EXPECT_NEAR(out.samples[2000], -0.75 / 0.875, 1e-4);
    EXPECT_THAT(run.out, HasSubstr("gain       -4.84 dB, so that nothing clips\n"));
    EXPECT_THAT(run.out, ContainsRegex("level out  peak -?0.00 dBFS"));
}

TEST_F(RenderLoudness, WhatDoesNotClipKeepsItsLevel) {
    const SSound sound = loudIntegers();
    EXPECT_EQ(render(sound, {"--clip", "headroom"}).samples, render(sound, {}).samples);
    render(sound, {"--clip", "headroom"});
    EXPECT_THAT(run.out, HasSubstr("gain       none\n"));
}

TEST_F(RenderLoudness, HeadroomLimitsTheGainOfNormalizing) {
    const SSound sound = loudIntegers(60000);
    const SSound out = render(sound, {"--normalize", "-3LUFS", "--clip", "headroom"});
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(out.samples[1000], 32767.0 / 32768.0);
    char end[80];
    std::snprintf(end, sizeof(end),
                  "gain       +1.16 dB, so that nothing clips; -3 LUFS would need %+.2f dB\n",
                  -3.0 - *measure(sound).integrated);
    EXPECT_THAT(run.out, HasSubstr(end));
    render(sound, {"--normalize", "-3LUFS"});
    EXPECT_THAT(run.errors, EndsWith(" samples clipped\n"));
}

TEST_F(RenderLoudness, DitherIsTheSameInEveryRunAndInBatches) {
    const SSound sound = scaled(loudIntegers(), 0.5);
    const SSound plain = render(sound, {});
    const SSound out = render(sound, {"--dither"});
    EXPECT_EQ(run.errors, "");
    EXPECT_NE(out.samples, plain.samples);
    for (std::size_t i = 0; i < out.samples.size(); ++i)
        ASSERT_LE(std::abs(out.samples[i] - plain.samples[i]), 1.0 / 32768.0);

    for (const char *name : {"a.wav", "b.wav", "c.wav"})
        writeSound(folder / name, sound);
    renderFiles({"a.wav", "b.wav", "c.wav", "batch/", "--dither", "--block", "64"});
    for (const char *name : {"batch/a.wav", "batch/b.wav", "batch/c.wav"})
        EXPECT_EQ(readFile(folder / name), readFile(folder / "out.wav")) << name;
}

TEST_F(RenderLoudness, DitheredHeadroomDoesNotClip) {
    SSound sound;
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    sound.samples.assign(20000, 32767.0 / 32768.0);
    render(sound, {"--dither"});
    EXPECT_THAT(run.errors, HasSubstr("samples clipped"));
    render(sound, {"--dither", "--clip", "headroom"});
    EXPECT_EQ(run.errors, "");
}

TEST_F(RenderLoudness, DitherIsForFewBits) {
    const struct {
        const char *format;
        bool dithered;
    } cases[] = {{"wav:8", true},
                 {"wav:16", true},
                 {"flac:16", true},
                 {"wav:24", false},
                 {"wav:float", false}};
    for (const auto &[format, dithered] : cases) {
        const SSound sound = scaled(voice(1, 1000), 0.5);
        const std::string out = std::string("out") + (format[0] == 'f' ? ".flac" : ".wav");
        writeSound(folder / "in.wav", sound);
        renderFiles({"in.wav", out, "--force", "--format", format});
        const SSound plain = readSound(folder / out);
        renderFiles({"in.wav", out, "--force", "--format", format, "--dither"});
        EXPECT_EQ(readSound(folder / out).samples != plain.samples, dithered) << format;
        EXPECT_EQ(run.errors, dithered ? ""
                                       : "corvel: note: out.wav: not dithered: only outputs of 8 "
                                         "and 16 bits need it\n");
    }
}
