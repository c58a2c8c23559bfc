#include "corvel/batch/Inputs.h"

#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

class Inputs : public testing::Test {
protected:
    Inputs() { fs::create_directory(root); }

    void make(const std::string &name) {
        fs::create_directories((root / name).parent_path());
        writeFile(root / name, "");
    }

    /// @return the files found, with the folder below in front.
    Names find(const std::optional<fs::path> &output = {}) const {
        Names names;
        for (const SInput &input : filesIn({root}, output)) {
            names.push_back(input.below / input.file.filename());
            EXPECT_EQ(input.problem, "");
        }
        return names;
    }

    CTemporaryFolder folder;
    const fs::path root = folder / "takes";
};

}  // namespace

TEST_F(Inputs, AudioFilesInAllSubFoldersAreFoundInOrder) {
    for (const char *name : {"b.wav", "a.flac", "x/deep/c.ogg", "x/d.WAV", "notes.txt", "x/e"})
        make(name);
    EXPECT_EQ(find(), (Names{"a.flac", "b.wav", "x/d.WAV", "x/deep/c.ogg"}));
    EXPECT_EQ(filesIn({root}, {})[3].file, root / "x/deep/c.ogg");
    EXPECT_EQ(filesIn({root.string() + "/"}, {})[3].file, root / "x/deep/c.ogg");
}

TEST_F(Inputs, NamedFilesStayWhateverTheyAreCalled) {
    make("a.wav");
    const auto inputs = filesIn({"missing.wav", root, "notes.txt"}, {});
    ASSERT_EQ(inputs.size(), 3u);
    EXPECT_EQ(inputs[0].file, "missing.wav");
    EXPECT_EQ(inputs[1].file, root / "a.wav");
    EXPECT_EQ(inputs[2].file, "notes.txt");
}

TEST_F(Inputs, HiddenFilesAndFoldersAreLeftOut) {
    for (const char *name : {".a.wav", ".git/b.wav", "c.wav"})
        make(name);
    EXPECT_EQ(find(), Names{"c.wav"});
}

TEST_F(Inputs, AHiddenFolderIsReadIfItIsNamed) {
    make(".hidden/a.wav");
    EXPECT_EQ(filesIn({root / ".hidden"}, {}).size(), 1u);
}

TEST_F(Inputs, LinksAreFollowedUnlessTheyLoop) {
    make("x/a.wav");
    fs::create_directory_symlink(root, root / "x/loop");
    fs::create_directory_symlink(".", root / "x/itself");
    fs::create_directory_symlink("x", root / "y");
    fs::create_symlink("x/a.wav", root / "b.wav");
    EXPECT_EQ(find(), (Names{"b.wav", "x/a.wav", "y/a.wav"}));
}

TEST_F(Inputs, ALinkToNothingRemainsSoThatItFails) {
    make("a.wav");
    fs::create_symlink("nothing", root / "gone.wav");
    fs::create_symlink("self.wav", root / "self.wav");
    EXPECT_EQ(find(), (Names{"a.wav", "gone.wav", "self.wav"}));
}

TEST_F(Inputs, TheFolderOfTheOutputsIsLeftOut) {
    make("a.wav");
    make("out/a.wav");
    make("x/out/b.wav");
    EXPECT_EQ(find(root / "out"), (Names{"a.wav", "x/out/b.wav"}));
    EXPECT_EQ(find(root / "x/../out/"), (Names{"a.wav", "x/out/b.wav"}));
    EXPECT_EQ(find(root), (Names{"a.wav", "out/a.wav", "x/out/b.wav"}));
}

TEST_F(Inputs, AFolderWithTheNameOfASoundIsAFolder) {
    make("a.wav/b.wav");
    EXPECT_EQ(find(), Names{"a.wav/b.wav"});
}

TEST_F(Inputs, AFolderAmongNamedFilesHasAProblem) {
    const auto inputs = filesNamed({root, "a.wav"});
    EXPECT_EQ(inputs[0].problem, "is a folder; --recursive renders the files in it");
    EXPECT_EQ(inputs[1].problem, "");
}
