#include "corvel/plot/Palette.h"
#include "tools/support/CPixels.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using Tessitor::Tool::colourOf;
using Tessitor::Tool::EInk;
using Tessitor::Tool::ETheme;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class PlotCommand : public testing::Test {
protected:
    std::string file(const std::string &name) const { return folder / name; }
    std::string contents(const std::string &name) const { return readFile(folder / name); }

    SProgramRun plot(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "plot");
        return corvel(arguments);
    }
    void expectPlot(const std::vector<std::string> &arguments) {
        const SProgramRun run = plot(arguments);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.errors, "");
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(PlotCommand, DrawsTheFormatThatTheEndingNames) {
    const SProgramRun run = plot({file("a.svg"), "--program", "Lead Vocal"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.out, testing::StartsWith(file("a.svg") + ": Lead Vocal, RT60 "));
    EXPECT_THAT(contents("a.svg"), testing::StartsWith("<?xml"));
    EXPECT_THAT(contents("a.svg"), HasSubstr("<title>Corvel: Lead Vocal</title>"));

    expectPlot({file("b.PNG"), "--program", "Empty"});
    const CPixels pixels(contents("b.PNG"));
    EXPECT_EQ(pixels.width(), 2400);
    EXPECT_EQ(pixels.height(), 1800);
    EXPECT_THAT(folder.names(), ElementsAre("a.svg", "b.PNG"));
}

TEST_F(PlotCommand, TwoRunsGiveTheSameBytes) {
    for (const char *ending : {".svg", ".png"}) {
        const std::string a = std::string("a") + ending, b = std::string("b") + ending;
        expectPlot({file(a), "--program", "Pop Vocal"});
        expectPlot({file(b), "--program", "Pop Vocal"});
        EXPECT_EQ(contents(a), contents(b));
    }
}

TEST_F(PlotCommand, EveryProgramCanBeDrawn) {
    for (int program = 0; program < 20; ++program)
        expectPlot({file("a.svg"), "--force", "--program", std::to_string(program)});
}

TEST_F(PlotCommand, AnExistingFileIsOnlyReplacedWithForce) {
    writeFile(folder / "a.svg", "mine");
    expectOneError(plot({file("a.svg")}), 1, "a.svg: exists already; --force replaces it");
    EXPECT_EQ(contents("a.svg"), "mine");
    expectPlot({file("a.svg"), "--force"});
    EXPECT_THAT(contents("a.svg"), testing::StartsWith("<?xml"));
    EXPECT_THAT(folder.names(), ElementsAre("a.svg"));
}

TEST_F(PlotCommand, WrongCallsAreRefusedInOneLine) {
    expectOneError(plot({}), 2, "corvel plot needs an output, such as voice.svg, or --json");
    expectOneError(plot({file("a.jpg")}), 2, "a.jpg: pictures are written as .svg or .png");
    expectOneError(plot({file("a")}), 2, "pictures are written as .svg or .png");
    expectOneError(plot({file("a.svg"), file("b.svg")}), 2, "corvel plot does not expect");
    expectOneError(plot({file("a.svg"), "--light", "--dark"}), 2,
                   "--light and --dark exclude each other");
    expectOneError(plot({file("a.svg"), "--scale", "2"}), 2,
                   "--scale is for .png; an .svg can be shown at any size");
    expectOneError(plot({"--json", "--dark"}), 2, "need an output, such as voice.svg");
    expectOneError(plot({file("a.svg"), "--program", "Nobody"}), 2, "no program \"Nobody\"");
    expectOneError(plot({file("a.svg"), "--chain", "Nothing"}), 2, "Nothing");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PlotCommand, OptionsRefuseWrongValues) {
    const struct {
        const char *option, *range;
        std::vector<std::string> wrong;
    } options[] = {
        {"--level", "is not a number from -80 to 0", {"-81", "1", "loud", "nan"}},
        {"--tone", "is not a number from 20 to 20000", {"19", "20001", "high", "-1"}},
        {"--tempo", "is not a number from 10 to 1000", {"9", "1001", "fast"}},
        {"--scale", "is not a number from 1 to 8", {"0", "9", "large"}},
    };
    for (const auto &[option, range, wrong] : options) {
        expectOneError(plot({file("a.png"), std::string(option) + "="}), 2,
                       std::string(option) + ": needs a value");
        for (const std::string &value : wrong)
            expectOneError(plot({file("a.png"), std::string(option) + "=" + value}), 2, range);
    }
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PlotCommand, AFailureLeavesNoFile) {
    expectOneError(plot({file("none/a.svg")}), 1, "none/a.svg: ");
    expectOneError(plot({file("a.svg"), "--preset", file("no.fxp")}), 1, "no.fxp: no such file");
    expectOneError(plot({file("a.svg"), "--plugin", file("no.so")}), 1, "no.so: ");
    expectOneError(plot({file("a.svg"), "--plugin", testEffect("OneChannel")}), 1,
                   "only a stereo effect");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PlotCommand, APictureThatDoesNotFitOnTheDiskLeavesNoFile) {
    for (const char *name : {"a.svg", "a.png"})
        expectOneError(corvel({"plot", file(name)}, "ulimit -f 10;"), 1,
                       std::string(name) + ": cannot be written");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PlotCommand, NamesAreTakenAsTyped) {
    for (const char *name : {"[a].svg", "a=b,c.svg", "--dark.svg"}) {
        const SProgramRun run =
            corvel({"plot", "--program", "Empty", "--", name}, "cd '" + file("") + "' &&");
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(run.out, std::string(name) + ": Empty, no tail\n");
    }
    EXPECT_THAT(folder.names(), ElementsAre("--dark.svg", "[a].svg", "a=b,c.svg"));
}

TEST_F(PlotCommand, ColoursAndScaleCanBeChosen) {
    expectPlot({file("dark.png"), "--program", "Empty", "--dark", "--scale", "1"});
    const CPixels pixels(contents("dark.png"));
    EXPECT_EQ(pixels.width(), 1200);
    EXPECT_EQ(pixels.at(2, 2), colourOf(EInk::Paper, ETheme::Dark));
    expectPlot({file("light.png"), "--program", "Empty"});
    EXPECT_EQ(CPixels(contents("light.png")).at(2, 2), colourOf(EInk::Paper, ETheme::Light));

    expectPlot({file("any.svg"), "--program", "Empty"});
    expectPlot({file("dark.svg"), "--program", "Empty", "--dark"});
    expectPlot({file("light.svg"), "--program", "Empty", "--light"});
    EXPECT_THAT(contents("any.svg"), HasSubstr("prefers-color-scheme"));
    EXPECT_THAT(contents("dark.svg"), Not(HasSubstr("prefers-color-scheme")));
    EXPECT_THAT(contents("light.svg"), Not(HasSubstr("prefers-color-scheme")));
    EXPECT_NE(contents("dark.svg"), contents("light.svg"));
}

TEST_F(PlotCommand, JsonIsPrintedWithOrWithoutAPicture) {
    const SProgramRun alone = plot({"--program", "Empty", "--chain", "Gain", "--set", "Gain=-6dB",
                                    "--level", "-30", "--tone", "500", "--tempo", "99", "--json"});
    EXPECT_EQ(alone.status, 0);
    const auto json = nlohmann::json::parse(alone.out);
    EXPECT_EQ(json["program"], "Empty");
    EXPECT_EQ(json["chain"], "Gain");
    EXPECT_EQ(json["tempo"], 99.0);
    EXPECT_EQ(json["response"]["noiseLevel"], -30.0);
    EXPECT_NEAR(json["response"]["left"][50].get<double>(), -6.0, 0.02);
    EXPECT_EQ(json["levels"]["tone"], 500.0);
    EXPECT_EQ(json["decay"]["tail"], "none");
    EXPECT_THAT(folder.names(), IsEmpty());

    const SProgramRun both = plot({file("a.svg"), "--program", "Empty", "--json"});
    EXPECT_EQ(nlohmann::json::parse(both.out)["chain"], "none");
    EXPECT_THAT(folder.names(), ElementsAre("a.svg"));
}

TEST_F(PlotCommand, APresetCanBeDrawn) {
    ASSERT_EQ(corvel({"preset", "save", file("a.fxp"), "--program", "Choir"}).status, 0);
    expectPlot({file("a.svg"), "--preset", file("a.fxp")});
    expectPlot({file("b.svg"), "--program", "Choir"});
    EXPECT_EQ(contents("a.svg"), contents("b.svg"));
}

TEST_F(PlotCommand, OtherEffectsCanBeDrawn) {
    const auto json = nlohmann::json::parse(
        plot({file("a.svg"), "--plugin", testEffect("Stranger"), "--json"}).out);
    EXPECT_EQ(json["effect"], "Test effect");
    EXPECT_EQ(json["version"], 7);
    EXPECT_EQ(json["chain"], "");
}

TEST_F(PlotCommand, NeedsNoDisplay) {
    EXPECT_EQ(corvel({"plot", file("a.png")}, "DISPLAY= WAYLAND_DISPLAY=").status, 0);
}

TEST_F(PlotCommand, OnlyPicturesNeedCairo) {
    writeFile(folder / "libcairo.so.2", "no library");
    const std::string broken = "LD_LIBRARY_PATH=" + folder.path().string();
    EXPECT_EQ(corvel({"programs"}, broken).status, 0);
    EXPECT_EQ(corvel({"plot", "--json"}, broken).status, 0);
    expectOneError(corvel({"plot", file("a.svg")}, broken), 1,
                   "libcairo.so.2: cannot be loaded; pictures are drawn with it");
    EXPECT_THAT(folder.names(), ElementsAre("libcairo.so.2"));
}

TEST_F(PlotCommand, AnInterruptLeavesNoFile) {
    // Ends the program once it catches that signal, number 15, unless it is faster.
    const std::string script =
        "cd " + folder.path().string() +
        "; " CORVEL_PROGRAM " plot a.svg & "
        "until grep -q '^SigCgt:.*[4-7c-f]...$' /proc/$!/status || ! kill -0 $!; do :; done "
        "2>/dev/null; "
        "kill -TERM $! 2>/dev/null; wait $!";
    SProgramRun run{};
    for (int attempt = 0; attempt < 20 && run.status == 0; ++attempt) {
        std::filesystem::remove(folder / "a.svg");
        run = runProgram("sh", {"-c", script});
    }
    EXPECT_EQ(run.status, 143);
    EXPECT_EQ(run.errors, "corvel: terminated\n");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(PlotCommand, HelpNamesEveryOption) {
    const SProgramRun run = plot({"--help"});
    EXPECT_EQ(run.status, 0);
    for (const char *option :
         {"OUT", "--program", "--preset", "--set", "--chain", "--level", "--tone", "--tempo",
          "--light", "--dark", "--scale", "--force", "--plugin", "--json", "1200 x 900"})
        EXPECT_THAT(run.out, HasSubstr(option));
    EXPECT_THAT(corvel({"--help"}).out, HasSubstr("plot"));
}
