#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <chrono>
#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <nlohmann/json.hpp>

// `corvel render` does no harm to files and reads every name as it was typed.

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class RenderKeepsFiles : public testing::Test {
protected:
    RenderKeepsFiles() { writeSound(folder / "in.wav", sound); }

    SProgramRun render(std::vector<std::string> arguments, const std::string &environment = "") {
        arguments.insert(arguments.begin(), "render");
        arguments.insert(arguments.begin() + 1, {"--plugin", testEffect("Whole")});
        return corvel(arguments, "cd " + folder.path().string() + ";" + environment);
    }

    void expectOneLine(const SProgramRun &run, int status, const std::string &line) {
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.errors, "corvel: " + line + "\n");
        EXPECT_EQ(run.out, "");
    }

    CTemporaryFolder folder;
    const SSound sound = voice(21, 3000);
};

class RenderNames : public RenderKeepsFiles, public testing::WithParamInterface<const char *> {};

}  // namespace

TEST_P(RenderNames, ReachTheProgramAsTyped) {
    const std::string name = GetParam();
    fs::rename(folder / "in.wav", folder / name);
    const std::string out = "2" + name, again = name + "2.wav";
    EXPECT_EQ(render({"--format", "wav", "--", name, out}).errors, "");
    EXPECT_EQ(readSound(folder / out).samples, sound.samples);
    if (!name.starts_with('-')) {
        fs::create_directory(folder / "to");
        EXPECT_EQ(render({name, "to", "--format", "wav"}).errors, "");
        EXPECT_EQ(fs::exists(folder / "to" / fs::path(name).replace_extension(".wav")), true);
    }
    const nlohmann::json json = nlohmann::json::parse(render({"--json", "--", out, again}).out);
    EXPECT_TRUE(fs::exists(folder / again));
    if (name.find('\xFF') == std::string::npos) {
        EXPECT_EQ(json["in"], out);
        EXPECT_EQ(json["out"], again);
    }
}

INSTANTIATE_TEST_SUITE_P(Names, RenderNames,
                         testing::Values("[in]", "[a,b]", "{in}", "'in'", "\"in\"", "a,b", "a=b",
                                         "-in", "--json", "--set=x", "++", "a b", "line\nbreak",
                                         "\xFF\xFE", "*", "\\", "$HOME", "%%", "render", "#"));

TEST_F(RenderKeepsFiles, BracketsAreKeptInTheNameOfTheOutput) {
    ASSERT_EQ(render({"in.wav", "[out]"}).status, 0);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"[out]", "in.wav"}));
}

TEST_F(RenderKeepsFiles, TheLongestNameIsWritten) {
    const std::string name = std::string(251, 'x') + ".wav";
    EXPECT_EQ(render({"in.wav", name}).errors, "");
    EXPECT_EQ(readSound(folder / name).samples, sound.samples);
}

TEST_F(RenderKeepsFiles, ALineBreakInANameIsPrintedEscaped) {
    expectOneLine(render({"no\nfile\xFF", "out.wav"}), 1, "no\\nfile\\xFF: no such file");
    fs::rename(folder / "in.wav", folder / "a\nb.wav");
    EXPECT_THAT(render({"a\nb.wav", "out.wav"}).out, HasSubstr("in         a\\nb.wav (44100 Hz"));
}

TEST_F(RenderKeepsFiles, AnExistingFileIsReplacedOnlyByForce) {
    writeFile(folder / "out.wav", "old");
    const std::string before = readFile(folder / "in.wav");
    expectOneLine(render({"in.wav", "out.wav"}), 1, "out.wav: exists already; --force replaces it");
    EXPECT_EQ(readFile(folder / "out.wav"), "old");
    EXPECT_EQ(render({"in.wav", "out.wav", "--force"}).errors, "");
    EXPECT_EQ(readSound(folder / "out.wav").samples, sound.samples);
    EXPECT_EQ(readFile(folder / "in.wav"), before);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"}));
}

TEST_F(RenderKeepsFiles, OnlyOutputsThatAreNewerThanTheirInputsAreSkipped) {
    writeFile(folder / "out.wav", "newer");
    const auto time = fs::last_write_time(folder / "in.wav");
    fs::last_write_time(folder / "out.wav", time + std::chrono::seconds(1));
    EXPECT_EQ(render({"in.wav", "out.wav", "--skip-existing"}).status, 0);
    EXPECT_EQ(readFile(folder / "out.wav"), "newer");

    fs::last_write_time(folder / "out.wav", time - std::chrono::seconds(1));
    expectOneLine(render({"in.wav", "out.wav", "--skip-existing"}), 1,
                  "out.wav: exists already; --force replaces it");
    EXPECT_EQ(readFile(folder / "out.wav"), "newer");
    EXPECT_EQ(render({"in.wav", "out.wav", "--skip-existing", "--force"}).status, 0);
    EXPECT_EQ(readSound(folder / "out.wav").samples, sound.samples);
}

TEST_F(RenderKeepsFiles, AllFilesOfAFolderAreNotOneOutput) {
    for (const char *name : {"a.wav", "b.wav"})
        fs::copy(folder / "in.wav", folder / name);
    const std::string before = readFile(folder / "in.wav");
    EXPECT_EQ(render({"a.wav", "b.wav"}).status, 1);
    EXPECT_EQ(render({"a.wav", "b.wav", "in.wav"}).status, 2);
    for (const char *name : {"a.wav", "b.wav", "in.wav"})
        EXPECT_EQ(readFile(folder / name), before);
}

