#include "platform/NativeDrive.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

TEST(NativeDrive, TheSystemDriveHasATypeAndAFileSystem) {
    const std::string root = std::filesystem::path(nativeSystemFolder()).root_path().string();
    EXPECT_NE(nativeVolume(root).fileSystem, "");
    EXPECT_NE(nativeDriveType(root), ENativeDriveType::NoRoot);
    EXPECT_NE(nativeDriveType(root), ENativeDriveType::Unknown);
}

TEST(NativeDrive, TheSystemFolderExists) {
    EXPECT_TRUE(std::filesystem::is_directory(nativeSystemFolder()));
    EXPECT_TRUE(std::filesystem::path(nativeSystemFolder()).has_filename());
}

}  // namespace
