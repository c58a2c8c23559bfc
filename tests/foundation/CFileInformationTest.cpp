#include "foundation/CFileInformation.h"

#include "CTemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>

using Tessitor::Host::CFileInformation;

namespace {

class CFileInformationTest : public testing::Test {
protected:
    CFileInformationTest() { std::ofstream(folder / "Voice 1.wav") << "seven b"; }

    CTemporaryFolder folder;
    const std::string path = (folder / "Voice 1.wav").string();
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
    const CFileInformation file(path.c_str());
    EXPECT_FALSE(file.isFolder());
    EXPECT_EQ(file.getFileSize(), 7u);
    EXPECT_STREQ(file.getDisplayName().getString(), "Voice 1.wav");
    EXPECT_STREQ(file.getExtension().getString(), ".wav");
    EXPECT_EQ(file.getFullPath().getString(), path);
    EXPECT_STRNE(file.getShortName().getString(), "");
    EXPECT_GE(file.getLastWriteTime().getYear(), 2020);
    EXPECT_GE(file.getLastAccessTime().getYear(), 2020);
}

TEST_F(CFileInformationTest, ReadsAFolder) {
    const CFileInformation file(folder.path().string().c_str());
    EXPECT_TRUE(file.isFolder());
    EXPECT_EQ(file.getDisplayName().getString(), folder.path().filename());
    EXPECT_STREQ(file.getExtension().getString(), "");
}

TEST_F(CFileInformationTest, AFileThatIsNotThereChangesNothing) {
    CFileInformation file(path.c_str());
    EXPECT_FALSE(file.readInformation((folder / "none").string().c_str()));
    EXPECT_STREQ(file.getDisplayName().getString(), "Voice 1.wav");
    EXPECT_EQ(CFileInformation((folder / "none").string().c_str()).getAttributes(), 11u);
}

TEST_F(CFileInformationTest, ReadsAgain) {
    CFileInformation file(path.c_str());
    EXPECT_TRUE(file.readInformation(folder.path().string().c_str()));
    EXPECT_TRUE(file.isFolder());
    EXPECT_STREQ(file.getExtension().getString(), "");
}

TEST_F(CFileInformationTest, AssignsAndCopiesEverything) {
    const CFileInformation file(path.c_str());
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
        const CFileInformation copy(file), read(path.c_str());
        EXPECT_EQ(file.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(file.getClass().getInstanceCount(), instances);
}

}  // namespace