TEST_F(RenderKeepsFiles, TheModeIsKept) {
    using fs::perms;
    writeFile(folder / "out.wav", "old");
    const perms mode = perms::owner_read | perms::owner_write | perms::others_read;
    fs::permissions(folder / "out.wav", mode);
    ASSERT_EQ(render({"in.wav", "out.wav", "--force"}).status, 0);
    EXPECT_EQ(fs::status(folder / "out.wav").permissions(), mode);
}

TEST_F(RenderKeepsFiles, AWriteProtectedFileIsNotReplaced) {
    writeFile(folder / "out.wav", "old");
    fs::permissions(folder / "out.wav", fs::perms::owner_read);
    expectOneLine(render({"in.wav", "out.wav", "--force"}), 1,
                  "out.wav: is write-protected and was not replaced");
    EXPECT_EQ(readFile(folder / "out.wav"), "old");
}

TEST_F(RenderKeepsFiles, ALinkThatLeadsNowhereIsKept) {
    fs::create_symlink("target.wav", folder / "out.wav");
    EXPECT_EQ(render({"in.wav", "out.wav"}).errors, "");
    EXPECT_TRUE(fs::is_symlink(folder / "out.wav"));
    EXPECT_EQ(readSound(folder / "target.wav").samples, sound.samples);
}

TEST_F(RenderKeepsFiles, AResultThatCannotBePrintedIsAFailure) {
    const std::string why = "the result cannot be printed: standard output does not accept it\n";
    const std::vector<std::vector<std::string>> calls = {{"--version"},
                                                         {"--help"},
                                                         {"programs"},
                                                         {"params", "--json"},
                                                         {"info"},
                                                         {"render", "in.wav", "out.wav"},
                                                         {"render", "in.wav", "2.wav", "--json"}};
    for (const std::vector<std::string> &call : calls) {
        for (const char *const destination : {">/dev/full", ">&-"}) {
            for (const char *const output : {"out.wav", "2.wav"})
                fs::remove(folder / output);
            std::string command = "cd " + folder.path().string() + "; " CORVEL_PROGRAM;
            for (const std::string &word : call)
                command += " " + word;
            const SProgramRun run = runProgram("sh", {"-c", command + " " + destination});
            EXPECT_EQ(run.status, 1) << command;
            EXPECT_EQ(run.errors, "corvel: " + why) << command;
        }
    }
    // The report did not end up in the file instead.
    EXPECT_EQ(readSound(folder / "2.wav").frames(), sound.frames());
}

TEST_F(RenderKeepsFiles, SamplesThatAreNoNumbersBecomeZero) {
    SSound broken = sound;
    broken.samples[100] = std::numeric_limits<double>::quiet_NaN();
    broken.samples[201] = std::numeric_limits<double>::infinity();
    broken.samples[302] = -std::numeric_limits<double>::infinity();
    writeSound(folder / "in.wav", broken);
    for (const char *const precision : {"--json", "--double"}) {
        const SProgramRun run = render({"in.wav", "out.wav", "--force", "--json", precision});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.errors, "corvel: warning: in.wav: 3 samples infinite or not a number, "
                              "rendered as 0; --keep-nan keeps them\n");
        const nlohmann::json file = nlohmann::json::parse(run.out);
        EXPECT_EQ(file["nonFiniteSamples"], 3);
        EXPECT_TRUE(file["levelIn"]["rms"].is_number());
        SSound expected = broken;
        expected.samples[100] = expected.samples[201] = expected.samples[302] = 0.0;
        EXPECT_EQ(readSound(folder / "out.wav").samples, expected.samples);
    }
}

TEST_F(RenderKeepsFiles, SamplesThatAreNoNumbersAreKeptOnRequest) {
    SSound broken = sound;
    broken.samples[100] = std::numeric_limits<double>::quiet_NaN();
    writeSound(folder / "in.wav", broken);
    const SProgramRun run = render({"in.wav", "out.wav", "--keep-nan"});
    EXPECT_EQ(run.errors, "corvel: warning: in.wav: 1 sample infinite or not a number, kept\n");
    EXPECT_TRUE(std::isnan(readSound(folder / "out.wav").samples[100]));
}

TEST_F(RenderKeepsFiles, ATruncatedInputFails) {
    SSound piped = sound;
    piped.format = SF_FORMAT_RF64 | SF_FORMAT_PCM_16;
    writeSound(folder / "whole.wav", piped);
    copyHead(folder / "whole.wav", folder / "half.wav", 6000);
    EXPECT_THAT(render({"half.wav", "out.wav"}).errors, HasSubstr("half.wav: truncated, "));

    std::string bytes = readFile(folder / "in.wav");
    bytes.replace(bytes.find("data") + 4, 4, std::string("\x00\x5E\xD0\xB2", 4));  // 3 GB
    writeFile(folder / "huge.wav", bytes);
    expectOneLine(render({"huge.wav", "out.wav"}), 1,
                  "huge.wav: truncated, 2999976000 bytes of audio are missing");
}

TEST_F(RenderKeepsFiles, AHeaderWithoutALengthIsReadWhole) {
    std::string bytes = readFile(folder / "in.wav");
    bytes.replace(bytes.find("data") + 4, 4, std::string(4, '\0'));
    bytes.replace(4, 4, std::string(4, '\0'));
    writeFile(folder / "piped.wav", bytes);
    EXPECT_EQ(render({"piped.wav", "out.wav"}).errors, "");
    EXPECT_EQ(readSound(folder / "out.wav").samples, sound.samples);
}
