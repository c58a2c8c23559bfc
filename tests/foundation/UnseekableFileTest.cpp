// How a binary stream reports a file that cannot seek.
#include "CTemporaryFolder.h"
#include "foundation/CFileStream.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <sys/stat.h>

using Tessitor::IO::CFileStream;
using Tessitor::IO::EStreamMode;

namespace {

TEST(UnseekableFile, HasNoLengthSoAskingForItFailsTheStream) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "pipe").string();
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    // Without a writer, opening the pipe for reading would wait for one.
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> writer(std::fopen(path.c_str(), "r+b"),
                                                                  std::fclose);
    ASSERT_NE(writer, nullptr);

    CFileStream stream(path.c_str(), EStreamMode::Read);
    ASSERT_TRUE(stream.isOpen());
    EXPECT_FALSE(stream.seekFromStart(0));
    EXPECT_FALSE(stream.hasFailed());
    EXPECT_EQ(stream.getStreamLength(), -1);
    EXPECT_TRUE(stream.hasFailed());
}

}  // namespace
