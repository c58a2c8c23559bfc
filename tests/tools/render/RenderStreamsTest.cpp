#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

#include <cstring>
#include <gmock/gmock.h>
#include <sndfile.h>

// `corvel render` in a pipe.

using testing::HasSubstr;

namespace {

const std::string unknownLength(4, '\xFF');

class RenderStreams : public testing::Test {
protected:
    RenderStreams() {
        sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
        writeSound(folder / "in.wav", sound);
        const SProgramRun run = shell("render in.wav out.wav --set Gain=0.75");
        EXPECT_EQ(run.status, 0) << run.errors;
        expected = readFile(folder / "out.wav");
    }

    /// Runs corvel in the folder, with commands of the shell before and after it.
    SProgramRun shell(const std::string &arguments, const std::string &before = "",
                      const std::string &after = "") {
        const std::string command = "cd " + folder.path().string() + "; " + before +
                                    " " CORVEL_PROGRAM " " + arguments + " --plugin " +
                                    testEffect(effect) + " " + after;
        return runProgram("sh", {"-c", command});
    }

    std::string head() const { return expected.substr(0, expected.size() - samples().size()); }
    std::string samples() const { return expected.substr(expected.size() - 4 * sound.frames()); }

    CTemporaryFolder folder;
    std::string effect = "Whole";
    SSound sound = voice(31, 40000);
    std::string expected;  // the whole output
};

/// A header for a length that is not known.
std::string withoutLengths(std::string wav) {
    wav.replace(4, 4, unknownLength);
    return wav.replace(wav.find("data") + 4, 4, unknownLength);
}

}  // namespace

TEST_F(RenderStreams, StandardOutputTakesTheSoundAndStandardErrorTheReport) {
    const SProgramRun run = shell("render in.wav - --set Gain=0.75");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.out == expected);
    EXPECT_THAT(run.errors, HasSubstr("in         in.wav (44100 Hz, stereo, WAV, 16-bit)\n"));
    EXPECT_THAT(run.errors,
                HasSubstr("out        standard output (44100 Hz, stereo, WAV, 16-bit)\n"));
}

TEST_F(RenderStreams, NothingThatTheEffectPrintsReachesTheSound) {
    effect = "Talkative";
    const SProgramRun run = shell("render in.wav - --set Gain=0.75");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.out == expected);
    EXPECT_THAT(run.errors, HasSubstr("an effect speaks"));
}

TEST_F(RenderStreams, StandardInputGivesTheSameSound) {
    EXPECT_EQ(shell("render - new.wav --set Gain=0.75", "cat in.wav |").status, 0);
    EXPECT_TRUE(readFile(folder / "new.wav") == expected);
    // The header of a stream may contain an estimate, so that of the output contains nothing.
    const SProgramRun run = shell("render - - --set Gain=0.75", "cat in.wav |");
    EXPECT_TRUE(run.out == withoutLengths(expected));
    EXPECT_THAT(run.errors, HasSubstr("in         standard input (44100 Hz, stereo"));
}

TEST_F(RenderStreams, AnUnknownLengthIsReadToTheEnd) {
    for (const std::string &length :
         {unknownLength, std::string(4, '\0'), std::string("\0\xF0\xFF\x7F", 4)}) {
        std::string wav = readFile(folder / "in.wav");
        wav.replace(wav.find("data") + 4, 4, length);
        writeFile(folder / "piped.wav", wav);
        const SProgramRun run = shell("render - - --set Gain=0.75", "cat piped.wav |");
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_TRUE(run.out == withoutLengths(expected));
    }
}

TEST_F(RenderStreams, ChunksInFrontOfTheSoundMayHaveAnOddLength) {
    std::string wav = readFile(folder / "in.wav");
    wav.insert(wav.find("data"), "odd " + std::string("\3\0\0\0abc\0", 8));
    for (const std::string &piped : {wav, withoutLengths(wav)}) {
        writeFile(folder / "odd.wav", piped);
        const SProgramRun run = shell("render - - --set Gain=0.75", "cat odd.wav |");
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_TRUE(run.out == withoutLengths(expected));
    }
}

