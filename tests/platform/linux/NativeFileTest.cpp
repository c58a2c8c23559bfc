#include "platform/NativeFile.h"

#include "CTemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

TEST(NativeFileOnLinux, MarksWhatBeginsWithADotAsHidden) {
    const CTemporaryFolder folder;
    std::ofstream(folder / ".hidden");
    std::ofstream(folder / "plain");
    std::filesystem::create_directory(folder / ".both");
    EXPECT_EQ(nativeFile((folder / ".hidden").string())->attributes, 2u);
    EXPECT_EQ(nativeFile((folder / "plain").string())->attributes, 128u);
    EXPECT_EQ(nativeFile((folder / ".both").string())->attributes, 18u);
}

TEST(NativeFileOnLinux, CountsALinkAsWhatItLeadsTo) {
    const CTemporaryFolder folder;
    std::filesystem::create_directory(folder / "inner");
    std::filesystem::create_directory_symlink(folder / "inner", folder / "link");
    std::filesystem::create_symlink(folder / "none", folder / "broken");
    EXPECT_EQ(nativeFileCount(folder.path().string()), 1);
    EXPECT_NE(nativeFile((folder / "link").string())->attributes & nativeFolderAttribute, 0u);
}

}  // namespace
