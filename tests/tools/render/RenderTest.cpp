#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/JsonLines.h"
#include "tools/support/Program.h"

#include <cmath>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// `corvel render` as a user runs it, with an effect that does simple arithmetic.

using testing::HasSubstr;
using testing::Not;

namespace {

class Render : public testing::Test {
protected:
    /// Renders in.wav to out.wav.
    SSound render(const SSound &sound, std::vector<std::string> options = {}) {
        writeSound(folder / "in.wav", sound);
        options.insert(options.begin(),
                       {"render", folder / "in.wav", folder / "out.wav", "--force"});
        run = corvelWithEffect(std::move(options));
        EXPECT_EQ(run.status, 0) << run.errors;
        return readSound(folder / "out.wav");
    }

    SProgramRun corvelWithEffect(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"--plugin", testEffect(effect)});
        return corvel(arguments, "CORVEL_TEST_LOG=" + (folder / "log").string());
    }

    nlohmann::json result() const { return nlohmann::json::parse(run.out); }

    CTemporaryFolder folder;
    std::string effect = "Whole";
    SProgramRun run{};
};

std::vector<double> scaled(std::vector<double> samples, double gain) {
    for (double &sample : samples)
        sample *= gain;
    return samples;
}

}  // namespace

TEST_F(Render, NeutralSettingsKeepTheInput) {
    const SSound sound = voice(11, 30000);
    const SSound out = render(sound);
    EXPECT_EQ(out.samples, sound.samples);
    EXPECT_EQ(out.format, sound.format);
    EXPECT_EQ(out.sampleRate, 44100);
    EXPECT_EQ(run.errors, "");
}

class RenderIntegers : public Render, public testing::WithParamInterface<int> {};

TEST_P(RenderIntegers, IntegersStayUnchanged) {
    SSound sound = voice(11, 30000);
    sound.samples[0] = -1.0;  // full scale
    sound.samples[1] = 32767.0 / 32768.0;
    sound.format = GetParam();
    writeSound(folder / "same", sound);
    const SSound out = render(sound);
    EXPECT_EQ(out.format, GetParam());
    EXPECT_EQ(out.samples, readSound(folder / "same").samples);
    EXPECT_EQ(run.errors, "");
}
INSTANTIATE_TEST_SUITE_P(Formats, RenderIntegers,
                         testing::Values(SF_FORMAT_WAV | SF_FORMAT_PCM_16,
                                         SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                                         SF_FORMAT_WAV | SF_FORMAT_PCM_U8,
                                         SF_FORMAT_WAV | SF_FORMAT_ULAW));

class RenderOtherIntegers : public Render, public testing::WithParamInterface<int> {};

TEST_P(RenderOtherIntegers, IntegersStayUnchangedInAnotherContainer) {
    SSound sound = voice(11, 30000);
    sound.samples[0] = -1.0;
    sound.format = GetParam();
    const SSound out = render(sound, {"--format", "wav"});
    EXPECT_EQ(out.format, SF_FORMAT_WAV | (GetParam() & SF_FORMAT_SUBMASK));
    EXPECT_EQ(out.samples, sound.samples);
}
INSTANTIATE_TEST_SUITE_P(Formats, RenderOtherIntegers,
                         testing::Values(SF_FORMAT_AIFF | SF_FORMAT_PCM_16,
                                         SF_FORMAT_AIFF | SF_FORMAT_PCM_24,
                                         SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                                         SF_FORMAT_FLAC | SF_FORMAT_PCM_24));