TEST_F(RenderStreams, AnAutomaticTailHasNoLengthInTheHeader) {
    EXPECT_TRUE(shell("render in.wav - --set Gain=0.75 --tail auto").out ==
                withoutLengths(expected));
}

TEST_F(RenderStreams, AFileOfUnknownLengthHasRoomFor64Bits) {
    writeFile(folder / "piped.wav", withoutLengths(readFile(folder / "in.wav")));
    EXPECT_EQ(shell("render - new.wav --set Gain=0.75", "cat piped.wav |").status, 0);
    const std::string wav = readFile(folder / "new.wav");
    EXPECT_TRUE(wav.starts_with("RIFF"));
    EXPECT_EQ(wav.substr(12, 4), "JUNK");
    EXPECT_EQ(readSound(folder / "new.wav").samples, readSound(folder / "out.wav").samples);
}

TEST_F(RenderStreams, ItsOwnOutputIsReadAgain) {
    const SProgramRun run = shell("render - back.wav --json --set Gain=0.5",
                                  "cat in.wav | " CORVEL_PROGRAM " render - - --set Gain=0.5 "
                                  "--plugin " +
                                      testEffect("Whole") + " 2>/dev/null |");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(readSound(folder / "back.wav").samples, sound.samples);
}

TEST_F(RenderStreams, A64BitHeaderWithAndWithoutALengthIsRead) {
    SSound large = sound;
    large.format = SF_FORMAT_RF64 | SF_FORMAT_FLOAT;
    writeSound(folder / "large.wav", large);
    EXPECT_EQ(shell("render - new.wav", "cat large.wav |").status, 0);
    EXPECT_EQ(readSound(folder / "new.wav").samples, sound.samples);
    std::string bytes = readFile(folder / "large.wav");
    bytes.replace(bytes.find("ds64") + 16, 8, 8, '\xFF');
    writeFile(folder / "large.wav", bytes);
    EXPECT_EQ(shell("render - new.wav --force", "cat large.wav |").status, 0);
    EXPECT_EQ(readSound(folder / "new.wav").samples, sound.samples);
    EXPECT_EQ(readSound(folder / "new.wav").format & SF_FORMAT_SUBMASK, SF_FORMAT_FLOAT);
}

class RenderStreamedFormats : public RenderStreams, public testing::WithParamInterface<int> {};

TEST_P(RenderStreamedFormats, AreReadFromAPipe) {
    sound.format = GetParam();
    writeSound(folder / "other", sound);
    ASSERT_EQ(shell("render other direct.wav").status, 0);
    const SProgramRun run = shell("render - piped.wav", "cat other |");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(readFile(folder / "piped.wav") == readFile(folder / "direct.wav"));
}

INSTANTIATE_TEST_SUITE_P(
    Formats, RenderStreamedFormats,
    testing::Values(SF_FORMAT_WAVEX | SF_FORMAT_PCM_24, SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM,
                    SF_FORMAT_AIFF | SF_FORMAT_PCM_16, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                    SF_FORMAT_OGG | SF_FORMAT_VORBIS, SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III,
                    SF_FORMAT_W64 | SF_FORMAT_FLOAT, SF_FORMAT_CAF | SF_FORMAT_PCM_24,
                    SF_FORMAT_AU | SF_FORMAT_PCM_16, SF_FORMAT_WAV | SF_FORMAT_ULAW));

