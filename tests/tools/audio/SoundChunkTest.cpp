#include "corvel/audio/SoundChunk.h"

#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

std::uint64_t missingIn(const std::filesystem::path &file) {
    return bytesMissing(findSoundChunk(file).value());
}

// Overwrites the four bytes after a chunk's name.
void overwriteSize(const std::filesystem::path &file, const char *chunk, const std::string &size) {
    std::string bytes = readFile(file);
    bytes.replace(bytes.find(chunk) + 4, 4, size);
    writeFile(file, bytes);
}

}  // namespace

class SoundChunkContainers : public testing::TestWithParam<int> {};

TEST_P(SoundChunkContainers, ACompleteFileMissesNothing) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1001, 1);  // an odd number of bytes in 8 and 24 bits
    for (const int type : {SF_FORMAT_PCM_16, SF_FORMAT_PCM_24, SF_FORMAT_FLOAT}) {
        sound.format = GetParam() | type;
        writeSound(folder / "whole", sound);
        EXPECT_EQ(missingIn(folder / "whole"), 0u) << type;
    }
}

TEST_P(SoundChunkContainers, MissingBytesAreCounted) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = GetParam() | SF_FORMAT_PCM_16;
    writeSound(folder / "whole", sound);
    const std::size_t length = std::filesystem::file_size(folder / "whole");
    copyHead(folder / "whole", folder / "cut", length - 100);
    EXPECT_EQ(missingIn(folder / "cut"), 100u);
}

INSTANTIATE_TEST_SUITE_P(Containers, SoundChunkContainers,
                         testing::Values(SF_FORMAT_WAV, SF_FORMAT_WAVEX, SF_FORMAT_RF64,
                                         SF_FORMAT_AIFF, SF_FORMAT_WAV | SF_ENDIAN_BIG));

TEST(SoundChunk, ChunksStartAtEvenOffsets) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "sound", sound);
    std::string bytes = readFile(folder / "sound");
    bytes.insert(bytes.find("data"), std::string("note\3\0\0\0abc\0", 12));
    writeFile(folder / "sound", bytes);
    EXPECT_EQ(missingIn(folder / "sound"), 0u);
    copyHead(folder / "sound", folder / "cut", bytes.size() - 10);
    EXPECT_EQ(missingIn(folder / "cut"), 10u);
}

TEST(SoundChunk, AFileWrittenIntoAPipeMissesNothing) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "piped", sound);
    for (const std::string &size : {std::string("\0\0\0\0", 4), std::string("\xFF\xFF\xFF\xFF"),
                                    std::string("\x00\xF0\xFF\x7F", 4)}) {
        overwriteSize(folder / "piped", "data", size);
        EXPECT_EQ(missingIn(folder / "piped"), 0u);
    }
}

TEST(SoundChunk, OtherFilesHaveNone) {
    const CTemporaryFolder folder;
    for (const std::string &bytes :
         {std::string(), std::string("RI"), std::string("RIFF"), std::string("RIFF1234WAVE"),
          std::string("RIFF1234WAVEfmt \xFF\xFF\xFF\xFF"), std::string("fLaC and so on")}) {
        writeFile(folder / "other", bytes);
        EXPECT_FALSE(findSoundChunk(folder / "other").has_value()) << bytes;
    }
}

TEST(SoundChunk, ALargePromiseIsTaken) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 1000);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "large", sound);
    overwriteSize(folder / "large", "data", std::string("\x00\x5E\xD0\xB2", 4));  // 3 GB
    EXPECT_EQ(missingIn(folder / "large"), 3000000000u - 4000u);
}

TEST(SoundChunk, ALengthOfZeroMayBeTrue) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 0);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "empty", sound);
    EXPECT_EQ(findSoundChunk(folder / "empty")->promised, 0u);
    writeFile(folder / "empty", readFile(folder / "empty") + std::string("note\4\0\0\0abcd", 12));
    EXPECT_EQ(findSoundChunk(folder / "empty")->promised, 0u);
    writeFile(folder / "empty", readFile(folder / "empty") + "some samples");
    EXPECT_FALSE(findSoundChunk(folder / "empty")->promised.has_value());
}

TEST(SoundChunk, APlaceholderBeforeMoreSoundIsNoLength) {
    const CTemporaryFolder folder;
    SSound sound = voice(1, 0);
    sound.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    writeSound(folder / "long", sound);
    overwriteSize(folder / "long", "data", "\xFF\xFF\xFF\xFF");
    std::filesystem::resize_file(folder / "long", 5000000000);
    const auto chunk = findSoundChunk(folder / "long");
    EXPECT_FALSE(chunk->promised.has_value());
    EXPECT_FALSE(correctedField(*chunk).has_value());
}

TEST(SoundChunk, TheCorrectedFieldHoldsTheLengthThatIsThere) {
    EXPECT_EQ(correctedField({44, 0x1020304, {}, 40, 4, false}), "\4\3\2\1");
    EXPECT_EQ(correctedField({44, 0x1020304, {}, 40, 4, true}), "\1\2\3\4");
    EXPECT_EQ(correctedField({44, 0x1020304, {}, 40, 8, false}),
              std::string("\4\3\2\1\0\0\0\0", 8));
}
