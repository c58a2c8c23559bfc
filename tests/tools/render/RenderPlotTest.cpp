#include "tools/support/AudioFiles.h"
#include "tools/support/CPixels.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

#include <gmock/gmock.h>

// The option --plot of `corvel render`.

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using namespace Tessitor::Tool;

namespace {

class RenderPlot : public testing::Test {
protected:
    RenderPlot() {
        writeSound(folder / "in.wav", voice(1, 60000));
        writeSound(folder / "loud.wav", voice(2, 30000, 1));
    }

    SProgramRun render(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "render");
        arguments.insert(arguments.end(), {"--plugin", testEffect("Whole")});
        return corvel(arguments, "cd " + folder.path().string() + ";");
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(RenderPlot, DrawsBesidesRendering) {
    const SProgramRun run = render({"in.wav", "out.wav", "--plot", "picture.svg"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    const std::string svg = readFile(folder / "picture.svg");
    EXPECT_THAT(svg, StartsWith("<?xml"));
    EXPECT_THAT(svg, HasSubstr("<desc>from in.wav, Plain:"));
    EXPECT_THAT(svg, HasSubstr("prefers-color-scheme"));
    EXPECT_THAT(run.out, HasSubstr(" LUFS, true peak "));
    EXPECT_EQ(readSound(folder / "out.wav").samples, readSound(folder / "in.wav").samples);
    EXPECT_EQ(folder.names(),
              (std::vector<std::string>{"in.wav", "loud.wav", "out.wav", "picture.svg"}));
}

TEST_F(RenderPlot, NamesTheGain) {
    render({"in.wav", "out.wav", "--plot", "picture.svg", "--normalize", "-16LUFS"});
    EXPECT_THAT(readFile(folder / "picture.svg"), HasSubstr(" dB, to -16 LUFS:"));
}

TEST_F(RenderPlot, APictureInPixelsIsLightUnlessAsked) {
    const struct {
        const char *option;
        ETheme theme;
    } cases[] = {{"--json", ETheme::Light}, {"--light", ETheme::Light}, {"--dark", ETheme::Dark}};
    for (const auto &[option, theme] : cases) {
        const SProgramRun run =
            render({"in.wav", "out.wav", "--plot", "picture.PNG", "--force", option});
        EXPECT_EQ(run.status, 0) << run.errors;
        const CPixels pixels(readFile(folder / "picture.PNG"));
        EXPECT_EQ(pixels.at(1, 1), colourOf(EInk::Paper, theme)) << option;
    }
    render({"in.wav", "out.wav", "--plot", "dark.svg", "--force", "--dark"});
    EXPECT_THAT(readFile(folder / "dark.svg"), Not(HasSubstr("prefers-color-scheme")));
}

TEST_F(RenderPlot, SeveralInputsHaveTheirPicturesBesideTheOutputs) {
    const SProgramRun run = render({"in.wav", "loud.wav", "out/", "--plot", "svg"});
    EXPECT_EQ(run.status, 0) << run.errors;
    for (const char *name : {"out/in.wav.svg", "out/loud.wav.svg"})
        EXPECT_THAT(readFile(folder / name), StartsWith("<?xml")) << name;
    EXPECT_EQ(render({"in.wav", "out.wav", "--plot", "PNG"}).status, 0);
    EXPECT_EQ(CPixels(readFile(folder / "out.wav.PNG")).width(), 2400);
}

TEST_F(RenderPlot, OnePictureForSeveralInputsIsAWrongCall) {
    expectOneError(render({"in.wav", "loud.wav", "out/", "--plot", "all.svg"}), 2,
                   "--plot: several inputs need a picture each; --plot svg or --plot png puts it "
                   "beside the output");
    EXPECT_FALSE(std::filesystem::exists(folder / "out"));
}

TEST_F(RenderPlot, StandardOutputHasNoNameForAPicture) {
    expectOneError(render({"in.wav", "-", "--plot", "svg"}), 2,
                   "--plot: standard output has no name for the picture; use a file name");
    EXPECT_EQ(render({"in.wav", "-", "--plot", "picture.svg"}).status, 0);
    EXPECT_THAT(readFile(folder / "picture.svg"), HasSubstr("<title>standard output</title>"));
}

TEST_F(RenderPlot, AnotherEndingIsAWrongCall) {
    for (const char *name : {"picture.jpg", "picture", "picture.svg.gz", ".svg", ""})
        expectOneError(render({"in.wav", "out.wav", "--plot", name}), 2,
                       "pictures are written as .svg or .png");
    expectOneError(corvel({"render", "in.wav", "out.wav", "--plot"}), 2, "--plot: needs a value");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.wav"));
}

TEST_F(RenderPlot, ColoursWithoutAPictureAreAWrongCall) {
    expectOneError(render({"in.wav", "out.wav", "--dark"}), 2, "--dark: needs --plot");
    expectOneError(render({"in.wav", "out.wav", "--light"}), 2, "--light: needs --plot");
    expectOneError(render({"in.wav", "out.wav", "--plot", "svg", "--light", "--dark"}), 2, "");
}

TEST_F(RenderPlot, AnExistingPictureIsKeptAndNothingIsRendered) {
    writeFile(folder / "picture.svg", "old");
    expectOneError(render({"in.wav", "out.wav", "--plot", "picture.svg"}), 1,
                   "picture.svg: exists already; --force replaces it");
    EXPECT_EQ(readFile(folder / "picture.svg"), "old");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.wav"));
    EXPECT_EQ(render({"in.wav", "out.wav", "--plot", "picture.svg", "--force"}).status, 0);
    EXPECT_NE(readFile(folder / "picture.svg"), "old");
}

TEST_F(RenderPlot, APlaceThatCannotBeWrittenIsReported) {
    expectOneError(render({"in.wav", "out.wav", "--plot", "nowhere/picture.svg"}), 1,
                   "nowhere/picture.svg: cannot be written (No such file or directory)");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.wav"));
}

TEST_F(RenderPlot, AnInputIsNotDrawnOver) {
    std::filesystem::rename(folder / "in.wav", folder / "in.svg");
    expectOneError(render({"in.svg", "out.wav", "--plot", "./in.svg", "--force"}), 2,
                   "./in.svg: is also an input or an output and would be overwritten");
    EXPECT_EQ(readSound(folder / "in.svg").frames(), 60000u);
}

TEST_F(RenderPlot, AFileThatFailsHasNoPicture) {
    SSound sound = voice(1, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    sound.samples[7] = 0.9;
    writeSound(folder / "in.wav", sound);
    EXPECT_EQ(
        render({"in.wav", "out.wav", "--plot", "svg", "--clip", "fail", "--set", "Gain=@1"}).status,
        1);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "loud.wav"}));
}