TEST_F(Render, DoublePrecisionKeeps32Bits) {
    SSound sound = voice(11, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_32;
    for (double &sample : sound.samples)
        sample += 1.0 / 2147483648.0;
    EXPECT_EQ(render(sound, {"--double"}).samples, sound.samples);
    EXPECT_NE(render(sound).samples, sound.samples);
}

TEST_F(Render, SinglePrecisionKeeps24Bits) {
    SSound sound = voice(11, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_24;
    for (std::size_t i = 0; i < sound.samples.size(); ++i)
        sound.samples[i] += static_cast<double>(i % 256) / 8388608.0;
    EXPECT_EQ(render(sound).samples, sound.samples);
}

TEST_F(Render, DoublePrecisionKeepsDoubles) {
    SSound sound = voice(11, 3000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_DOUBLE;
    sound.samples[5] = 1.0 / 3.0;
    EXPECT_EQ(render(sound, {"--double"}).samples, sound.samples);
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" double\n"));
    EXPECT_EQ(render(sound).samples[5], static_cast<double>(static_cast<float>(1.0 / 3.0)));
}

TEST_F(Render, ProgramAndParametersChangeTheSound) {
    const SSound sound = voice(11, 1000);
    const std::vector<double> louder = scaled(sound.samples, std::pow(10.0, 0.3));
    const std::vector<double> byProgram = render(sound, {"--program", "Loud"}).samples;
    const std::vector<double> byText = render(sound, {"--set", "gain=6dB"}).samples;
    const std::vector<double> byNumber = render(sound, {"--set", "Gain=1"}).samples;
    EXPECT_EQ(byProgram, byNumber);
    for (std::size_t i = 0; i < louder.size(); ++i) {
        ASSERT_NEAR(byProgram[i], louder[i], 1e-6);
        ASSERT_NEAR(byText[i], louder[i], 2e-3);
    }
}

TEST_F(Render, AllBlocksButTheLastAreFull) {
    render(voice(11, 40000), {"--block", "15000"});
    const std::string log = readFile(folder / "log");
    EXPECT_THAT(log, HasSubstr(" block 15000\n"));
    EXPECT_THAT(log, HasSubstr(" process 15000 at 0\n"));
    EXPECT_THAT(log, HasSubstr(" process 15000 at 15000\n"));
    EXPECT_THAT(log, HasSubstr(" process 10000 at 30000\n"));
}

TEST_F(Render, TheBlockSizeDoesNotChangeTheSound) {
    const SSound sound = voice(11, 20000);
    for (const char *size : {"1", "333", "1024", "16384", "1000000"})
        EXPECT_EQ(render(sound, {"--block", size}).samples, sound.samples) << size;
}

TEST_F(Render, TheTempoReachesTheEffect) {
    render(voice(11, 100));
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" tempo 120\n"));
    render(voice(11, 100), {"--tempo", "77"});
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" tempo 77\n"));
}

TEST_F(Render, TheTailIsRendered) {
    const SSound sound = voice(11, 1000);
    const SSound out = render(sound, {"--tail", "0.5"});
    ASSERT_EQ(out.frames(), 1000u + 22050u);
    std::vector<double> expected = sound.samples;
    expected.resize(2 * 23050, 0.0);
    EXPECT_EQ(out.samples, expected);
}

TEST_F(Render, TheEffectsLatencyIsRemoved) {
    effect = "Late";
    const SSound sound = voice(11, 30000);
    EXPECT_EQ(render(sound).samples, sound.samples);
    const SSound shorterThanTheLatency = voice(12, 300);
    EXPECT_EQ(render(shorterThanTheLatency).samples, shorterThanTheLatency.samples);
    EXPECT_EQ(render(sound, {"--tail", "1"}).frames(), 30000u + 44100u);
}

TEST_F(Render, AMonoFileBecomesStereo) {
    const SSound sound = voice(11, 1000, 1);
    const SSound out = render(sound);
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" mono\n"));
    ASSERT_EQ(out.channels, 2);
    ASSERT_EQ(out.frames(), 1000u);
    for (std::size_t i = 0; i < 1000; ++i) {
        ASSERT_EQ(out.samples[2 * i], sound.samples[i]);
        ASSERT_EQ(out.samples[2 * i + 1], sound.samples[i]);
    }
}