TEST_F(RenderStreams, OtherFormatsAreWrittenToAPipe) {
    for (const std::string format : {"flac", "ogg", "wav:float"}) {
        shell("render in.wav direct --format " + format);
        const SProgramRun run = shell("render in.wav - --format " + format);
        EXPECT_EQ(run.status, 0);
        writeFile(folder / "piped", run.out);
        const SSound direct = readSound(folder / "direct");
        std::filesystem::remove(folder / "direct");
        if (format == "flac") {
            // Without its number of samples, which is in front.
            EXPECT_EQ(shell("render piped again.wav", "").status, 0);
            EXPECT_EQ(readSound(folder / "again.wav").samples, direct.samples);
        } else {
            EXPECT_EQ(readSound(folder / "piped").samples, direct.samples) << format;
            EXPECT_EQ(readSound(folder / "piped").format, direct.format) << format;
        }
    }
    // Without a request it is WAV, whatever the input.
    SSound flac = sound;
    flac.format = SF_FORMAT_FLAC | SF_FORMAT_PCM_24;
    writeSound(folder / "in.flac", flac);
    writeFile(folder / "out", shell("render in.flac -").out);
    EXPECT_EQ(readSound(folder / "out").format, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
}

TEST_F(RenderStreams, ACompressedWavStreamHasNoLength) {
    SSound law = sound;
    law.format = SF_FORMAT_WAV | SF_FORMAT_ULAW;
    writeSound(folder / "law.wav", law);
    const SProgramRun run = shell("render law.wav -");
    EXPECT_EQ(run.out.substr(run.out.find("data") + 4, 4), unknownLength);
}

TEST_F(RenderStreams, AnEmptySoundIsStillAFile) {
    writeSound(folder / "in.wav", voice(31, 0));
    writeFile(folder / "out", shell("render in.wav -").out);
    EXPECT_EQ(readSound(folder / "out").frames(), 0u);
}

TEST_F(RenderStreams, RawSamplesAreReadAndWritten) {
    const std::string gain = " --set Gain=0.75";
    writeFile(folder / "in.raw", readFile(folder / "in.wav").substr(44));
    SProgramRun run = shell("render - - --raw 44100:2:s16" + gain, "cat in.raw |");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(run.out == samples());
    EXPECT_THAT(run.errors, HasSubstr("standard input (44100 Hz, stereo, no header, 16-bit)"));
    // One side each
    EXPECT_TRUE(shell("render in.wav - --raw 44100:2:s16" + gain).out == samples());
    EXPECT_EQ(shell("render - raw.wav --raw 44100:2:s16" + gain, "cat in.raw |").status, 0);
    EXPECT_EQ(readSound(folder / "raw.wav").samples, readSound(folder / "out.wav").samples);
    // --format asks for a header again.
    run = shell("render - - --raw 44100:2:s16 --format wav" + gain, "cat in.raw |");
    EXPECT_TRUE(run.out == withoutLengths(expected));
}

TEST_F(RenderStreams, RawSamplesHaveTheNamedFormat) {
    struct SCase {
        const char *name;
        int format;
    };
    for (const auto &[name, format] :
         {SCase{"s16", SF_FORMAT_PCM_16}, SCase{"s24", SF_FORMAT_PCM_24},
          SCase{"s32", SF_FORMAT_PCM_32}, SCase{"f32", SF_FORMAT_FLOAT},
          SCase{"f64", SF_FORMAT_DOUBLE}}) {
        SSound raw = sound;
        raw.format = SF_FORMAT_RAW | format | SF_ENDIAN_LITTLE;
        writeSound(folder / "in.raw", raw);
        const SProgramRun run =
            shell(std::string("render - - --raw 44100:2:") + name, "cat in.raw |");
        EXPECT_TRUE(run.out == readFile(folder / "in.raw")) << name;
    }
}

TEST_F(RenderStreams, RawSamplesKeepTheirChannelsAndTheirRate) {
    SSound mono = voice(31, 1000, 1);
    mono.format = SF_FORMAT_RAW | SF_FORMAT_FLOAT | SF_ENDIAN_LITTLE;
    writeSound(folder / "in.raw", mono);
    EXPECT_TRUE(shell("render - - --raw 48000:1:f32", "cat in.raw |").out ==
                readFile(folder / "in.raw"));
    EXPECT_EQ(shell("render - - --raw 48000:1:f32 --channels stereo", "cat in.raw |").out.size(),
              8000u);
    EXPECT_EQ(shell("render - new.wav --raw 48000:1:f32", "cat in.raw |").status, 0);
    EXPECT_EQ(readSound(folder / "new.wav").channels, 2);
    EXPECT_EQ(readSound(folder / "new.wav").sampleRate, 48000);
}

TEST_F(RenderStreams, TheFirstSamplesLeaveBeforeTheLastArrive) {
    // The input stays open until the output has begun.
    const SProgramRun run = runProgram(
        "sh",
        {"-c", "cd " + folder.path().string() +
                   "; mkfifo fifo; " CORVEL_PROGRAM " render - - --plugin " + testEffect(effect) +
                   " <fifo >out.pipe 2>/dev/null & exec 3>fifo; cat in.wav >&3; "
                   "i=0; until [ $(wc -c < out.pipe) -gt 100000 ] || [ $i = 2000 ]; do "
                   "sleep 0.01; i=$((i+1)); done; echo $i; exec 3>&-; wait $!"});
    EXPECT_EQ(run.status, 0);
    EXPECT_LT(std::stoi(run.out), 2000);
    EXPECT_EQ(std::filesystem::file_size(folder / "out.pipe"), expected.size());
}

TEST_F(RenderStreams, AReaderThatHasEnoughEndsItQuietly) {
    writeFile(folder / "long.raw", std::string(4000000, '\0'));
    const SProgramRun run = shell("render - - --raw 44100:2:s16", "{ cat long.raw |",
                                  "; echo $? >status; } | head -c 10000 | wc -c");
    EXPECT_EQ(run.out, "10000\n");
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(readFile(folder / "status"), "141\n");
}

TEST_F(RenderStreams, ASignalEndsTheWaitForInput) {
    const SProgramRun run = runProgram(
        "sh", {"-c", "cd " + folder.path().string() +
                         "; mkfifo fifo; " CORVEL_PROGRAM " render - new.wav --raw 8000:1:s16 "
                         "--plugin " +
                         testEffect(effect) +
                         " <fifo & exec 3>fifo; until ls -A | grep -q 'part$'; do sleep 0.01; "
                         "done; kill -TERM $!; wait $!"});
    EXPECT_EQ(run.status, 143);
    EXPECT_EQ(run.errors, "corvel: terminated, 0 of 1 done\n");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"fifo", "in.wav", "out.wav"}));
}

