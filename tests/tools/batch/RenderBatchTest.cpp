#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/JsonLines.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

class RenderBatch : public testing::Test {
protected:
    RenderBatch() {
        writeSound(folder / "a.wav", voice(21, 3000));
        writeSound(folder / "b.wav", voice(22, 1000));
    }

    SProgramRun render(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "render");
        arguments.insert(arguments.begin() + 1, {"--plugin", testEffect("Whole")});
        return corvel(arguments, "cd " + folder.path().string() + ";");
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(RenderBatch, TheFolderIsMade) {
    for (const std::vector<std::string> &call :
         {std::vector<std::string>{"a.wav", "b.wav", "new/deep/"},
          {"a.wav", "b.wav", "--out-dir", "other/deep"},
          {"a.wav", "alone/"}}) {
        EXPECT_EQ(render(call).errors, "");
    }
    EXPECT_EQ(readSound(folder / "new/deep/b.wav").frames(), 1000u);
    EXPECT_EQ(readSound(folder / "other/deep/a.wav").frames(), 3000u);
    EXPECT_EQ(readSound(folder / "alone/a.wav").frames(), 3000u);
}

TEST_F(RenderBatch, AFolderThatCannotBeMadeIsReportedInOneLine) {
    const SProgramRun run = render({"a.wav", "--out-dir", "b.wav/deep"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "corvel: b.wav/deep: this folder cannot be made (Not a directory)\n");
}

TEST_F(RenderBatch, SeveralInputsWithoutAFolderAreAWrongCall) {
    const SProgramRun run = render({"a.wav", "b.wav", "missing"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "corvel: missing: several inputs need a folder for their outputs; name "
                          "it with --out-dir or end it in a slash\n");
    EXPECT_FALSE(fs::exists(folder / "missing"));
}

TEST_F(RenderBatch, ABadFileFailsAlone) {
    writeFile(folder / "bad.wav", "bad");
    fs::create_symlink("loop.wav", folder / "loop.wav");
    const std::string tooLong(300, 'x');
    const SProgramRun run =
        render({"a.wav", "bad.wav", "missing.wav", "loop.wav", "a.wav/below.wav", tooLong, "b.wav",
                "--out-dir", "batch", "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "corvel: bad.wav: not a readable audio file\n"
                          "corvel: missing.wav: no such file\n"
                          "corvel: loop.wav: cannot be read (Too many levels of symbolic links)\n"
                          "corvel: a.wav/below.wav: no such file\n"
                          "corvel: " +
                              tooLong +
                              ": cannot be read (File name too long)\n"
                              "corvel: 2 of 7 files rendered, 5 failed\n");
    EXPECT_EQ(readSound(folder / "batch/a.wav").frames(), 3000u);
    EXPECT_EQ(readSound(folder / "batch/b.wav").frames(), 1000u);
    EXPECT_FALSE(fs::exists(folder / "batch/bad.wav"));

    const std::vector<nlohmann::json> files = jsonLines(run.out);
    ASSERT_EQ(files.size(), 7u);
    for (const nlohmann::json &file : files) {
        const bool failed = file["in"] != "a.wav" && file["in"] != "b.wav";
        EXPECT_EQ(file["status"], failed ? "failed" : "rendered");
        EXPECT_EQ(file.contains("error"), failed);
        if (file["in"] == "bad.wav") {
            EXPECT_EQ(file["error"], "bad.wav: not a readable audio file");
        }
    }
}

TEST_F(RenderBatch, AnExistingOutputFailsAlone) {
    fs::create_directory(folder / "batch");
    writeFile(folder / "batch/a.wav", "old");
    const SProgramRun run = render({"a.wav", "b.wav", "batch"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "corvel: batch/a.wav: exists already; --force replaces it\n"
                          "corvel: 1 of 2 files rendered, 1 failed\n");
    EXPECT_EQ(readFile(folder / "batch/a.wav"), "old");
    EXPECT_EQ(readSound(folder / "batch/b.wav").frames(), 1000u);
}

TEST_F(RenderBatch, TheLastLineSumsUp) {
    EXPECT_THAT(render({"a.wav", "b.wav", "batch/"}).out, EndsWith("\n2 of 2 files rendered\n"));
    fs::remove(folder / "batch/b.wav");
    const SProgramRun run = render({"a.wav", "b.wav", "batch/", "--skip-existing"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "corvel: 1 of 2 files rendered, 1 skipped\n");
    EXPECT_THAT(run.out, Not(HasSubstr("batch/a.wav")));
}

TEST_F(RenderBatch, OneNoteCoversAllFiles) {
    SSound sound = voice(23, 100);
    sound.sampleRate = 48000;
    writeSound(folder / "c.wav", sound);
    writeSound(folder / "d.wav", sound);
    EXPECT_EQ(render({"a.wav", "c.wav", "d.wav", "batch/"}).errors,
              "corvel: note: 2 files have another sample rate, but the strip is tuned for 44100 "
              "Hz; --resample converts\n");
}