TEST_F(Render, TheStripsMonoSumIsWrittenOnRequest) {
    const SSound sound = voice(11, 1000, 1);
    const SSound out = render(sound, {"--mono"});
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" one output\n"));
    EXPECT_EQ(out.channels, 1);
    EXPECT_EQ(out.samples, sound.samples);
}

TEST_F(Render, TheMonoSumOfAStereoFileIsTheMeanOfItsChannels) {
    const SSound sound = voice(11, 30000);
    for (const std::vector<std::string> &options :
         {std::vector<std::string>{"--channels", "mono"}, {"--mono"}, {"--mono", "--double"}}) {
        const SSound out = render(sound, options);
        ASSERT_EQ(out.channels, 1);
        ASSERT_EQ(out.frames(), 30000u);
        for (std::size_t i = 0; i < 30000; ++i)
            ASSERT_EQ(out.samples[i], (sound.samples[2 * i] + sound.samples[2 * i + 1]) / 2.0);
    }
    // The effect itself stays stereo.
    EXPECT_THAT(readFile(folder / "log"), Not(HasSubstr("one output")));
    EXPECT_EQ(render(sound, {"--channels", "stereo"}).samples, sound.samples);
}

TEST_F(Render, AnEmptyFileGivesAnEmptyFile) {
    const SSound out = render(voice(11, 0), {"--json"});
    EXPECT_EQ(out.frames(), 0u);
    EXPECT_TRUE(result()["levelIn"]["peak"].is_null());
}

TEST_F(Render, AnotherRateIsKeptWithAWarning) {
    SSound sound = voice(11, 1000);
    sound.sampleRate = 48000;
    const SSound out = render(sound);
    EXPECT_EQ(out.sampleRate, 48000);
    EXPECT_EQ(out.samples, sound.samples);
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" rate 48000\n"));
    EXPECT_EQ(run.errors,
              "corvel: note: " + (folder / "in.wav").string() +
                  ": 48000 Hz, but the strip is tuned for 44100 Hz; --resample converts\n");
}

class RenderRates : public Render, public testing::WithParamInterface<int> {};

TEST_P(RenderRates, ResamplingKeepsTimeAndLength) {
    SSound sound;
    sound.sampleRate = GetParam();
    sound.channels = 1;
    for (int i = 0; i < 2 * sound.sampleRate; ++i)
        sound.samples.push_back(0.5 * std::sin(2.0 * M_PI * 440.0 * i / sound.sampleRate));
    const SSound out = render(sound, {"--resample", "--mono"});
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" rate 44100\n"));
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(out.sampleRate, GetParam());
    ASSERT_EQ(out.frames(), sound.frames());
    // Except at the ends, where the sine starts and stops abruptly.
    const auto margin = static_cast<std::size_t>(GetParam() / 50);
    for (std::size_t i = margin; i < out.frames() - margin; ++i)
        ASSERT_NEAR(out.samples[i], sound.samples[i], 1e-4) << i;
}
INSTANTIATE_TEST_SUITE_P(Rates, RenderRates, testing::Values(8000, 22050, 48000, 96000, 192000));

TEST_F(Render, ResamplingWorksWithLatencyTailAndDoubles) {
    effect = "Late";
    SSound sound = voice(11, 20000);
    sound.sampleRate = 48000;
    const SSound out = render(sound, {"--resample", "--double", "--tail", "0.25"});
    EXPECT_EQ(out.frames(), 32000u);
    double largest = 0.0;
    for (std::size_t i = 2000; i < 38000; ++i)
        largest = std::max(largest, std::abs(out.samples[i] - sound.samples[i]));
    EXPECT_LT(largest, 0.25);  // the noise above 22 kHz is gone
    EXPECT_GT(largest, 0.0);
}

TEST_F(Render, AtTheRateOfTheStripNothingIsResampled) {
    const SSound sound = voice(11, 1000);
    EXPECT_EQ(render(sound, {"--resample"}).samples, sound.samples);
}

