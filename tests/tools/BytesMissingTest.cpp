#include "corvel/BytesMissing.h"

#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using Tessitor::Tool::bytesMissing;

namespace {

// Overwrites the four bytes after a chunk's name.
void overwriteSize(const std::filesystem::path &file, const char *chunk, const std::string &size) {
    std::string bytes = readFile(file);
    bytes.replace(bytes.find(chunk) + 4, 4, size);
    writeFile(file, bytes);
}

}  // namespace

class BytesMissingContainers : public testing::TestWithParam<int> {};

TEST_P(BytesMissingContainers, ACompleteFileMissesNothing) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1001, 1);  // an odd number of bytes in 8 and 24 bits
    for (const int type : {SF_FORMAT_PCM_16, SF_FORMAT_PCM_24, SF_FORMAT_FLOAT}) {
        sound.format = GetParam() | type;
        writeSound(folder / "whole", sound);
        EXPECT_EQ(bytesMissing(folder / "whole"), 0u) << type;
    }
}

TEST_P(BytesMissingContainers, MissingBytesAreCounted) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = GetParam() | SF_FORMAT_PCM_16;
    writeSound(folder / "whole", sound);
    const std::size_t length = std::filesystem::file_size(folder / "whole");
    copyHead(folder / "whole", folder / "cut", length - 100);
    EXPECT_EQ(bytesMissing(folder / "cut"), 100u);
}

INSTANTIATE_TEST_SUITE_P(Containers, BytesMissingContainers,
                         testing::Values(SF_FORMAT_WAV, SF_FORMAT_WAVEX, SF_FORMAT_AIFF,
                                         SF_FORMAT_WAV | SF_ENDIAN_BIG));

TEST(BytesMissing, ChunksStartAtEvenOffsets) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "sound", sound);
    std::string bytes = readFile(folder / "sound");
    bytes.insert(bytes.find("data"), std::string("note\3\0\0\0abc\0", 12));
    writeFile(folder / "sound", bytes);
    EXPECT_EQ(bytesMissing(folder / "sound"), 0u);
    copyHead(folder / "sound", folder / "cut", bytes.size() - 10);
    EXPECT_EQ(bytesMissing(folder / "cut"), 10u);
}

TEST(BytesMissing, AFileWrittenIntoAPipeMissesNothing) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "piped", sound);
    for (const std::string &size : {std::string("\0\0\0\0", 4), std::string("\xFF\xFF\xFF\xFF"),
                                    std::string("\x00\xF0\xFF\x7F", 4)}) {
        overwriteSize(folder / "piped", "data", size);
        EXPECT_EQ(bytesMissing(folder / "piped"), 0u);
    }
}

TEST(BytesMissing, OtherFilesMissNothing) {
    const CTemporaryFolder folder;
    for (const std::string &bytes :
         {std::string(), std::string("RI"), std::string("RIFF"), std::string("RIFF1234WAVE"),
          std::string("RIFF1234WAVEfmt \xFF\xFF\xFF\xFF"), std::string("fLaC and so on")}) {
        writeFile(folder / "other", bytes);
        EXPECT_EQ(bytesMissing(folder / "other"), 0u) << bytes;
    }
}
