#include "platform/NativeDrive.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeDrive, UsesTheDeepestMountThatHoldsThePath) {
    EXPECT_EQ(nativeVolume("/proc").fileSystem, "proc");
    EXPECT_EQ(nativeVolume("/proc/self").fileSystem, "proc");
    EXPECT_NE(nativeVolume("/").fileSystem, "proc");
}

TEST(NativeDrive, FindsTheMountPointOfAPath) {
    EXPECT_EQ(nativeDriveOf("/proc/self/status"), "/proc");
    EXPECT_EQ(nativeDriveOf("/dev/shm"), "/dev/shm");
    EXPECT_EQ(nativeDriveOf("/"), "/");
    EXPECT_EQ(nativeDriveOf("/no such folder"), "");
}

TEST(NativeDrive, FollowsSymbolicLinks) {
    EXPECT_EQ(nativeDriveOf("/dev/fd"), "/proc");
    EXPECT_EQ(nativeVolume("/dev/fd").fileSystem, "proc");
}

TEST(NativeDrive, AFileSystemWithoutALabelHasNoName) {
    EXPECT_EQ(nativeVolume("/proc").name, "");
}

TEST(NativeDrive, AMissingPathHasNoDrive) {
    EXPECT_EQ(nativeDriveType("/no such folder"), ENativeDriveType::NoRoot);
    EXPECT_EQ(nativeVolume("/no such folder").fileSystem, "");
}

TEST(NativeDrive, KnowsFixedDrivesAndRamDisks) {
    EXPECT_EQ(nativeDriveType("/proc"), ENativeDriveType::Fixed);
    EXPECT_EQ(nativeDriveType("/dev/shm"), ENativeDriveType::RamDisk);
}

}  // namespace