TEST_F(RenderStreams, ASignalEndsTheWaitForTheReader) {
    const SProgramRun run = runProgram(
        "sh", {"-c", "cd " + folder.path().string() +
                         "; mkfifo fifo; exec 3<>fifo; cat in.wav | " CORVEL_PROGRAM
                         " render in.wav - --tail 60 --plugin " +
                         testEffect(effect) +
                         " >fifo & until head -c 1 <&3 | grep -q R; do sleep 0.01; done; "
                         "kill -TERM $!; wait $!"});
    EXPECT_EQ(run.status, 143);
    EXPECT_EQ(run.errors, "corvel: terminated, 0 of 1 done\n");
}

TEST_F(RenderStreams, ASpooledInputLeavesNoFile) {
    SSound ogg = sound;
    ogg.format = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    writeSound(folder / "in.ogg", ogg);
    std::filesystem::create_directory(folder / "tmp");
    // The signal that nobody can handle, while the copy exists.
    const SProgramRun run = runProgram(
        "sh", {"-c", "cd " + folder.path().string() +
                         "; cat in.ogg | TMPDIR=tmp " CORVEL_PROGRAM
                         " render - new.wav --tail 3600 --block 1 --plugin " +
                         testEffect(effect) +
                         " & until ls -A | grep -q 'part$'; do sleep 0.01; done; ls -A tmp; "
                         "kill -KILL $!; wait $!; ls -A tmp"});
    EXPECT_EQ(run.out, "");
}

TEST_F(RenderStreams, AStreamThatIsCutShortFails) {
    expectOneError(shell("render - new.wav", "head -c 100000 in.wav |"), 1,
                   "standard input: truncated or damaged, it ends after 24989 of 40000 frames");
    expectOneError(shell("render - new.wav", "head -c 30 in.wav |"), 1,
                   "standard input: not a readable audio file");
    expectOneError(shell("render - new.wav", "true |"), 1,
                   "standard input: not a readable audio file");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"in.wav", "out.wav"}));
}

TEST_F(RenderStreams, AnEstimatedLengthIsForgivenWithAWarning) {
    const SProgramRun run = shell("render - new.wav", "head -c 150000 in.wav |");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "corvel: warning: standard input: ended 2511 frames before the length "
                          "in its header\n");
    EXPECT_EQ(readSound(folder / "new.wav").frames(), 37489u);
}

