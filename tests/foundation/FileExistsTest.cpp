#include "foundation/FileExists.h"

#include "CTemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>

using Tessitor::Basics::CSystemString;
using Tessitor::Host::fileExists;
using Tessitor::Host::folderExists;

namespace {

CSystemString text(const std::filesystem::path &path) {
    return path.string().c_str();
}

TEST(FileExists, IsTrueForAnExistingFile) {
    const CTemporaryFolder folder;
    EXPECT_FALSE(fileExists(text(folder / "file.txt")));
    std::ofstream(folder / "file.txt").flush();
    EXPECT_TRUE(fileExists(text(folder / "file.txt")));
}

TEST(FileExists, JoinsFolderAndName) {
    const CTemporaryFolder folder;
    std::ofstream(folder / "file.txt").flush();
    EXPECT_TRUE(fileExists(text(folder.path()), "file.txt"));
    EXPECT_TRUE(fileExists(text(folder / ""), "file.txt")) << "folder with a trailing separator";
    EXPECT_FALSE(fileExists(text(folder.path()), "other.txt"));
}

TEST(FileExists, IsFalseForAFolder) {
    const CTemporaryFolder folder;
    EXPECT_FALSE(fileExists(text(folder.path())));
    EXPECT_FALSE(fileExists(""));
}

TEST(FolderExists, IsTrueForAFolderOnly) {
    const CTemporaryFolder folder;
    std::ofstream(folder / "file.txt").flush();
    EXPECT_TRUE(folderExists(text(folder.path())));
    EXPECT_FALSE(folderExists(text(folder / "file.txt")));
    EXPECT_FALSE(folderExists(text(folder / "nothing")));
    EXPECT_FALSE(folderExists(""));
}

TEST(FolderExists, AllowsASeparatorAtTheEnd) {
    const CTemporaryFolder folder;
    EXPECT_TRUE(folderExists(text(folder / "")));
    EXPECT_TRUE(folderExists(text(folder.path().root_path()))) << "the root of the drive";
}

TEST(FolderExists, APatternIsNotAFolder) {
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "inner");
    EXPECT_FALSE(folderExists(text(folder / "*")));
    EXPECT_FALSE(folderExists(text(folder / "inn?r")));
}

}  // namespace
