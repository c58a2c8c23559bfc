#include "corvel/files/CScratchFile.h"

#include "corvel/console/Errors.h"
#include "corvel/files/PartFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>
#include <string>

using namespace Tessitor::Tool;

TEST(CScratchFile, GivesBackWhatWasWritten) {
    const CTemporaryFolder folder;
    CScratchFile file(folder / "out.wav", EExisting::Kept);
    const std::string text(100000, 'x');
    file.write("first", 5);
    file.write(text.data(), text.size());
    for (int pass = 0; pass < 2; ++pass) {
        file.rewind();
        std::string found(200000, ' ');
        EXPECT_EQ(file.read(found.data(), 3), 3u);
        EXPECT_EQ(file.read(found.data() + 3, 199997), 100002u);
        EXPECT_EQ(found.substr(0, 100005), "first" + text);
    }
}

TEST(CScratchFile, LeavesNothing) {
    const CTemporaryFolder folder;
    {
        CScratchFile file(folder / "out.wav", EExisting::Kept);
        file.write("sound", 5);
        EXPECT_EQ(folder.names().size(), 1u);
    }
    EXPECT_TRUE(folder.names().empty());
}

TEST(CScratchFile, ASignalLeavesNothing) {
    const CTemporaryFolder folder;
    const CScratchFile file(folder / "out.wav", EExisting::Kept);
    removePartFiles();
    EXPECT_TRUE(folder.names().empty());
}

TEST(CScratchFile, ReportsAFolderThatIsNotThere) {
    EXPECT_THROW(CScratchFile("/nowhere/out.wav", EExisting::Kept), CJobError);
}
