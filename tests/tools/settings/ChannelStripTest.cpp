#include "corvel/effect/CEffectInstance.h"
#include "corvel/settings/CEffectSettings.h"
#include "corvel/settings/CParameterText.h"
#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// Tests of the command-line host together with the built effect

using namespace Tessitor::Tool;

namespace {

class ChannelStrip : public testing::Test {
protected:
    SSound render(const SSound &sound, std::vector<std::string> options) {
        writeSound(folder / "in.wav", sound);
        options.insert(options.begin(),
                       {"render", folder / "in.wav", folder / "out.wav", "--force"});
        const SProgramRun run = corvel(options);
        EXPECT_EQ(run.status, 0) << run.errors;
        notes = run.errors;
        return readSound(folder / "out.wav");
    }

    CTemporaryFolder folder;
    std::string notes;
};

}  // namespace

TEST_F(ChannelStrip, IsFoundNextToTheProgram) {
    const auto info = nlohmann::json::parse(corvel({"info", "--json"}).out);
    EXPECT_EQ(std::filesystem::canonical(info["file"].get<std::string>()),
              std::filesystem::canonical(CORVEL_EFFECT));
    EXPECT_EQ(info["name"], "Corvel");
    EXPECT_EQ(info["entries"], nlohmann::json({"VSTPluginMain", "main"}));
    EXPECT_EQ(info["canDo"]["2in2out"], 1);
    EXPECT_EQ(info["inputPins"][0]["label"], "Left input");
}

TEST_F(ChannelStrip, ListsItsProgramsWithTheirChains) {
    const auto programs = nlohmann::json::parse(corvel({"programs", "--json"}).out);
    ASSERT_EQ(programs.size(), 20u);
    EXPECT_EQ(programs[0]["name"], "Lead Vocal");
    EXPECT_EQ(programs[0]["chain"],
              nlohmann::json({"Rumble Filter", "Compressor", "3Band", "Reverb"}));
    EXPECT_EQ(programs[19]["name"], "Empty");
    EXPECT_EQ(programs[19]["chain"], nlohmann::json::array());
}

TEST_F(ChannelStrip, ListsTheParametersOfAProgram) {
    const auto parameters =
        nlohmann::json::parse(corvel({"params", "--program", "Empty", "--json"}).out);
    ASSERT_EQ(parameters.size(), 64u);
    EXPECT_EQ(parameters[17], (nlohmann::json{{"parameter", 17},
                                              {"name", "GateThrsh"},
                                              {"value", 0.485},
                                              {"display", "-30.90"},
                                              {"unit", "dB"},
                                              {"default", 0.5},
                                              {"defaultDisplay", "-30.00"},
                                              {"range", "-60.00 to 0.00 dB or -oo"}}));
}

TEST_F(ChannelStrip, EveryDisplayedTextCanBeSet) {
    const CEffectLibrary library(CORVEL_EFFECT);
    CEffectInstance effect(library);
    for (std::int32_t index = 0; index < 62; ++index) {
        const std::string unit = effect.text(effGetParamLabel, index);
        const auto display = [&](float value) {
            effect.setParameter(index, value);
            return effect.text(effGetParamDisplay, index);
        };
        const CParameterText parameter(unit, display);
        for (int step = 0; step <= 40; ++step) {
            const std::string text = display(static_cast<float>(step) / 40.0f);
            // Without a unit, a number from 0 to 1 is the normalised value.
            if (text == "0" || text == "1")
                continue;
            EXPECT_EQ(display(parameter.valueOf(text + unit)), text)
                << effect.text(effGetParamName, index);
        }
    }
}

TEST_F(ChannelStrip, TheEmptyProgramPassesAVoiceBitForBit) {
    const SSound sound = voice(31, 100000);
    EXPECT_EQ(render(sound, {"--program", "Empty"}).samples, sound.samples);
    EXPECT_EQ(render(sound, {"--program", "Empty", "--double"}).samples, sound.samples);
    EXPECT_EQ(render(sound, {"--chain", "none", "--set", "InMono=Stereo"}).samples, sound.samples);
}

TEST_F(ChannelStrip, TheEmptyProgramKeepsIntegers) {
    for (const int type : {SF_FORMAT_PCM_16, SF_FORMAT_PCM_24}) {
        SSound sound = voice(31, 10000);
        sound.samples[0] = -1.0;
        sound.format = SF_FORMAT_WAV | type;
        EXPECT_EQ(render(sound, {"--program", "Empty"}).samples, sound.samples);
    }
}

