#include "corvel/plot/PictureFile.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;

TEST(PictureFile, TheEndingNamesTheFormat) {
    EXPECT_EQ(pictureFormatOf("a.svg"), EPictureFormat::Svg);
    EXPECT_EQ(pictureFormatOf("b/a.v2.PNG"), EPictureFormat::Png);
    for (const char *name : {"a.jpg", "svg", ".svg", "a.svg.gz", "a"})
        EXPECT_THROW(pictureFormatOf(name), CCallError) << name;
}

TEST(PictureFile, OnlySvgCanFollowTheViewer) {
    EXPECT_EQ(usualTheme(EPictureFormat::Svg), ETheme::Viewer);
    EXPECT_EQ(usualTheme(EPictureFormat::Png), ETheme::Light);
}

TEST(PictureFile, ReplacesAFileOnlyIfAskedTo) {
    const CTemporaryFolder folder;
    writePicture(folder / "a.svg", "first", EExisting::Kept);
    EXPECT_THROW(writePicture(folder / "a.svg", "second", EExisting::Kept), CJobError);
    EXPECT_EQ(readFile(folder / "a.svg"), "first");
    writePicture(folder / "a.svg", "second", EExisting::Replaced);
    EXPECT_EQ(readFile(folder / "a.svg"), "second");
    EXPECT_THAT(folder.names(), testing::ElementsAre("a.svg"));
}

TEST(PictureFile, AMissingFolderIsNotMade) {
    const CTemporaryFolder folder;
    EXPECT_THROW(writePicture(folder / "none/a.svg", "bytes", EExisting::Kept), CJobError);
    EXPECT_TRUE(folder.names().empty());
}
