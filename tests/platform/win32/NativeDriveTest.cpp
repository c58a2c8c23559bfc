#include "platform/NativeDrive.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(NativeDrive, TypesHaveTheNumbersOfWindows) {
    EXPECT_EQ(static_cast<UINT>(ENativeDriveType::NoRoot), UINT{DRIVE_NO_ROOT_DIR});
    EXPECT_EQ(static_cast<UINT>(ENativeDriveType::Removable), UINT{DRIVE_REMOVABLE});
    EXPECT_EQ(static_cast<UINT>(ENativeDriveType::Fixed), UINT{DRIVE_FIXED});
    EXPECT_EQ(static_cast<UINT>(ENativeDriveType::Remote), UINT{DRIVE_REMOTE});
    EXPECT_EQ(static_cast<UINT>(ENativeDriveType::Optical), UINT{DRIVE_CDROM});
    EXPECT_EQ(static_cast<UINT>(ENativeDriveType::RamDisk), UINT{DRIVE_RAMDISK});
}

TEST(NativeDrive, FindsTheRootOfAPath) {
    const std::string root = nativeSystemFolder().substr(0, 3);
    EXPECT_EQ(nativeDriveOf(nativeSystemFolder()), root);
    EXPECT_EQ(nativeDriveOf(root + "no such folder\\file.txt"), root);
}

TEST(NativeDrive, AnUnusedLetterHasNoDrive) {
    std::string drive = "A:\\";
    for (DWORD taken = GetLogicalDrives(); (taken & 1) != 0; taken >>= 1)
        ++drive[0];
    EXPECT_EQ(nativeDriveType(drive), ENativeDriveType::NoRoot);
    EXPECT_EQ(nativeVolume(drive).fileSystem, "");
}

}  // namespace