TEST_F(ChannelStrip, AMonoFileFeedsBothChannels) {
    const SSound sound = voice(31, 10000, 1);
    const SSound stereo = render(sound, {"--program", "Empty"});
    ASSERT_EQ(stereo.frames(), sound.frames());
    for (std::size_t i = 0; i < sound.frames(); ++i) {
        ASSERT_EQ(stereo.samples[2 * i], sound.samples[i]);
        ASSERT_EQ(stereo.samples[2 * i + 1], sound.samples[i]);
    }
    const SSound mono = render(sound, {"--program", "Empty", "--mono"});
    EXPECT_EQ(mono.channels, 1);
    EXPECT_EQ(mono.samples, sound.samples);
}

TEST_F(ChannelStrip, TheMonoSumIsTheMeanOfBothChannels) {
    const SSound sound = voice(31, 10000, 1);
    const std::vector<std::string> settings = {"--program", "Empty", "--chain",
                                               "Balance",   "--set", "Balance=100:40"};
    std::vector<std::string> summed = settings;
    summed.push_back("--mono");
    const SSound stereo = render(sound, settings), mono = render(sound, summed);
    for (std::size_t i = 0; i < sound.frames(); ++i)
        ASSERT_EQ(static_cast<float>(mono.samples[i]),
                  (static_cast<float>(stereo.samples[2 * i]) +
                   static_cast<float>(stereo.samples[2 * i + 1])) *
                      0.5f);
}

TEST_F(ChannelStrip, TheChainChangesTheSound) {
    const SSound sound = voice(31, 20000);
    const SSound dry = render(sound, {"--program", "Empty"});
    const SSound wet = render(
        sound, {"--program", "Empty", "--chain", "rumble filter,3Band", "--set", "3EQMid=6dB"});
    EXPECT_NE(wet.samples, dry.samples);
}

TEST_F(ChannelStrip, AllSixteenModulesRunTogether) {
    render(voice(31, 20000),
           {"--chain", "Balance,Pan,Gain,3Band,Rumble Filter,HiPass,Presence,Parametric,Gate,"
                       "Compressor,DeEsser,Modulator 1,Modulator 2,Warmer,Delay,Reverb"});
}

TEST_F(ChannelStrip, TheTempoSetsTheDelay) {
    const SSound sound = voice(31, 44100);
    const auto delayed = [&](const char *tempo) {
        return render(sound, {"--program", "Empty", "--chain", "Delay", "--set", "DlySync=Crotchet",
                              "--tempo", tempo})
            .samples;
    };
    EXPECT_NE(delayed("120"), delayed("180"));
    EXPECT_EQ(delayed("120"), delayed("120.0"));
}

TEST_F(ChannelStrip, BlockSizesDoNotChangeTheSound) {
    const SSound sound = voice(31, 30000);
    const SSound expected = render(sound, {"--program", "Pop Vocal"});
    for (const char *size : {"1", "100", "16384"})
        EXPECT_EQ(render(sound, {"--program", "Pop Vocal", "--block", size}).samples,
                  expected.samples)
            << size;
}

TEST_F(ChannelStrip, ABatchGivesTheSameSoundAsSingleRuns) {
    std::vector<std::string> arguments = {"render"};
    for (unsigned i = 0; i < 5; ++i) {
        arguments.push_back(folder / (std::to_string(i) + ".wav"));
        writeSound(arguments.back(), voice(i, 20000 + 1000 * i));
    }
    arguments.insert(arguments.end(), {folder / "batch/", "--program", "Pop Vocal"});
    ASSERT_EQ(corvel(arguments).status, 0);
    for (unsigned i = 0; i < 5; ++i) {
        const SSound alone = render(voice(i, 20000 + 1000 * i), {"--program", "Pop Vocal"});
        EXPECT_EQ(readSound(folder / ("batch/" + std::to_string(i) + ".wav")).samples,
                  alone.samples);
    }
}

TEST_F(ChannelStrip, EveryProgramIsDescribed) {
    const auto programs = nlohmann::json::parse(corvel({"programs", "--describe", "--json"}).out);
    for (const auto &program : programs)
        EXPECT_NE(program["description"], "") << program["name"];
    EXPECT_THAT(
        corvel({"programs", "--describe"}).out,
        testing::HasSubstr("11  Choir                Makes a few voices sound like a choir"));
}

TEST_F(ChannelStrip, AHardPanIsHeard) {
    const SSound sound = voice(31, 2000);
    const auto panned = [&](const char *pan) {
        return render(sound,
                      {"--program", "Empty", "--chain", "Pan", "--set", std::string("Pan=") + pan});
    };
    const SSound left = panned("100:0"), right = panned("0:100");
    for (std::size_t i = 0; i < sound.frames(); ++i) {
        const float l = static_cast<float>(sound.samples[2 * i]),
                    r = static_cast<float>(sound.samples[2 * i + 1]);
        ASSERT_EQ(left.samples[2 * i], l + r);
        ASSERT_EQ(left.samples[2 * i + 1], 0.0);
        ASSERT_EQ(right.samples[2 * i], 0.0);
        ASSERT_EQ(right.samples[2 * i + 1], l + r);
    }
    EXPECT_EQ(panned("100:100").samples, sound.samples);
}

