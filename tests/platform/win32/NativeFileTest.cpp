#include "platform/NativeFile.h"

#include "CTemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(NativeFileOnWindows, GivesTheAttributesThatTheSystemKeeps) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "hidden").string();
    std::ofstream{path};
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(nativeFile(path)->attributes & FILE_ATTRIBUTE_HIDDEN, DWORD{FILE_ATTRIBUTE_HIDDEN});
    static_assert(nativeFolderAttribute == FILE_ATTRIBUTE_DIRECTORY);
}

TEST(NativeFileOnWindows, TakesTheFirstMatchOfAPattern) {
    const CTemporaryFolder folder;
    std::ofstream{folder / "Voice.wav"};
    EXPECT_EQ(nativeFile((folder / "*.wav").string())->name, "Voice.wav");
}

}  // namespace
