#include "foundation/DriveServices.h"

#include "CTemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using namespace Tessitor::Host;
using Tessitor::Basics::CSystemString;

namespace {

TEST(DriveServices, TellTheDriveOfTheSystem) {
    const CSystemString drive = getWindowsFolder().getDrive(true);
    EXPECT_STRNE(getFileSystem(drive).getString(), "");
    EXPECT_NE(getDriveType(drive), ENativeDriveType::NoRoot);
    EXPECT_STREQ(getVolumeName(drive).getString(), nativeVolume(drive.getString()).name.c_str());
}

TEST(DriveServices, ADriveIsOfOneKindAtMost) {
    const CSystemString drive = getWindowsFolder().getDrive(true);
    const ENativeDriveType type = getDriveType(drive);
    EXPECT_EQ(isFixedDrive(drive), type == ENativeDriveType::Fixed);
    EXPECT_EQ(isRemoteDrive(drive), type == ENativeDriveType::Remote);
    EXPECT_EQ(isOpticalDrive(drive), type == ENativeDriveType::Optical);
    EXPECT_LE(isFixedDrive(drive) + isRemoteDrive(drive) + isOpticalDrive(drive), 1);
}

TEST(DriveServices, ADriveThatIsNotThereIsOfNoKind) {
    const CTemporaryFolder folder;
    const CSystemString drive = (folder / "none").string().c_str();
    EXPECT_EQ(getDriveType(drive), ENativeDriveType::NoRoot);
    EXPECT_FALSE(isFixedDrive(drive) || isRemoteDrive(drive) || isOpticalDrive(drive));
    EXPECT_STREQ(getFileSystem(drive).getString(), "");
    EXPECT_STREQ(getVolumeName(drive).getString(), "");
}

TEST(DriveServices, WindowsFolderIsTheSystems) {
    EXPECT_TRUE(std::filesystem::is_directory(getWindowsFolder().getString()));
}

TEST(DriveServices, CountFilesButNoFolders) {
    const CTemporaryFolder folder;
    std::ofstream{folder / "one"};
    std::ofstream{folder / "two"};
    std::filesystem::create_directory(folder / "three");
    EXPECT_EQ(getFileCount(folder.path().string().c_str()), 2);
    EXPECT_EQ(getFileCount((folder / "none").string().c_str()), 0);
}

}  // namespace
