#include "corvel/settings/Chain.h"
#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using testing::HasSubstr;

namespace {

void expectWrongCall(const std::vector<std::string> &arguments, const std::string &words) {
    expectOneError(corvel(arguments), 2, words);
}

SProgramRun corvelWith(std::vector<std::string> arguments, const std::string &effect = "Whole") {
    arguments.insert(arguments.end(), {"--plugin", testEffect(effect)});
    return corvel(arguments);
}

}  // namespace

TEST(CommandLine, PrintsItsVersion) {
    const SProgramRun run = corvel({"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "corvel " CORVEL_VERSION "\n");
}

TEST(CommandLine, HelpListsEveryCommandAndOption) {
    const SProgramRun general = corvel({"--help"});
    EXPECT_EQ(general.status, 0);
    for (const char *command :
         {"render", "plot", "programs", "params", "info", "preset", "Exit status"})
        EXPECT_THAT(general.out, HasSubstr(command));
    const SProgramRun render = corvel({"render", "--help"});
    EXPECT_EQ(render.status, 0);
    for (const char *option :
         {"--program",  "--set",       "--chain",       "--tempo",    "--block",
          "--double",   "--tail",      "--format",      "--resample", "--mono",
          "--channels", "--raw",       "--start",       "--length",   "--json",
          "--plugin",   "--preset",    "--save-preset", "--loudness", "--clip",
          "--dither",   "--normalize", "--plot",        "--light",    "--dark"})
        EXPECT_THAT(render.out, HasSubstr(option));
    for (int slot = 2; slot < 18; ++slot)
        EXPECT_THAT(render.out, HasSubstr(std::string(Tessitor::Tool::moduleLabel(slot))));
}

TEST(CommandLine, WrongCommandsAreRefusedInOneLine) {
    expectWrongCall({}, "no command");
    expectWrongCall({"play"}, "there is no command \"play\"");
    expectWrongCall({"play", "in.wav", "--loud"}, "there is no command \"play\"");
    expectWrongCall({"--loud"}, "corvel has no option --loud");
    expectWrongCall({"render"}, "corvel render needs an input and an output");
    expectWrongCall({"render", "in.wav"}, "corvel render needs an input and an output");
    expectWrongCall({"render", "in.wav", "out.wav", "--loud"},
                    "corvel render has no option --loud");
    expectWrongCall({"render", "in.wav", "out.wav", "--loud", "--very"},
                    "corvel render has no option --loud");
    expectWrongCall({"render", "in.wav", "out.wav", "--program"}, "--program: needs a value");
    expectWrongCall({"render", "in.wav", "out.wav", "--tempo", "99", "--tempo", "98"},
                    "--tempo: may be given only once");
    expectWrongCall({"preset", "save", "a.fxp", "--program", "1", "--preset", "b.fxp"},
                    "--program and --preset exclude each other");
    expectWrongCall({"render", "in.wav", "out.wav", "--block", "1.5"},
                    "--block: 1.5 is not a whole number");
    expectWrongCall({"info", "a.so", "b.so"}, "corvel info does not expect \"b.so\"");
    expectWrongCall({"programs", "--", "-x"}, "corvel programs does not expect \"-x\"");
    expectWrongCall({"programs", "++"}, "corvel programs does not expect \"++\"");
    expectWrongCall({"preset", "save", "a.fxp", "b.fxp"},
                    "corvel preset save does not expect \"b.fxp\"");
    expectWrongCall({"params", "--program", "7", "--plugin", testEffect("Whole")},
                    "no program \"7\"");
}

TEST(CommandLine, TheEffectInAFolderOfHostsIsFound) {
    const CTemporaryFolder folder;
    std::filesystem::create_directories(folder / "bin");
    std::filesystem::create_directories(folder / "effects");
    std::filesystem::copy(CORVEL_PROGRAM, folder / "bin/corvel");
    const std::string vstPath = "VST_PATH=" + (folder / "effects").string();

    const SProgramRun run = runProgram(folder / "bin/corvel", {"programs"}, vstPath);
    expectOneError(run, 1, "Corvel.so was not found in any of these folders: ");
    for (const char *place : {"plugin, ", "bin, ", "lib/vst, ", "effects (name the file with"})
        EXPECT_THAT(run.errors, HasSubstr((folder / place).string()));

    std::filesystem::copy(testEffect("Whole"), folder / "effects/Corvel.so");
    EXPECT_EQ(runProgram(folder / "bin/corvel", {"programs"}, vstPath).status, 0);
}

TEST(CommandLine, TheEffectNextToTheProgramIsFound) {
    const CTemporaryFolder folder;
    std::filesystem::create_directories(folder / "bin");
    std::filesystem::copy(CORVEL_PROGRAM, folder / "bin/corvel");
    const std::string program = folder / "bin/corvel";

    std::filesystem::copy(testEffect("Whole"), folder / "bin/Corvel.so");
    SProgramRun run = runProgram(program, {"programs"});
    EXPECT_EQ(run.status, 0);

    // The plugin folder comes first.
    std::filesystem::create_directories(folder / "plugin");
    std::filesystem::copy(testEffect("NoEntry"), folder / "plugin/Corvel.so");
    run = runProgram(program, {"programs"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("plugin/Corvel.so: not a VST 2 effect"));

    // A link to the program does not change where the effect is looked for.
    std::filesystem::create_symlink(program, folder / "link");
    EXPECT_THAT(runProgram(folder / "link", {"programs"}).errors,
                HasSubstr("plugin/Corvel.so: not a VST 2 effect"));
}

TEST(CommandLine, ProgramsAreListed) {
    const SProgramRun run = corvelWith({"programs"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "#  Name   Chain\n"
                       "0  Plain\n"
                       "1  Loud   Rumble Filter, Compressor\n"
                       "2  Empty\n");
    const nlohmann::json json = nlohmann::json::parse(corvelWith({"programs", "--json"}).out);
    ASSERT_EQ(json.size(), 3u);
    EXPECT_EQ(json[1],
              (nlohmann::json{
                  {"program", 1}, {"name", "Loud"}, {"chain", {"Rumble Filter", "Compressor"}}}));
    EXPECT_EQ(json[2]["chain"], nlohmann::json::array());
}

TEST(CommandLine, ProgramsOfOtherEffectsHaveNoChain) {
    EXPECT_EQ(corvelWith({"programs"}, "Stranger").out, "#  Name\n"
                                                        "0  Plain\n"
                                                        "1  Loud\n"
                                                        "2  Empty\n");
}

TEST(CommandLine, ParametersAreListed) {
    const SProgramRun run = corvelWith({"params", "--program", "loud"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "#  Name   Value  Display   Unit  Default   Range\n"
                       "0  Gain   1      6.00      dB    0.00      -6.00 to 6.00 dB\n"
                       "1  Freq   0.25   200       Hz    200       100 to 1600 Hz\n"
                       "2  Link   0      Separate        Separate  Separate, Linked\n"
                       "3  Ratio  0      1.0:1           1.0:1     1.0:1 to 8.0:1\n"
                       "4  Route  0      Combine         Combine   Combine, AllLeft, AllRight, "
                       "Stereo\n"
                       "5         0\n");
    const nlohmann::json json =
        nlohmann::json::parse(corvelWith({"params", "--program", "1", "--json"}).out);
    ASSERT_EQ(json.size(), 6u);
    EXPECT_EQ(json[0], (nlohmann::json{{"parameter", 0},
                                       {"name", "Gain"},
                                       {"value", 1.0},
                                       {"display", "6.00"},
                                       {"unit", "dB"},
                                       {"default", 0.5},
                                       {"defaultDisplay", "0.00"},
                                       {"range", "-6.00 to 6.00 dB"}}));
}

TEST(CommandLine, HelpIsHelp) {
    EXPECT_EQ(corvel({"help"}).out, corvel({"--help"}).out);
    EXPECT_EQ(corvel({"help"}).status, 0);
    EXPECT_EQ(corvel({"help", "render"}).out, corvel({"render", "--help"}).out);
    EXPECT_THAT(corvel({"help", "render"}).out, HasSubstr("compressor and de-esser stay at rest"));
}

TEST(CommandLine, InfoTakesTheEffectByOptionToo) {
    EXPECT_EQ(corvel({"info", "--plugin", testEffect("Late")}).out,
              corvel({"info", testEffect("Late")}).out);
    expectWrongCall({"info", "--plugin", "a", "b"}, "--plugin");
}

TEST(CommandLine, ANameThatFitsSeveralProgramsIsRefused) {
    expectWrongCall({"params", "--program", "rock"},
                    "--program: \"rock\" may be \"Rock Vocal (Insert)\", \"Rock Vocal (Send)\"");
    EXPECT_EQ(corvel({"params", "--program", "rock vocal (s"}).out,
              corvel({"params", "--program", "Rock Vocal (Send)"}).out);
}

TEST(CommandLine, InfoShowsWhatAHostSees) {
    const SProgramRun run = corvel({"info", testEffect("Late")});
    EXPECT_EQ(run.status, 0);
    for (const char *line :
         {"entry       VSTPluginMain\n", "name        Test effect\n",
          "vendor      Test vendor, version 0\n", "interface   VST 2400\n", "category    unknown\n",
          "unique id   0x6B4D7251, in memory \"QrMk\"\n", "version     7\n",
          "flags       CanReplacing, ProgramChunks, CanDoubleReplacing\n", "programs    3\n",
          "parameters  6\n", "inputs      2\n", "outputs     2\n", "latency     1000 frames\n",
          "editor      none\n", "input pin   Left input (L, active, stereo)\n",
          "output pin  Right output (R, active, stereo)\n", "can do      2in2out\n",
          "cannot do   bypass\n"})
        EXPECT_THAT(run.out, HasSubstr(line));
}

TEST(CommandLine, InfoIsPrintedAsJson) {
    const nlohmann::json json =
        nlohmann::json::parse(corvel({"info", testEffect("OldEntry"), "--json"}).out);
    EXPECT_EQ(json["entries"], nlohmann::json({"main"}));
    EXPECT_EQ(json["uniqueIdLetters"], "QrMk");
    EXPECT_EQ(json["inputs"], 2);
    EXPECT_EQ(json["inputPins"][1]["label"], "Right input");
    EXPECT_EQ(json["canDo"]["2in2out"], 1);
    EXPECT_EQ(json["canDo"]["bypass"], -1);
    EXPECT_TRUE(json["editor"].is_null());
}

TEST(CommandLine, InfoFailsForAFileThatIsNotAnEffect) {
    const SProgramRun run = corvel({"info", CORVEL_PROGRAM});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("cannot be loaded as an effect"));
}
