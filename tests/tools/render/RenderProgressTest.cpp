#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

// The progress bar of `corvel render` in a terminal, which script(1) provides.

using testing::HasSubstr;
using testing::Not;

namespace {

class RenderProgress : public testing::Test {
protected:
    RenderProgress() { writeSound(folder / "a take.wav", voice(5, 60000)); }

    /// @return what the terminal received.
    std::string inTerminal(const std::string &columns, const std::string &options = "",
                           const std::string &environment = "TERM=xterm") {
        const std::string command =
            "stty cols " + columns + "; cd " + folder.path().string() + "; " + environment +
            " " CORVEL_PROGRAM " render 'a take.wav' out.wav --force --plugin " +
            testEffect("Whole") + " " + options + " >report";
        return runProgram("script", {"-qec", command, "/dev/null"}).out;
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(RenderProgress, TheBarIsDrawnAndRemoved) {
    const std::string shown = inTerminal("79");
    EXPECT_THAT(shown, HasSubstr("[#"));
    EXPECT_THAT(shown, HasSubstr("27%  a take.wav\x1b[K\r"));
    EXPECT_THAT(shown, testing::EndsWith("\r\x1b[K"));
    EXPECT_THAT(readFile(folder / "report"), HasSubstr("duration"));
}

TEST_F(RenderProgress, ANarrowTerminalGetsAShortLine) {
    const std::string shown = inTerminal("5");
    EXPECT_THAT(shown, testing::StartsWith("\r 27%\x1b[K\r"));
    EXPECT_THAT(shown, Not(HasSubstr("take")));
}

TEST_F(RenderProgress, AnUnknownWidthCountsAsUsual) {
    EXPECT_THAT(inTerminal("0"), HasSubstr("27%  a take.wav"));
}

TEST_F(RenderProgress, NothingIsDrawnWithoutATerminalThatErasesLines) {
    EXPECT_EQ(inTerminal("79", "2>errors"), "");
    EXPECT_EQ(readFile(folder / "errors"), "");
    EXPECT_EQ(inTerminal("79", "", "TERM=dumb"), "");
    EXPECT_EQ(inTerminal("79", "--quiet"), "");
}
