#include "foundation/DriveServices.h"

#include "foundation/FakeMachine.h"

using namespace Tessitor::Host;

namespace {

class DriveServices : public CFakeMachineTest {};

TEST_F(DriveServices, FindTheDriveOfAPath) {
    machine.drives["/voices"];
    EXPECT_STREQ(getDriveOf("/voices/lead.wav").getString(), "/voices");
    EXPECT_STREQ(getDriveOf("/choirs/lead.wav").getString(), "");
}

TEST_F(DriveServices, ReturnVolumeNameAndFileSystem) {
    machine.drives["/voices"].volume = {"Voices", "ext4"};
    EXPECT_STREQ(getVolumeName("/voices").getString(), "Voices");
    EXPECT_STREQ(getFileSystem("/voices").getString(), "ext4");
}

TEST_F(DriveServices, DistinguishAllTypesOfDrive) {
    using enum ENativeDriveType;
    for (const auto type : {Unknown, NoRoot, Removable, Fixed, Remote, Optical, RamDisk}) {
        machine.drives["/voices"].type = type;
        EXPECT_EQ(getDriveType("/voices"), type);
        EXPECT_EQ(isFixedDrive("/voices"), type == Fixed);
        EXPECT_EQ(isRemoteDrive("/voices"), type == Remote);
        EXPECT_EQ(isOpticalDrive("/voices"), type == Optical);
    }
}

TEST_F(DriveServices, ReturnTheSystemFolder) {
    machine.systemFolder = "/system";
    EXPECT_STREQ(getWindowsFolder().getString(), "/system");
}

TEST_F(DriveServices, CountTheFilesOfAFolder) {
    machine.fileCounts["/voices"] = 7;
    EXPECT_EQ(getFileCount("/voices"), 7);
    EXPECT_EQ(getFileCount("/choirs"), 0);
}

}  // namespace