TEST_F(RenderStreams, ChunksAfterTheSoundAreNotTakenForSound) {
    writeFile(folder / "in.wav", readFile(folder / "in.wav") + "LIST" + std::string("\0\0\2\0", 4) +
                                     std::string(131072, 'x'));
    // The writer does not fail, since all is read.
    const SProgramRun run =
        shell("render - new.wav --set Gain=0.75", "{ cat in.wav; echo $? >cat; } |");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(readFile(folder / "new.wav") == expected);
    EXPECT_EQ(readFile(folder / "cat"), "0\n");
}

TEST_F(RenderStreams, AnExcerptOfAStreamIsExact) {
    for (const std::string lengths : {"known", "unknown"}) {
        const std::string wav = readFile(folder / "in.wav");
        writeFile(folder / "piped", lengths == "known" ? wav : withoutLengths(wav));
        const std::string options = "--start 250ms --length 0:00.5 --force";
        ASSERT_EQ(shell("render in.wav direct.wav " + options).status, 0);
        EXPECT_EQ(shell("render - piped.wav " + options, "cat piped |").status, 0);
        EXPECT_EQ(readSound(folder / "piped.wav").samples, readSound(folder / "direct.wav").samples)
            << lengths;
        expectOneError(shell("render - new.wav --start 1", "cat piped |"), 1,
                       "standard input: lasts 0.907 seconds; --start leaves nothing of it");
    }
}

TEST_F(RenderStreams, AnExcerptEndsBeforeTheStream) {
    const SProgramRun run =
        shell("render - - --raw 44100:2:s16 --length 1s", "yes |", "2>/dev/null | wc -c");
    EXPECT_EQ(run.out, "176400\n");
}

TEST_F(RenderStreams, AFullDiskBelowStandardOutputIsAnError) {
    const SProgramRun run = shell("render in.wav -", "", ">/dev/full");
    expectOneError(run, 1, "standard output: cannot be written (No space left on device)");
}

TEST_F(RenderStreams, ATerminalIsRefused) {
    const std::string start = std::string(CORVEL_PROGRAM) + " render ";
    const std::string end = " --plugin " + testEffect(effect);
    const std::string in = folder / "in.wav", out = folder / "new.wav";
    runProgram("script", {"-qec", start + in + " -" + end, folder / "typescript"});
    EXPECT_THAT(readFile(folder / "typescript"),
                HasSubstr("corvel: standard output is a terminal; pipe the sound into a program"));
    EXPECT_THAT(readFile(folder / "typescript"), testing::Not(HasSubstr("RIFF")));
    runProgram("script", {"-qec", start + "- " + out + end, folder / "typescript"});
    EXPECT_THAT(readFile(folder / "typescript"),
                HasSubstr("corvel: standard input is a terminal; pipe a sound into corvel"));
}

TEST_F(RenderStreams, WrongCalls) {
    expectOneError(shell("render - - --raw 44100"), 2,
                   "--raw: \"44100\" is not RATE:CHANNELS:FORMAT");
    expectOneError(shell("render - - --raw ''"), 2, "--raw: ");
    expectOneError(shell("render in.wav new.wav --raw 44100:2:s16"), 2,
                   "--raw: is for standard input or output");
    expectOneError(shell("render in.wav - --format aiff"), 2,
                   "--format: AIFF cannot be written to standard output; use wav, flac or ogg");
    expectOneError(shell("render in.wav out.wav -"), 2,
                   "only one input can be written to standard output");
    expectOneError(shell("render - out.wav new/"), 2,
                   "standard input must be the only input, and its output needs a name");
    expectOneError(shell("render in.wav - --raw 48000:2:s16"), 1,
                   "in.wav: has 44100 Hz, but --raw asks for 48000");
}

TEST_F(RenderStreams, AFileMayHaveTheNameOfAStream) {
    std::filesystem::copy(folder / "in.wav", folder / "-");
    EXPECT_EQ(shell("render ./- ./-- --format wav --set Gain=0.75").status, 0);
    EXPECT_TRUE(readFile(folder / "--") == expected);
}