TEST_F(Render, TheExtensionAndTheOptionChooseTheFormat) {
    writeSound(folder / "in.wav", voice(11, 1000));
    const struct {
        const char *out, *option;
        int format;
    } cases[] = {{"a.flac", "", SF_FORMAT_FLAC | SF_FORMAT_PCM_24},
                 {"b.aiff", "", SF_FORMAT_AIFF | SF_FORMAT_FLOAT},
                 {"c.ogg", "", SF_FORMAT_OGG | SF_FORMAT_VORBIS},
                 {"d", "", SF_FORMAT_WAV | SF_FORMAT_FLOAT},
                 {"e.wav", "wav:24", SF_FORMAT_WAV | SF_FORMAT_PCM_24},
                 {"f", "flac:16", SF_FORMAT_FLAC | SF_FORMAT_PCM_16}};
    for (const auto &[out, option, format] : cases) {
        std::vector<std::string> arguments = {"render", folder / "in.wav", folder / out};
        if (*option != '\0')
            arguments.insert(arguments.end(), {"--format", option});
        EXPECT_EQ(corvelWithEffect(arguments).status, 0);
        EXPECT_EQ(readSound(folder / out).format, format) << out;
    }
}

TEST_F(Render, ALongVorbisFileIsWritten) {
    SSound sound = voice(11, 200000);
    sound.format = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    writeSound(folder / "in.ogg", sound);
    EXPECT_EQ(corvelWithEffect({"render", folder / "in.ogg", folder / "out.ogg"}).status, 0);
    const SSound out = readSound(folder / "out.ogg");
    EXPECT_EQ(out.frames(), 200000u);
    EXPECT_EQ(out.format, SF_FORMAT_OGG | SF_FORMAT_VORBIS);
}

TEST_F(Render, ClippedIntegersAreCountedInAWarning) {
    SSound sound = voice(11, 100, 2);
    for (double &sample : sound.samples)
        sample = 0.25;
    sound.samples[10] = sound.samples[20] = 0.75;
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    const SSound out = render(sound, {"--set", "Gain=@1"});
    EXPECT_EQ(run.errors,
              "corvel: warning: " + (folder / "out.wav").string() + ": 2 samples clipped\n");
    EXPECT_EQ(out.samples[10], 32767.0 / 32768.0);
}

TEST_F(Render, FloatingPointSamplesAreNotClipped) {
    SSound sound = voice(11, 100, 2);
    sound.samples[10] = 0.75;
    EXPECT_GT(render(sound, {"--set", "Gain=@1"}).samples[10], 1.4);
    EXPECT_EQ(run.errors, "");
}

TEST_F(Render, TheResultIsPrintedAsText) {
    SSound sound;
    sound.samples.assign(2 * 44100, 0.5);
    render(sound, {"--set", "gain=@0.25", "--chain", "Gate,Reverb"});
    const std::string in = folder / "in.wav", out = folder / "out.wav";
    EXPECT_THAT(run.out,
                HasSubstr("in         " + in + " (44100 Hz, stereo, WAV, 32-bit float)\n"));
    EXPECT_THAT(run.out,
                HasSubstr("out        " + out + " (44100 Hz, stereo, WAV, 32-bit float)\n"));
    EXPECT_THAT(run.out, HasSubstr("duration   0:01.000\n"));
    EXPECT_THAT(run.out, HasSubstr("program    Plain\n"));
    EXPECT_THAT(run.out, HasSubstr("chain      Gate, Reverb\n"));
    EXPECT_THAT(run.out, HasSubstr("set        Gain = -3.00 dB\n"));
    EXPECT_THAT(run.out, HasSubstr("level in   peak -6.02 dBFS, RMS -6.02 dBFS\n"));
    EXPECT_THAT(run.out, HasSubstr("level out  peak -9.02 dBFS, RMS -9.02 dBFS\n"));
    EXPECT_THAT(run.out, testing::ContainsRegex("speed      [0-9.]+ times real time\n"));
}

