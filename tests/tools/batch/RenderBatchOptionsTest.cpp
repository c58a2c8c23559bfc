#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"
#include "tools/support/JsonLines.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

// The options of `corvel render` for many files.

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

using Names = std::vector<std::string>;

class RenderBatchOptions : public testing::Test {
protected:
    RenderBatchOptions() {
        fs::create_directories(folder / "takes/day 1/deep");
        writeSound(folder / "takes/a.wav", voice(21, 300));
        writeSound(folder / "takes/day 1/a.wav", voice(22, 200));
        writeSound(folder / "takes/day 1/deep/b.wav", voice(23, 100));
    }

    SProgramRun render(std::vector<std::string> arguments, const std::string &before = "") {
        arguments.insert(arguments.begin(), "render");
        arguments.insert(arguments.end(), {"--plugin", testEffect("Whole")});
        return corvel(arguments, "cd " + folder.path().string() + ";" + before);
    }

    Names filesIn(const std::string &name) const {
        Names names;
        for (const auto &entry : fs::recursive_directory_iterator(folder / name))
            if (!entry.is_directory())
                names.push_back(fs::relative(entry.path(), folder / name));
        std::sort(names.begin(), names.end());
        return names;
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(RenderBatchOptions, SubFoldersAreKept) {
    EXPECT_EQ(render({"takes", "--recursive", "--out-dir", "out"}).errors, "");
    EXPECT_EQ(filesIn("out"), (Names{"a.wav", "day 1/a.wav", "day 1/deep/b.wav"}));
    EXPECT_EQ(readSound(folder / "out/day 1/a.wav").frames(), 200u);
    EXPECT_EQ(render({"takes/day 1", "later/", "--recursive"}).errors, "");
    EXPECT_EQ(filesIn("later"), (Names{"a.wav", "deep/b.wav"}));
}

TEST_F(RenderBatchOptions, OutputsInsideTheInputsAreNotRendered) {
    for (int run = 0; run < 2; ++run)
        EXPECT_EQ(render({"takes", "--recursive", "--out-dir", "takes/out", "--force"}).status, 0);
    EXPECT_EQ(filesIn("takes/out"), (Names{"a.wav", "day 1/a.wav", "day 1/deep/b.wav"}));
}

TEST_F(RenderBatchOptions, AFolderIsOnlyReadIfAskedFor) {
    const SProgramRun run = render({"takes", "takes/a.wav", "--out-dir", "out"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "corvel: takes: is a folder; --recursive renders the files in it\n"
                          "corvel: 1 of 2 files rendered, 1 failed\n");
    EXPECT_EQ(filesIn("out"), Names{"a.wav"});
}

TEST_F(RenderBatchOptions, AFolderWithoutAudioIsReported) {
    fs::create_directory(folder / "empty");
    expectOneError(render({"empty", "--recursive", "--out-dir", "out"}), 1,
                   "empty: contains no audio files");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(RenderBatchOptions, TwoInputsOfOneNameStopEverything) {
    expectOneError(render({"takes", "takes/a.wav", "--recursive", "--out-dir", "out"}), 2,
                   "out/a.wav: would be written from two inputs, takes/a.wav and takes/a.wav");
    writeSound(folder / "takes/c.wav", voice(21, 300));
    expectOneError(render({"takes", "--recursive", "--out-dir", "out", "--name", "same"}), 2,
                   "out/same.wav: would be written from two inputs, takes/a.wav and takes/c.wav");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(RenderBatchOptions, AListNamesInputs) {
    writeFile(folder / "list", "takes/a.wav\n\ntakes/day 1/deep/b.wav\n");
    EXPECT_EQ(render({"--list", "list", "--out-dir", "out"}).errors, "");
    EXPECT_EQ(filesIn("out"), (Names{"a.wav", "b.wav"}));
    EXPECT_EQ(render({"--list", "list", "later/"}).errors, "");
    EXPECT_EQ(filesIn("later"), (Names{"a.wav", "b.wav"}));
    writeFile(folder / "zeros", std::string("takes/day 1/deep/b.wav\0", 23));
    EXPECT_EQ(render({"takes/a.wav", "--list", "zeros", "--out-dir", "both"}).errors, "");
    EXPECT_EQ(filesIn("both"), (Names{"a.wav", "b.wav"}));
}

TEST_F(RenderBatchOptions, AListMayComeFromStandardInput) {
    const std::string script = "cd " + folder.path().string() +
                               "; find takes -name b.wav | " CORVEL_PROGRAM
                               " render --list - --out-dir out --plugin " +
                               testEffect("Whole");
    EXPECT_EQ(runProgram("sh", {"-c", script}).errors, "");
    EXPECT_EQ(filesIn("out"), Names{"b.wav"});
}

TEST_F(RenderBatchOptions, FoldersInAListAreReadIfAskedFor) {
    writeFile(folder / "list", "takes/day 1\n");
    EXPECT_EQ(render({"--list", "list", "--recursive", "--out-dir", "out"}).errors, "");
    EXPECT_EQ(filesIn("out"), (Names{"a.wav", "deep/b.wav"}));
}

TEST_F(RenderBatchOptions, AnEmptyListIsNotedOnly) {
    const SProgramRun run = render({"--list", "/dev/null", "--out-dir", "out"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "corvel: note: /dev/null: lists no files\n");
    EXPECT_FALSE(fs::exists(folder / "out"));
    EXPECT_EQ(render({"--list", "/dev/null", "--out-dir", "out", "--quiet"}).errors, "");
}

TEST_F(RenderBatchOptions, AWrongListIsReported) {
    expectOneError(render({"--list", "missing", "--out-dir", "out"}), 1, "missing: no such file");
    expectOneError(render({"--list", "takes", "--out-dir", "out"}), 1,
                   "takes: cannot be read (Is a directory)");
    expectOneError(render({"--list", "", "--out-dir", "out"}), 2, "a file name is empty");
    expectOneError(render({"--list", "list"}), 2, "needs an input and an output");
    expectOneError(render({"-", "--list", "-", "--out-dir", "out"}), 2,
                   "--list: standard input cannot also be an input");
    expectOneError(render({"--list", "list", "out.wav"}), 2,
                   "out.wav: several inputs need a folder for their outputs");
}

TEST_F(RenderBatchOptions, APatternNamesTheOutputs) {
    EXPECT_EQ(render({"takes", "--recursive", "--out-dir", "out", "--program", "Loud", "--name",
                      "{index}-{stem}-{program}"})
                  .errors,
              "");
    EXPECT_EQ(filesIn("out"),
              (Names{"1-a-Loud.wav", "day 1/2-a-Loud.wav", "day 1/deep/3-b-Loud.wav"}));
    EXPECT_EQ(render({"takes/a.wav", "flac/", "--name", "{program}/{stem}.flac"}).errors, "");
    EXPECT_EQ(filesIn("flac"), Names{"Plain/a.flac"});
    EXPECT_EQ(render({"takes/a.wav", "aiff/", "--name", "{stem}.v1", "--format", "aiff"}).errors,
              "");
    EXPECT_EQ(filesIn("aiff"), Names{"a.v1.aiff"});
    EXPECT_EQ(render({"takes/a.wav", "brackets/", "--name", "[{stem}]"}).out.find("/./"),
              std::string::npos);
    EXPECT_EQ(filesIn("brackets"), Names{"[a].wav"});
}

TEST_F(RenderBatchOptions, AWrongPatternIsReported) {
    expectOneError(render({"takes/a.wav", "out/", "--name", "{steam}"}), 2,
                   "--name: no field {steam}; use {stem}, {ext}, {program} or {index}");
    expectOneError(render({"takes/a.wav", "out/", "--name", ""}), 2, "leaves no name for the file");
    expectOneError(render({"takes/a.wav", "out.wav", "--name", "{stem}"}), 2,
                   "out.wav: --name needs a folder for the outputs");
    expectOneError(render({"takes/a.wav", "out/", "--name", "{stem}.wav", "--format", "flac"}), 2,
                   "--name: its ending means WAV, but --format asks for FLAC");
    EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(RenderBatchOptions, ADryRunChangesNothing) {
    fs::create_directory(folder / "out");
    writeFile(folder / "out/a.wav", "new");
    writeFile(folder / "takes/bad.wav", "bad");
    const std::vector<std::string> before = filesIn(".");
    const SProgramRun run = render({"takes", "--recursive", "--out-dir", "out", "--dry-run",
                                    "--skip-existing", "--save-preset", "preset.json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "takes/a.wav -> out/a.wav  (skipped: newer than its input)\n"
                       "takes/day 1/a.wav -> out/day 1/a.wav\n"
                       "takes/day 1/deep/b.wav -> out/day 1/deep/b.wav\n"
                       "2 of 4 files would be rendered, 1 skipped, 1 would fail\n");
    EXPECT_EQ(run.errors, "corvel: takes/bad.wav: not a readable audio file\n");
    EXPECT_EQ(filesIn("."), before);
    EXPECT_FALSE(fs::exists(folder / "out/day 1"));
}

TEST_F(RenderBatchOptions, ADryRunNamesTheStandardStreams) {
    const SProgramRun run = render({"-", "-", "--dry-run"}, "exec < /dev/null;");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.errors, "standard input -> standard output\n1 of 1 files would be rendered\n");
}

TEST_F(RenderBatchOptions, ADryRunKnowsWhatCannotBeWritten) {
    writeFile(folder / "old.wav", "old");
    const auto dry = [&](std::vector<std::string> arguments) {
        arguments.emplace_back("--dry-run");
        return render(arguments);
    };
    EXPECT_EQ(dry({"takes/a.wav", "old.wav"}).errors,
              "corvel: old.wav: exists already; --force replaces it\n");
    EXPECT_EQ(dry({"takes/a.wav", "old.wav", "--force"}).out,
              "takes/a.wav -> old.wav  (replaces the existing file)\n"
              "1 of 1 files would be rendered\n");
    EXPECT_EQ(dry({"takes/a.wav", "none/new.wav"}).errors,
              "corvel: none/new.wav: cannot be written (No such file or directory)\n");
    EXPECT_THAT(dry({"takes/a.wav", "new.ogg", "--format", "ogg:opus"}).errors,
                StartsWith("corvel: new.ogg: Opus does not support 44100 Hz"));
    EXPECT_THAT(dry({"takes/a.wav", "new.wav", "--start", "99"}).errors,
                HasSubstr("--start leaves nothing of it"));
    EXPECT_EQ(readFile(folder / "old.wav"), "old");
}

TEST_F(RenderBatchOptions, ADryRunAsJsonIsOneLineForEachFile) {
    const auto lines =
        jsonLines(render({"takes", "--recursive", "--out-dir", "out", "--dry-run", "--json"}).out);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1]["in"], "takes/day 1/a.wav");
    EXPECT_EQ(lines[1]["out"], "out/day 1/a.wav");
    EXPECT_EQ(lines[1]["status"], "planned");
    EXPECT_EQ(lines[1]["program"], "Plain");
}

TEST_F(RenderBatchOptions, AQuietRunPrintsOnlyErrors) {
    writeFile(folder / "takes/bad.wav", "bad");
    const SProgramRun run = render({"takes", "--recursive", "--out-dir", "out", "--quiet", "--set",
                                    "Gain=0", "--set", "Gain=1"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.errors, "corvel: takes/bad.wav: not a readable audio file\n");
    EXPECT_EQ(jsonLines(render({"takes/a.wav", "b.wav", "--quiet", "--json"}).out).size(), 1u);
}

TEST_F(RenderBatchOptions, AVerboseRunSaysHowFilesWereProcessed) {
    const SProgramRun run = render({"takes/a.wav", "b.wav", "--verbose", "--tempo", "90", "--tail",
                                    "0.5", "--block", "64", "--double"});
    EXPECT_THAT(run.out, HasSubstr("effect     " + testEffect("Whole") + "\n"));
    EXPECT_THAT(run.out, HasSubstr("processed  at 44100 Hz and 90.00 bpm in blocks of 64 frames, "
                                   "double precision, 0.5 s tail\n"));
    EXPECT_THAT(run.out, testing::ContainsRegex("effect opened in [0-9.]+ ms, ran for [0-9.]+ s of "
                                                "[0-9.]+ s \\([0-9]+%\\)\n"));
    const auto json = jsonLines(render({"takes/a.wav", "c.wav", "--verbose", "--json"}).out)[0];
    EXPECT_GT(json["effectSeconds"].get<double>(), 0.0);
    EXPECT_LE(json["effectSeconds"].get<double>() + json["openSeconds"].get<double>(),
              json["renderSeconds"].get<double>());
    EXPECT_THAT(render({"takes/a.wav", "d.wav"}).out, Not(HasSubstr("processed")));
    expectOneError(render({"takes/a.wav", "e.wav", "--verbose", "--quiet"}), 2,
                   "--quiet and --verbose exclude each other");
}

TEST_F(RenderBatchOptions, TheNumberOfJobsIsChecked) {
    EXPECT_EQ(render({"takes", "--recursive", "--out-dir", "out", "--jobs", "1"}).errors, "");
    for (const char *number : {"0", "257", "-1"})
        expectOneError(render({"takes/a.wav", "b.wav", "--jobs", number}), 2,
                       std::string("--jobs: ") + number + " is not a number from 1 to 256");
    for (const char *number : {"", "two", "1.5"})
        expectOneError(render({"takes/a.wav", "b.wav", "--jobs", number}), 2,
                       std::string("--jobs: ") + number + " is not a whole number");
}

TEST_F(RenderBatchOptions, AnOutputThatAppearsMeanwhileIsSkipped) {
    const auto whileAppearing = [&](const std::string &options) {
        fs::remove_all(folder / "out");
        return runProgram("sh",
                          {"-c", "cd " + folder.path().string() +
                                     "; " CORVEL_PROGRAM
                                     " render takes/a.wav out/ --tail 60 --block 16 --plugin " +
                                     testEffect("Whole") + options +
                                     " & until ls -A out | grep -q 'part$'; do sleep 0.01; done; "
                                     "echo other > out/a.wav; wait $!"});
    };
    EXPECT_EQ(whileAppearing(" --skip-existing").status, 0);
    EXPECT_EQ(readFile(folder / "out/a.wav"), "other\n");
    EXPECT_EQ(filesIn("out"), Names{"a.wav"});
    EXPECT_THAT(whileAppearing("").errors,
                HasSubstr("corvel: out/a.wav: exists already; --force replaces it\n"));
}

TEST_F(RenderBatchOptions, TwoRunsOnTheSameFilesDoNoHarm) {
    for (int i = 0; i < 30; ++i)
        writeSound(folder / "takes" / (std::to_string(i) + ".wav"), voice(5, 3000));
    const std::string command =
        CORVEL_PROGRAM " render takes --recursive --out-dir out --skip-existing --quiet --plugin " +
        testEffect("Whole");
    const SProgramRun run =
        runProgram("sh", {"-c", "cd " + folder.path().string() + "; " + command + " & first=$!; " +
                                    command + "; second=$?; wait $first && exit $second"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(filesIn("out"), filesIn("takes"));
}
