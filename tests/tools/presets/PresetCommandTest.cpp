#include "corvel/presets/PresetFile.h"
#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"
#include "tools/support/StoredPrograms.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// The preset commands and options of corvel, with the built effect unless a test says otherwise

using namespace Tessitor::Tool;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class PresetCommand : public testing::Test {
protected:
    PresetCommand() { writeSound(folder / "in.wav", voice(41, 20000)); }

    /// Runs a preset command that succeeds. @return what it printed.
    static std::string preset(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "preset");
        const SProgramRun run = corvel(arguments);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.errors, "");
        return run.out;
    }

    static void expectFailure(int status, const std::string &words,
                              const std::vector<std::string> &arguments,
                              const std::string &environment = "") {
        expectOneError(corvel(arguments, environment), status, words);
    }

    SSound render(const std::vector<std::string> &options) {
        std::filesystem::remove(folder / "out.wav");
        std::vector<std::string> arguments = {"render", folder / "in.wav", folder / "out.wav"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const SProgramRun run = corvel(arguments);
        EXPECT_EQ(run.status, 0) << run.errors;
        return readSound(folder / "out.wav");
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(PresetCommand, ASavedPresetSoundsLikeItsSettings) {
    const std::vector<std::string> settings = {"--program", "Pop Vocal",    "--set",
                                               "Gain=-6dB", "--chain",      "Gain,Reverb",
                                               "--set",     "RvTime=3.00 s"};
    const SSound expected = render(settings);
    EXPECT_NE(render({"--program", "Pop Vocal"}).samples, expected.samples);
    for (const char *name : {"a.fxp", "a.json", "a.fxb"}) {
        std::vector<std::string> save = {"save", folder / name};
        save.insert(save.end(), settings.begin(), settings.end());
        EXPECT_EQ(preset(save), "");
        EXPECT_EQ(render({"--preset", folder / name}).samples, expected.samples) << name;
    }
}

TEST_F(PresetCommand, RenderSavesItsSettings) {
    const SSound expected = render(
        {"--program", "Choir", "--set", "DlyTime=400ms", "--save-preset", folder / "choir.json"});
    EXPECT_EQ(render({"--preset", folder / "choir.json"}).samples, expected.samples);
    expectFailure(
        1, "choir.json: exists already",
        {"render", folder / "in.wav", folder / "new.wav", "--save-preset", folder / "choir.json"});
    EXPECT_FALSE(std::filesystem::exists(folder / "new.wav"));
}

TEST_F(PresetCommand, APresetCanBeChangedFurther) {
    preset({"save", folder / "a.fxp", "--program", "Choir"});
    preset({"save", folder / "b.fxp", "--preset", folder / "a.fxp", "--set", "Gain=-6dB"});
    EXPECT_EQ(
        render({"--preset", folder / "a.fxp", "--set", "Gain=-6dB", "--chain", "Gain"}).samples,
        render({"--preset", folder / "b.fxp", "--chain", "Gain"}).samples);
}

TEST_F(PresetCommand, ABankHoldsAllProgramsOfTheEffect) {
    preset({"save", folder / "a.fxb", "--program", "3", "--set", "Gain=-6dB"});
    const SPreset bank = readPreset(folder / "a.fxb");
    EXPECT_EQ(bank.current, 3u);
    std::vector<Tessitor::Corvel::SProgram> expected = factoryPrograms();
    expected[3].parameters[kGain] = bank.programs[3].parameters[kGain];
    EXPECT_NE(expected, factoryPrograms());
    EXPECT_EQ(bank.programs, expected);
    EXPECT_EQ(render({"--preset", (folder / "a.fxb").string() + ":7"}).samples,
              render({"--program", "7"}).samples);
}

TEST_F(PresetCommand, ConvertKeepsEveryByte) {
    preset({"save", folder / "a.fxp", "--program", "BV (Pop)"});
    preset({"convert", folder / "a.fxp", folder / "a.json"});
    preset({"convert", folder / "a.json", folder / "b.fxp"});
    EXPECT_EQ(readFile(folder / "b.fxp"), readFile(folder / "a.fxp"));
    preset({"save", folder / "bank.fxb"});
    preset({"convert", (folder / "bank.fxb").string() + ":3", folder / "a.fxp", "--force"});
    EXPECT_EQ(readFile(folder / "b.fxp"), readFile(folder / "a.fxp"));
}

TEST_F(PresetCommand, ShowPrintsAProgramLikeParams) {
    preset({"save", folder / "a.fxp", "--program", "Choir"});
    const std::string shown = preset({"show", folder / "a.fxp"});
    EXPECT_THAT(shown, StartsWith("program  \"Choir\"\n"
                                  "chain    HiPass, DeEsser, Modulator 1, Delay, Reverb\n\n"
                                  "#   Name       Value  Display  Unit\n"
                                  "0   InGain     0.5    0.00     dB\n"));
    EXPECT_THAT(shown, HasSubstr("\n47  DlyTime    0.52   804      ms\n"));
    EXPECT_THAT(shown, testing::EndsWith("\n63             0\n"));
}

TEST_F(PresetCommand, ShowListsABank) {
    preset({"save", folder / "a.fxb"});
    const std::string list = preset({"show", folder / "a.fxb"});
    EXPECT_THAT(list, HasSubstr("\n3   \"BV (Pop)\"             HiPass, Compressor,"));
    EXPECT_THAT(list, HasSubstr("\n19  \"Empty\"                none\n"));
    EXPECT_THAT(preset({"show", (folder / "a.fxb").string() + ":3"}),
                StartsWith("program  \"BV (Pop)\"\n"));
}

TEST_F(PresetCommand, ShowPrintsTheTextForm) {
    preset({"save", folder / "a.json", "--program", "Choir"});
    EXPECT_EQ(preset({"show", folder / "a.json", "--json"}), readFile(folder / "a.json"));
}

TEST_F(PresetCommand, ShowEscapesControlCharactersInNames) {
    SPreset odd{{factoryPrograms()[0]}, 0};
    odd.programs[0].name = {'\x1b', '[', '2', 'J', '\n'};
    writePreset(folder / "odd.fxp", odd, false);
    EXPECT_THAT(preset({"show", folder / "odd.fxp"}), StartsWith("program  \"\\x1B[2J\\n\"\n"));
}

TEST_F(PresetCommand, CheckGoesThroughAllFiles) {
    preset({"save", folder / "good.fxp"});
    preset({"save", folder / "bank.fxb"});
    writeFile(folder / "bad.fxp", "bad");
    const SProgramRun run =
        corvel({"preset", "check", folder / "good.fxp", folder / "bad.fxp", folder / "bank.fxb"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, (folder / "good.fxp").string() + ": the program \"Lead Vocal\"\n" +
                           (folder / "bank.fxb").string() + ": a bank of 20 programs\n");
    EXPECT_EQ(run.errors, "corvel: " + (folder / "bad.fxp").string() +
                              ": not a preset (it does not start with \"CcnK\")\n");
}

TEST_F(PresetCommand, NothingOfABadPresetReachesTheEffect) {
    SPreset circle{{factoryPrograms()[0]}, 0};
    circle.programs[0].order[kReverbSlot].next = kReverbSlot;
    writePreset(folder / "circle.fxp", circle, false);
    writePreset(folder / "good.fxp", {{factoryPrograms()[0]}, 0}, false);
    const std::string log = "CORVEL_TEST_LOG=" + (folder / "log").string();
    const auto arguments = [&](const char *file) {
        return std::vector<std::string>{"render",           folder / "in.wav", folder / "out.wav",
                                        "--preset",         folder / file,     "--plugin",
                                        testEffect("Whole")};
    };
    expectFailure(1, "circle.fxp: the chain runs in a circle through Reverb",
                  arguments("circle.fxp"), log);
    EXPECT_EQ(readFile(folder / "log"), "0 open\n0 close\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.wav"));

    EXPECT_EQ(corvel(arguments("good.fxp"), log).status, 0);
    EXPECT_THAT(readFile(folder / "log"), HasSubstr(" chunk 1 424\n"));
}

TEST_F(PresetCommand, WrongCallsAreRefused) {
    const std::string file = folder / "a.fxp";
    expectFailure(2, "no command; use show, save, convert or check", {"preset"});
    expectFailure(2, "a.txt: not a preset file's ending; use .fxp, .fxb or .json",
                  {"preset", "save", folder / "a.txt"});
    expectFailure(2, "--pr", {"preset", "save", file, "--program", "1", "--preset", file});
    expectFailure(2, "--set: no parameter", {"preset", "save", file, "--set", "Gian=1"});
    expectFailure(2, "Stranger.so: not a Corvel effect",
                  {"preset", "save", file, "--plugin", testEffect("Stranger")});
    expectFailure(1, "Whole.so: the effect's state has 424 bytes, not 8480",
                  {"preset", "save", folder / "a.fxb", "--plugin", testEffect("Whole")});
    EXPECT_FALSE(std::filesystem::exists(file));
    preset({"save", file});
    expectFailure(1, "a.fxp: exists already; --force replaces it", {"preset", "save", file});
    expectFailure(2, "--preset: ",
                  {"render", folder / "in.wav", folder / "out.wav", "--preset", file, "--plugin",
                   testEffect("Stranger")});
}

TEST_F(PresetCommand, HelpExplainsTheFormats) {
    const SProgramRun run = corvel({"preset", "--help"});
    EXPECT_EQ(run.status, 0);
    for (const char *word : {"show", "save", "convert", "check", ".fxp", ".fxb", ".json", "FILE:N"})
        EXPECT_THAT(run.out, HasSubstr(word));
}
