#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

// A signal that ends `corvel render` leaves no unfinished file.

using testing::HasSubstr;
using testing::Not;

namespace {

class RenderInterrupt : public testing::Test {
protected:
    RenderInterrupt() {
        writeSound(folder / "in.wav", voice(21, 3000));
        writeFile(folder / "out.wav", "old");
    }

    /// Runs a command until it writes a file, then more commands of the shell. An hour in blocks of
    /// one frame takes long enough. The part file appears before the first sample.
    SProgramRun runUntilItWrites(const std::string &files, const std::string &then) {
        const std::string script =
            "cd " + folder.path().string() + "; " + "ulimit -c 0; " + CORVEL_PROGRAM " render " +
            files + " --force --tail 3600 --block 1 --plugin " + testEffect(effect) +
            " &\nuntil ls -RA | grep -q 'part$'; do sleep 0.01; done\n" + then + "\nwait $!";
        return runProgram("sh", {"-c", script});
    }

    CTemporaryFolder folder;
    std::string effect = "Whole";
};

struct SSignalCase {
    const char *signal;
    const char *text;
    int status;
};

class RenderSignals : public RenderInterrupt, public testing::WithParamInterface<SSignalCase> {};

}  // namespace

TEST_P(RenderSignals, LeaveNoUnfinishedFile) {
    const SProgramRun run =
        runUntilItWrites("in.wav out.wav", std::string("kill -") + GetParam().signal + " $!");
    EXPECT_EQ(run.status, GetParam().status);
    EXPECT_EQ(run.errors, std::string("corvel: ") + GetParam().text + ", 0 of 1 done\n");
    EXPECT_TRUE(readFile(folder / "out.wav") == "old");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"}));
}

INSTANTIATE_TEST_SUITE_P(
    Signals, RenderSignals,
    testing::Values(SSignalCase{"INT", "interrupted", 130}, SSignalCase{"TERM", "terminated", 143},
                    SSignalCase{"HUP", "stopped, since the terminal was closed", 129},
                    SSignalCase{"QUIT", "stopped by a quit signal", 131},
                    SSignalCase{"PIPE", "stopped, since nobody reads the output any more", 141},
                    SSignalCase{"XCPU", "stopped at the limit on processor time", 152},
                    SSignalCase{"ALRM", "stopped by an alarm signal", 142},
                    SSignalCase{"USR1", "stopped by a user signal", 138},
                    SSignalCase{"USR2", "stopped by a user signal", 140}));

TEST_F(RenderInterrupt, ACrashLeavesNoUnfinishedFile) {
    for (const std::string signal : {"SEGV", "ABRT", "BUS", "FPE", "ILL"}) {
        runUntilItWrites("in.wav out.wav", "kill -" + signal + " $!");
        EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"})) << signal;
    }
}

TEST_F(RenderInterrupt, TheScratchFileOfNormalizingIsDeleted) {
    for (const std::string signal : {"TERM", "SEGV"}) {
        runUntilItWrites("in.wav out.wav --normalize -16LUFS", "kill -" + signal + " $!");
        EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"})) << signal;
    }
}

TEST_F(RenderInterrupt, TwoSignalsLeaveNoUnfinishedFile) {
    runUntilItWrites("in.wav out.wav", "kill -TERM $!; kill -INT $!");
    EXPECT_TRUE(readFile(folder / "out.wav") == "old");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"}));
}

TEST_F(RenderInterrupt, AProgramUnderNohupOutlivesItsTerminal) {
    const SProgramRun run = runProgram(
        "sh", {"-c", "trap '' HUP; cd " + folder.path().string() +
                         "; " CORVEL_PROGRAM
                         " render in.wav out.wav --force --tail 60 --block 16 --plugin " +
                         testEffect("Whole") +
                         " & until ls -A | grep -q 'part$'; do sleep 0.01; done; "
                         "kill -HUP $!; wait $!"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(readSound(folder / "out.wav").frames(), 3000u + 60u * 44100u);
}

TEST_F(RenderInterrupt, ABatchGoesOnWhereItEnded) {
    std::string names;
    for (int i = 0; i < 20; ++i) {
        const std::string name = std::to_string(i) + ".wav";
        writeSound(folder / name, voice(21, 1000));
        names += name + " ";
    }
    const SProgramRun first = runUntilItWrites(names + "in.wav --out-dir batch", "kill -INT $!");
    EXPECT_EQ(first.status, 130);
    EXPECT_EQ(first.errors, "corvel: interrupted, 0 of 21 done\n");
    EXPECT_TRUE(std::filesystem::is_empty(folder / "batch"));

    const std::string start = "cd " + folder.path().string() + "; " CORVEL_PROGRAM " render ";
    const std::string end = " --out-dir batch --skip-existing --plugin " + testEffect("Whole");
    EXPECT_EQ(runProgram("sh", {"-c", start + "1.wav 2.wav" + end}).status, 0);
    const SProgramRun second = runProgram("sh", {"-c", start + names + end});
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.errors, "corvel: 18 of 20 files rendered, 2 skipped\n");
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(readSound(folder / ("batch/" + std::to_string(i) + ".wav")).frames(), 1000u);
}

TEST_F(RenderInterrupt, ABrokenPipeLeavesNoUnfinishedFile) {
    std::string names;
    for (int i = 0; i < 30; ++i) {
        const std::string name = std::to_string(i) + ".wav";
        writeSound(folder / name, voice(21, 1000));
        names += name + " ";
    }
    // The reader has ended before the first report.
    runProgram("sh",
               {"-c", "cd " + folder.path().string() + "; " CORVEL_PROGRAM " render " + names +
                          "--out-dir batch --plugin " + testEffect("Whole") + " | true"});
    for (const auto &entry : std::filesystem::directory_iterator(folder / "batch"))
        EXPECT_EQ(entry.path().extension(), ".wav");
}