TEST_F(Render, TheResultIsPrintedAsJson) {
    SSound sound;
    sound.channels = 1;
    sound.samples.assign(22050, -0.5);
    render(sound, {"--json", "--program", "Loud", "--set", "Link=Linked"});
    const nlohmann::json json = result();
    EXPECT_EQ(json["effect"], testEffect("Whole"));
    EXPECT_EQ(json["program"], "Loud");
    EXPECT_EQ(json["chain"], nlohmann::json({"Rumble Filter", "Compressor"}));
    EXPECT_EQ(json["set"]["Link"], "Linked");
    EXPECT_EQ(json["status"], "rendered");
    EXPECT_EQ(json["in"], (folder / "in.wav").string());
    EXPECT_EQ(json["out"], (folder / "out.wav").string());
    EXPECT_EQ(json["sampleRate"], 44100);
    EXPECT_EQ(json["channelsIn"], 1);
    EXPECT_EQ(json["channelsOut"], 2);
    EXPECT_EQ(json["framesIn"], 22050);
    EXPECT_EQ(json["framesOut"], 22050);
    EXPECT_EQ(json["seconds"], 0.5);
    EXPECT_NEAR(json["levelIn"]["peak"].get<double>(), -6.02, 0.01);
    EXPECT_NEAR(json["levelOut"]["rms"].get<double>(), -0.02, 0.01);
    EXPECT_EQ(json["clippedSamples"], 0);
    EXPECT_GT(json["timesRealTime"].get<double>(), 0.0);
}

TEST_F(Render, SeveralFilesInAFolderEqualSingleRuns) {
    std::vector<std::string> arguments = {"render"};
    for (unsigned i = 0; i < 7; ++i) {
        const std::string in = folder / ("in" + std::to_string(i) + ".wav");
        writeSound(in, voice(i, 5000 * (i + 1)));
        arguments.push_back(in);
    }
    arguments.insert(arguments.end(), {folder / "out/", "--json", "--set", "Gain=0.6"});
    run = corvelWithEffect(arguments);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(jsonLines(run.out).size(), 7u);
    for (unsigned i = 0; i < 7; ++i) {
        const std::string name = "in" + std::to_string(i) + ".wav";
        corvelWithEffect(
            {"render", folder / name, folder / "alone.wav", "--set", "Gain=0.6", "--force"});
        EXPECT_EQ(readFile(folder.path() / "out" / name), readFile(folder / "alone.wav")) << name;
    }
}

TEST_F(Render, ABatchIsReportedInTheOrderOfItsInputs) {
    std::vector<std::string> arguments = {"render"};
    std::vector<std::string> names;
    for (unsigned i = 0; i < 6; ++i) {
        names.push_back(folder / (std::to_string(i) + ".wav"));
        writeSound(names.back(), voice(i, i % 2 == 0 ? 60000 : 10));
        arguments.push_back(names.back());
    }
    arguments.push_back(folder / "out/");
    run = corvelWithEffect(arguments);
    std::size_t last = 0;
    for (const std::string &name : names) {
        const std::size_t place = run.out.find("in         " + name + " (");
        ASSERT_NE(place, std::string::npos) << name;
        EXPECT_GE(place, last);
        last = place;
    }
}

TEST_F(Render, NoProgressBarIsDrawnInAPipe) {
    render(voice(11, 300000));
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.out, Not(HasSubstr("\x1b")));
}

TEST_F(Render, ALongDurationIsPrintedInHours) {
    SSound sound = voice(11, 10, 1);
    sound.sampleRate = 8;
    sound.samples.resize(8 * 49886, 0.0);  // 13 hours, 51 minutes and 26 seconds
    render(sound);
    EXPECT_THAT(run.out, HasSubstr("duration   13:51:26\n"));
    sound.samples.resize(8 * 3599);
    render(sound);
    EXPECT_THAT(run.out, HasSubstr("duration   59:59.000\n"));
}
