#include "corvel/files/CScratchFile.h"

#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>
#include <string>

using namespace Tessitor::Tool;

TEST(CScratchFile, GivesBackWhatWasWritten) {
    const CTemporaryFolder folder;
    CScratchFile file(folder / "out.wav");
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

TEST(CScratchFile, HasNoNameThatCouldBeLeftBehind) {
    const CTemporaryFolder folder;
    CScratchFile file(folder / "out.wav");
    file.write("sound", 5);
    EXPECT_TRUE(folder.names().empty());
}

TEST(CScratchFile, WorksForStandardOutput) {
    CScratchFile file("-");
    file.write("sound", 5);
    file.rewind();
    std::string found(5, ' ');
    EXPECT_EQ(file.read(found.data(), 5), 5u);
    EXPECT_EQ(found, "sound");
}