TEST_F(ChannelStrip, ASynchronisedDelayIsHeardInAnyOrder) {
    const SSound sound = voice(31, 60000);
    const auto delayed = [&](const std::vector<std::string> &values, const char *tempo) {
        std::vector<std::string> options = {"--program", "Empty",   "--chain",
                                            "Delay",     "--tempo", tempo};
        for (const std::string &value : values)
            options.insert(options.end(), {"--set", value});
        return render(sound, options).samples;
    };
    for (const char *const tempo : {"120", "150"}) {
        const std::vector<double> expected = delayed({"DlySync=Crotchet"}, tempo);
        EXPECT_EQ(delayed({"DlySync=Crotchet", "DlyTime=300ms"}, tempo), expected);
        EXPECT_EQ(notes,
                  "corvel: note: --set DlyTime: has no effect, since DlySync makes the delay "
                  "follow the tempo\n");
        EXPECT_EQ(delayed({"DlyTime=300ms", "DlySync=Crotchet"}, tempo), expected);
        const std::vector<double> free = delayed({"DlyTime=300ms"}, tempo);
        EXPECT_NE(free, expected);
        EXPECT_EQ(delayed({"DlySync=ms", "DlyTime=300ms"}, tempo), free);
        EXPECT_EQ(delayed({"DlyTime=300ms", "DlySync=ms"}, tempo), free);
    }
}

TEST_F(ChannelStrip, ATimeIsHeardInAProgramThatFollowsTheTempo) {
    const SSound sound = voice(31, 40000);
    const auto delayed = [&](const char *tempo) {
        return render(sound, {"--program", "BV (Pop)", "--chain", "Delay", "--set", "DlyTime=300ms",
                              "--tempo", tempo})
            .samples;
    };
    EXPECT_EQ(delayed("120"), delayed("150"));
    EXPECT_EQ(notes, "corvel: note: --set DlyTime: DlySync is set to ms, since in this program the "
                     "delay follows the tempo\n");
}

TEST_F(ChannelStrip, EveryParameterIsHeardAsItWasAskedFor) {
    const CEffectLibrary library(CORVEL_EFFECT);
    for (std::int32_t index = 0; index < 62; ++index) {
        for (const char *const value : {"0", "0.25", "0.5", "0.75", "1"}) {
            CEffectInstance trial(library), effect(library), other(library);
            const std::string name = effect.text(effGetParamName, index);
            const CEffectSettings settings({{}, {}, {name + "=@" + value}}, trial);
            settings.applyTo(effect);
            other.setParameter(index, 0.1f);
            other.setParameter(index, std::stof(value));
            std::string expected = other.text(effGetParamDisplay, index);
            if (expected == "-0.00")
                expected = "0.00";
            EXPECT_EQ(effect.text(effGetParamDisplay, index), expected) << name << value;
            EXPECT_EQ(effect.parameter(index), std::stof(value));
        }
    }
}

TEST_F(ChannelStrip, TheOrderOfTheParametersDoesNotMatter) {
    const SSound sound = voice(31, 20000);
    std::vector<std::string> values = {"RvSpread=80%",   "RvRmSize=200m2",   "Pan=60:100",
                                       "DlySync=Quaver", "CmpLink=Separate", "CmpRatio=4:1"};
    const auto rendered = [&] {
        std::vector<std::string> options = {"--chain", "Compressor,Pan,Delay,Reverb"};
        for (const std::string &value : values)
            options.insert(options.end(), {"--set", value});
        return render(sound, options).samples;
    };
    const std::vector<double> expected = rendered();
    std::reverse(values.begin(), values.end());
    EXPECT_EQ(rendered(), expected);
}

TEST_F(ChannelStrip, NotesSayWhatOptionsDoNotDo) {
    const SSound sound = voice(31, 100);
    render(sound, {"--double"});
    EXPECT_EQ(notes, "corvel: note: --double: in double precision the compressor and the de-esser "
                     "stay at rest\n");
    render(sound, {"--program", "Empty", "--double"});
    EXPECT_EQ(notes, "");
    render(sound, {"--block", "64"});
    EXPECT_EQ(notes, "");
    render(sound, {"--block", "64", "--set", "CmpLink=Separate"});
    EXPECT_EQ(notes, "corvel: note: --block: the length of the blocks changes the sound, since the "
                     "compressor is set to separate\n");
}

TEST_F(ChannelStrip, TheChainTakesNamesInAnyCapitals) {
    const SSound sound = voice(31, 1000);
    EXPECT_EQ(render(sound, {"--chain", "RUMBLE FILTER,deesser"}).samples,
              render(sound, {"--chain", "Rumble Filter,DeEsser"}).samples);
}
