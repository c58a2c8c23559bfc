#include "foundation/CFileInformation.h"

#include "foundation/FakeMachine.h"

using Tessitor::Host::CFileInformation;

namespace {

constexpr std::uint64_t second = 10'000'000, hour = 3600 * second, millisecond = 10'000;
constexpr std::uint64_t at1970 = 116'444'736'000'000'000;

class CFileInformationTest : public CFakeMachineTest {
protected:
    CFileInformationTest() {
        machine.files["/voices/Voice 1.wav"] = {128,
                                                at1970 + hour + 1 * millisecond,
                                                at1970 + 2 * hour + 22 * millisecond,
                                                at1970 + 3 * hour + 333 * millisecond,
                                                std::uint64_t{1} << 40,
                                                "Voice 1.wav",
                                                "VOICE1~1.WAV"};
        machine.files["/voices"] = {nativeFolderAttribute, 0, 0, 0, 0, "voices", ""};
    }

    const char *const path = "/voices/Voice 1.wav";
};

TEST_F(CFileInformationTest, HoldsNothingAtFirst) {
    const CFileInformation file;
    EXPECT_EQ(file.getAttributes(), 11u);
    EXPECT_FALSE(file.isFolder());
    EXPECT_EQ(file.getFileSize(), 0u);
    EXPECT_EQ(file.getCreationTime().getYear(), 0);
    EXPECT_STREQ(file.getDisplayName().getString(), "");
    EXPECT_STREQ(file.getFullPath().getString(), "");
}

TEST_F(CFileInformationTest, ReadsAFile) {
    const CFileInformation file(path);
    EXPECT_EQ(file.getAttributes(), 128u);
    EXPECT_FALSE(file.isFolder());
    EXPECT_EQ(file.getFileSize(), std::uint64_t{1} << 40);
    EXPECT_STREQ(file.getDisplayName().getString(), "Voice 1.wav");
    EXPECT_STREQ(file.getShortName().getString(), "VOICE1~1.WAV");
    EXPECT_STREQ(file.getExtension().getString(), ".wav");
    EXPECT_STREQ(file.getFullPath().getString(), path);
}

TEST_F(CFileInformationTest, ReadsThreeTimesToTheMillisecond) {
    const CFileInformation file(path);
    EXPECT_STREQ(file.getCreationTime().getDate().getString(), "01/01/1970");
    EXPECT_STREQ(file.getCreationTime().getTime().getString(), "01:00:00:01");
    EXPECT_STREQ(file.getLastAccessTime().getTime().getString(), "02:00:00:22");
    EXPECT_STREQ(file.getLastWriteTime().getTime().getString(), "03:00:00:333");
}

TEST_F(CFileInformationTest, ATimeThatIsNotRecordedIsAllZero) {
    const CFileInformation folder("/voices");
    EXPECT_STREQ(folder.getCreationTime().getDate().getString(), "00/00/0000");
    EXPECT_STREQ(folder.getLastAccessTime().getDate().getString(), "00/00/0000");
    EXPECT_STREQ(folder.getLastWriteTime().getDate().getString(), "00/00/0000");
}

TEST_F(CFileInformationTest, ReadsAFolder) {
    const CFileInformation folder("/voices");
    EXPECT_TRUE(folder.isFolder());
    EXPECT_STREQ(folder.getDisplayName().getString(), "voices");
    EXPECT_STREQ(folder.getExtension().getString(), "");
}

TEST_F(CFileInformationTest, UsesTheNameIfThereIsNoShortName) {
    EXPECT_STREQ(CFileInformation("/voices").getShortName().getString(), "voices");
}

TEST_F(CFileInformationTest, AMissingFileChangesNothing) {
    CFileInformation file(path);
    EXPECT_FALSE(file.readInformation("/voices/none"));
    EXPECT_STREQ(file.getDisplayName().getString(), "Voice 1.wav");
    EXPECT_EQ(CFileInformation("/voices/none").getAttributes(), 11u);
}

TEST_F(CFileInformationTest, ReadsAgain) {
    CFileInformation file(path);
    EXPECT_TRUE(file.readInformation("/voices"));
    EXPECT_TRUE(file.isFolder());
    EXPECT_STREQ(file.getExtension().getString(), "");
    EXPECT_EQ(file.getLastWriteTime().getYear(), 0);
}

TEST_F(CFileInformationTest, AssignsAndCopiesEverything) {
    const CFileInformation file(path);
    CFileInformation assigned;
    assigned = file;
    for (const CFileInformation &other : {assigned, CFileInformation(file)}) {
        EXPECT_EQ(other.getAttributes(), file.getAttributes());
        EXPECT_EQ(other.getFileSize(), file.getFileSize());
        EXPECT_EQ(other.getCreationTime().toFileTime(), file.getCreationTime().toFileTime());
        EXPECT_EQ(other.getLastAccessTime().toFileTime(), file.getLastAccessTime().toFileTime());
        EXPECT_EQ(other.getLastWriteTime().toFileTime(), file.getLastWriteTime().toFileTime());
        EXPECT_TRUE(other.getShortName() == file.getShortName());
        EXPECT_TRUE(other.getExtension() == file.getExtension());
        EXPECT_TRUE(other.getDisplayName() == file.getDisplayName());
        EXPECT_TRUE(other.getFullPath() == file.getFullPath());
    }
}

TEST_F(CFileInformationTest, EveryConstructorCounts) {
    const CFileInformation file;
    EXPECT_TRUE(file.getClass() == "CFileInformation");
    const auto instances = file.getClass().getInstanceCount();
    {
        const CFileInformation copy(file), read(path);
        EXPECT_EQ(file.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(file.getClass().getInstanceCount(), instances);
}

}  // namespace
