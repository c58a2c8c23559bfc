#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

#include <gmock/gmock.h>

// Each error of `corvel render` prints one line with the file and the reason, and sets the exit
// status. An existing output file is not changed.

namespace {

constexpr int blocksInKilobyte = 2;  // the unit of the shell's ulimit is 512 bytes

class RenderErrors : public testing::Test {
protected:
    RenderErrors() {
        writeSound(folder / "in.wav", voice(21, 3000));
        writeFile(folder / "out.wav", "old");
    }

    /// Expects that a command fails with one line and changes no file.
    void expectFailure(int status, const std::string &words, std::vector<std::string> arguments,
                       const std::string &environment = "") {
        const std::vector<std::string> before = folder.names();
        arguments.emplace_back("--force");
        expectOneError(corvel(arguments, environment), status, words);
        EXPECT_TRUE(readFile(folder / "out.wav") == "old");
        EXPECT_EQ(folder.names(), before);
    }

    void expectFailureOfInput(const std::string &in, const std::string &words,
                              const std::vector<std::string> &options = {}) {
        std::vector<std::string> arguments = renderTo("out.wav", options);
        arguments[1] = folder / in;
        expectFailure(1, (folder / in).string() + ": " + words, arguments);
    }

    std::vector<std::string> renderTo(const std::string &out,
                                      const std::vector<std::string> &options = {},
                                      const std::string &effect = "Whole") {
        std::vector<std::string> arguments = {"render", folder / "in.wav", folder / out, "--plugin",
                                              testEffect(effect)};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return arguments;
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(RenderErrors, AMissingInput) {
    expectFailureOfInput("missing.wav", "no such file");
}

TEST_F(RenderErrors, AnInputThatIsCutShort) {
    copyHead(folder / "in.wav", folder / "short.wav", 5000);
    expectFailureOfInput("short.wav", "truncated, ");
}

TEST_F(RenderErrors, ACompressedInputThatIsCutShort) {
    SSound sound = voice(21, 60000);
    sound.format = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
    writeSound(folder / "whole.flac", sound);
    copyHead(folder / "whole.flac", folder / "short.flac", 60000);
    expectFailureOfInput("short.flac", "truncated or damaged, it ends after ");
}

TEST_F(RenderErrors, AnInputOfTheWrongKind) {
    writeFile(folder / "text.wav", "Dear Sir or Madam");
    expectFailureOfInput("text.wav", "not a readable audio file");
}

TEST_F(RenderErrors, AFolderAsInput) {
    std::filesystem::create_directory(folder / "folder");
    expectFailureOfInput("folder", "is a folder; --recursive renders the files in it");
}

TEST_F(RenderErrors, AnInputWithThreeChannels) {
    writeSound(folder / "three.wav", voice(21, 100, 3));
    expectFailureOfInput("three.wav", "has 3 channels; only mono and stereo can be rendered");
}

TEST_F(RenderErrors, ARateThatCannotBeConverted) {
    SSound sound = voice(21, 100);
    sound.sampleRate = 1;
    writeSound(folder / "slow.wav", sound);
    expectFailureOfInput("slow.wav", "cannot be converted from 1 to 44100 Hz", {"--resample"});
}

TEST_F(RenderErrors, AMissingOutputFolder) {
    expectFailure(1, "missing/out.wav: cannot be written", renderTo("missing/out.wav"));
}

TEST_F(RenderErrors, ADeviceAsOutput) {
    expectFailure(1, "/dev/null: cannot be written (not a file)",
                  {"render", folder / "in.wav", "/dev/null", "--plugin", testEffect("Whole")});
}

class RenderToFullDisk : public RenderErrors, public testing::WithParamInterface<const char *> {};

TEST_P(RenderToFullDisk, FailsWhereverTheDiskIsFull) {
    writeSound(folder / "long.wav", voice(21, 40000));
    writeFile(folder / "out", "old");
    const std::vector<std::string> arguments = {
        "render",   folder / "long.wav", folder / "out",     "--format",
        GetParam(), "--plugin",          testEffect("Whole")};
    // The size of the whole file.
    std::vector<std::string> elsewhere = arguments;
    elsewhere[2] = folder / "whole";
    ASSERT_EQ(corvel(elsewhere).status, 0);
    const std::uintmax_t kilobytes = std::filesystem::file_size(folder / "whole") / 1024;
    std::filesystem::remove(folder / "whole");
    ASSERT_GE(kilobytes, 4u);
    // libsndfile leaks its encoder if the last page cannot be written.
    const std::string withoutLeaks = "LSAN_OPTIONS=detect_leaks=0";
    for (const std::uintmax_t room : {std::uintmax_t(1), kilobytes / 2, kilobytes})
        expectFailure(1, "out: cannot be written (File too large)", arguments,
                      "ulimit -f " + std::to_string(room * blocksInKilobyte) + "; " + withoutLeaks);
    EXPECT_EQ(readFile(folder / "out"), "old");
}

INSTANTIATE_TEST_SUITE_P(Formats, RenderToFullDisk,
                         testing::Values("wav:float", "wav:16", "aiff:24", "flac:16", "ogg"));

TEST_F(RenderErrors, AFormatThatDoesNotSupportTheRate) {
    expectFailure(1,
                  "new.ogg: Opus does not support 44100 Hz; add --resample, which writes 48000 Hz, "
                  "or use another format, such as ogg:vorbis",
                  renderTo("new.ogg", {"--format", "ogg:opus"}));
}

TEST_F(RenderErrors, AMissingEffect) {
    expectFailure(1, "Missing.so: no such file", renderTo("out.wav", {}, "Missing"));
}

TEST_F(RenderErrors, AFileThatIsNotAnEffect) {
    expectFailure(1, "NoEntry.so: not a VST 2 effect", renderTo("out.wav", {}, "NoEntry"));
    expectFailure(1, "NoMagic.so: not a VST 2 effect", renderTo("out.wav", {}, "NoMagic"));
    expectFailure(1, "Refusing.so: the effect does not start", renderTo("out.wav", {}, "Refusing"));
    expectFailure(1, "in.wav: cannot be loaded as an effect",
                  {"render", folder / "in.wav", folder / "out.wav", "--plugin", folder / "in.wav"});
}

TEST_F(RenderErrors, AnEffectThatCannotRender) {
    expectFailure(1, "OneChannel.so: has 1 inputs and 1 outputs",
                  renderTo("out.wav", {}, "OneChannel"));
    expectFailure(1, "NoReplacing.so: cannot process", renderTo("out.wav", {}, "NoReplacing"));
    expectFailure(1, "SingleOnly.so: cannot process in double precision",
                  renderTo("out.wav", {"--double"}, "SingleOnly"));
}

TEST_F(RenderErrors, AnEffectWithAStateOfAnotherSize) {
    expectFailure(1, "ShortChunk.so: the effect's state has 100 bytes, not 424",
                  renderTo("out.wav", {"--chain", "Gate"}, "ShortChunk"));
}

TEST_F(RenderErrors, WrongSettings) {
    expectFailure(2, "--program: no program \"Lauter\"",
                  renderTo("out.wav", {"--program", "Lauter"}));
    expectFailure(2, "--program: no program \"3\"", renderTo("out.wav", {"--program", "3"}));
    expectFailure(2, "--set: no parameter \"Gian\"", renderTo("out.wav", {"--set", "Gian=1"}));
    expectFailure(2, "--set: \"Gain\" is not NAME=VALUE", renderTo("out.wav", {"--set", "Gain"}));
    expectFailure(2, "--set Gain: 9dB is outside -6.00 to 6.00 dB",
                  renderTo("out.wav", {"--set", "Gain=9dB"}));
    expectFailure(2, "--set Gain: \"-6\" needs a unit", renderTo("out.wav", {"--set", "Gain=-6"}));
    expectFailure(2, "--chain: no module \"Flanger\"",
                  renderTo("out.wav", {"--chain", "Gate,Flanger"}));
    expectFailure(2, "--chain: Gate may appear only once",
                  renderTo("out.wav", {"--chain", "Gate,gate"}));
    expectFailure(2, "is not a Corvel effect",
                  renderTo("out.wav", {"--chain", "Gate"}, "Stranger"));
}

TEST_F(RenderErrors, WrongNumbers) {
    for (const char *const option : {"--tempo", "--block", "--tail", "--start", "--length"})
        for (const char *const value : {"-1", "x", "1e9", "nan"})
            expectFailure(2, option, renderTo("out.wav", {option, value}));
    expectFailure(2, "--block", renderTo("out.wav", {"--block", "0"}));
    expectFailure(2, "--tempo", renderTo("out.wav", {"--tempo", "0"}));
}

TEST_F(RenderErrors, WrongTimes) {
    expectFailure(2, "--start: \"1:60\" is not a time, such as 90, 1.5s, 250ms or 1:02:03.5",
                  renderTo("out.wav", {"--start", "1:60"}));
    expectFailure(2, "--start: must not exceed 1000 hours",
                  renderTo("out.wav", {"--start", "1001:00:00"}));
    for (const char *const value : {"0", "1001:00:00"})
        expectFailure(2, "--length: must be more than 0 and at most 1000 hours",
                      renderTo("out.wav", {"--length", value}));
    expectFailure(2, "--tail: must not exceed an hour", renderTo("out.wav", {"--tail", "1:00:01"}));
    expectFailure(2, "--tail: \"never\" is not a time", renderTo("out.wav", {"--tail", "never"}));
    for (const char *const option : {"--start", "--length", "--tail"})
        expectFailure(2, option, renderTo("out.wav", {option, ""}));
}

TEST_F(RenderErrors, AStartBeyondTheEnd) {
    expectFailureOfInput("in.wav", "lasts 0.068 seconds; --start leaves nothing of it",
                         {"--start", "1"});
}

TEST_F(RenderErrors, WrongChannels) {
    for (const char *const value : {"quad", "", "2"})
        expectFailure(2, "is neither mono nor stereo", renderTo("out.wav", {"--channels", value}));
}

TEST_F(RenderErrors, WrongFormat) {
    expectFailure(2, "--format: no container \"mp3\"", renderTo("out.wav", {"--format", "mp3"}));
    expectFailure(2, "--format: flac has no sample type \"float\"",
                  renderTo("out.wav", {"--format", "flac:float"}));
}

TEST_F(RenderErrors, AnEndingThatMeansNoFormat) {
    const std::string endings =
        "; use --format or one of .wav .wave .aiff .aif .aifc .flac .ogg .oga";
    for (const std::string ending : {".mp3", ".w64", ".caf", ".au"})
        expectFailure(2, "out" + ending + ": corvel does not write " + ending + endings,
                      renderTo("out" + ending));
    expectFailure(2, "take.1: corvel does not write .1" + endings, renderTo("take.1"));
    std::filesystem::rename(folder / "in.wav", folder / "in.dat");
    std::filesystem::create_directory(folder / "to");
    expectFailure(1, "to/in.dat: corvel does not write .dat" + endings,
                  {"render", folder / "in.dat", folder / "to", "--plugin", testEffect("Whole")});
}

TEST_F(RenderErrors, AnEndingThatContradictsTheFormat) {
    expectFailure(2, "out.flac: its ending means FLAC, but --format asks for WAV",
                  renderTo("out.flac", {"--format", "wav"}));
}

TEST_F(RenderErrors, AnInputAsOutput) {
    expectFailure(2, "in.wav: is also an input and would be overwritten", renderTo("in.wav"));
    expectFailure(2, "in.wav: is also an input and would be overwritten", renderTo("."));
}

TEST_F(RenderErrors, SeveralInputsForOneFile) {
    expectFailure(2, "out.wav: several inputs need a folder for their outputs",
                  {"render", folder / "in.wav", folder / "in.wav", folder / "out.wav", "--plugin",
                   testEffect("Whole")});
    expectFailure(2, "would be written from two inputs",
                  {"render", folder / "in.wav", folder / "in.wav", folder / "batch/", "--plugin",
                   testEffect("Whole")});
}

TEST_F(RenderErrors, AWrongCommandCreatesNoFolder) {
    expectFailure(2, "no program",
                  {"render", folder / "in.wav", folder / "other.wav", folder / "batch/",
                   "--program", "Lauter", "--plugin", testEffect("Whole")});
}
