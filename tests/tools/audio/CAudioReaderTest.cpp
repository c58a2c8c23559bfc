#include "corvel/audio/CAudioReader.h"

#include "corvel/console/Errors.h"
#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

std::vector<float> readAll(CAudioReader &reader, std::int64_t frames) {
    std::vector<float> all;
    std::vector<float> chunk(static_cast<std::size_t>(frames * reader.channels()));
    while (const std::int64_t read = reader.read(chunk.data(), frames))
        all.insert(all.end(), chunk.begin(), chunk.begin() + read * reader.channels());
    return all;
}

std::string refusal(const std::filesystem::path &file) {
    try {
        CAudioReader reader(file);
        readAll(reader, 1000);
    } catch (const CJobError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

class CAudioReaderFormats : public testing::TestWithParam<int> {};

TEST_P(CAudioReaderFormats, ReadsEverySampleExactly) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 4321);
    sound.format = GetParam();
    sound.sampleRate = 48000;
    writeSound(folder / "sound", sound);
    CAudioReader reader(folder / "sound");
    EXPECT_EQ(reader.channels(), 2);
    EXPECT_EQ(reader.sampleRate(), 48000);
    EXPECT_EQ(reader.format(), GetParam());
    EXPECT_TRUE(reader.knowsLength());
    EXPECT_EQ(reader.frames(), 4321);
    EXPECT_EQ(readAll(reader, 1000),
              std::vector<float>(sound.samples.begin(), sound.samples.end()));
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CAudioReaderFormats,
    testing::Values(SF_FORMAT_WAV | SF_FORMAT_FLOAT, SF_FORMAT_WAV | SF_FORMAT_DOUBLE,
                    SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_WAVEX | SF_FORMAT_PCM_24,
                    SF_FORMAT_RF64 | SF_FORMAT_PCM_32, SF_FORMAT_AIFF | SF_FORMAT_PCM_16,
                    SF_FORMAT_AIFF | SF_FORMAT_FLOAT, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                    SF_FORMAT_FLAC | SF_FORMAT_PCM_24));

TEST(CAudioReader, AFileThatIsCutShortIsRefused) {
    const CTemporaryFolder folder;
    for (const int format : {SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_AIFF | SF_FORMAT_PCM_24,
                             SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_OGG | SF_FORMAT_VORBIS}) {
        SSound sound = voice(3, 44100);
        sound.format = format;
        writeSound(folder / "whole", sound);
        EXPECT_EQ(refusal(folder / "whole"), "");
        const std::size_t length = std::filesystem::file_size(folder / "whole");
        for (const std::size_t tenths : {5u, 8u, 9u}) {
            copyHead(folder / "whole", folder / "cut", length * tenths / 10);
            EXPECT_THAT(refusal(folder / "cut"), HasSubstr("truncated")) << format << tenths;
        }
        copyHead(folder / "whole", folder / "cut", 20);
        EXPECT_THAT(refusal(folder / "cut"), HasSubstr("cut: not a readable audio file"));
    }
}

TEST(CAudioReader, DamageInsideACompressedFileIsRefused) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 44100);
    sound.format = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
    writeSound(folder / "sound", sound);
    std::string bytes = readFile(folder / "sound");
    bytes.replace(bytes.size() / 2, 20000, std::string(20000, '\0'));
    writeFile(folder / "sound", bytes);
    EXPECT_THAT(refusal(folder / "sound"), HasSubstr(folder / "sound"));
}

TEST(CAudioReader, FlacWithoutALengthIsRead) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 5000);
    sound.format = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
    writeSound(folder / "piped", sound);
    // Clears the number of frames: the 36 bits in front of the checksum, which starts at byte 26.
    std::string bytes = readFile(folder / "piped");
    bytes[21] = static_cast<char>(bytes[21] & '\xF0');
    bytes.replace(22, 4, std::string(4, '\0'));
    writeFile(folder / "piped", bytes);
    CAudioReader reader(folder / "piped");
    EXPECT_FALSE(reader.knowsLength());
    EXPECT_EQ(readAll(reader, 1000),
              std::vector<float>(sound.samples.begin(), sound.samples.end()));
}

TEST(CAudioReader, OtherFilesAreRefused) {
    const CTemporaryFolder folder;
    EXPECT_THAT(refusal(folder / "missing.wav"), HasSubstr("missing.wav: no such file"));
    EXPECT_THAT(refusal(folder.path()), HasSubstr(": not a file"));
    writeFile(folder / "empty.wav", "");
    EXPECT_THAT(refusal(folder / "empty.wav"), HasSubstr("not a readable audio file"));
    writeFile(folder / "text.wav", std::string(5000, 'x'));
    EXPECT_THAT(refusal(folder / "text.wav"), HasSubstr("not a readable audio file"));

    SSound sound = voice(3, 100);
    sound.format = SF_FORMAT_AU | SF_FORMAT_PCM_16;
    writeSound(folder / "sound.au", sound);
    EXPECT_THAT(refusal(folder / "sound.au"), HasSubstr("not a WAV, AIFF, FLAC or Ogg file"));
}

TEST(CAudioReader, MoreThanTwoChannelsAreRefused) {
    const CTemporaryFolder folder;
    writeSound(folder / "three.wav", voice(3, 100, 3));
    EXPECT_THAT(refusal(folder / "three.wav"),
                HasSubstr("has 3 channels; only mono and stereo can be rendered"));
}

TEST(CAudioReader, AnOggFileOfSeveralLinksIsReadToItsEnd) {
    const CTemporaryFolder folder;
    SSound first = voice(3, 30000), second = voice(4, 20000);
    first.format = second.format = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    writeSound(folder / "first", first);
    writeSound(folder / "second", second);
    writeFile(folder / "chain", readFile(folder / "first") + readFile(folder / "second"));

    CAudioReader whole(folder / "chain"), head(folder / "first"), tail(folder / "second");
    EXPECT_EQ(whole.frames(), 50000);
    std::vector<float> expected = readAll(head, 999);
    const std::vector<float> rest = readAll(tail, 999);
    expected.insert(expected.end(), rest.begin(), rest.end());
    EXPECT_EQ(readAll(whole, 1000), expected);

    copyHead(folder / "chain", folder / "cut", std::filesystem::file_size(folder / "chain") - 1);
    EXPECT_THAT(refusal(folder / "cut"), HasSubstr("truncated"));
}

TEST(CAudioReader, LinksOfDifferentRatesAreRefused) {
    const CTemporaryFolder folder;
    SSound first = voice(3, 3000), second = voice(4, 2000);
    first.format = second.format = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    second.sampleRate = 48000;
    writeSound(folder / "first", first);
    writeSound(folder / "second", second);
    writeFile(folder / "chain", readFile(folder / "first") + readFile(folder / "second"));
    EXPECT_THAT(refusal(folder / "chain"), HasSubstr("changes its sample rate"));
}

TEST(CAudioReader, AnOggFileCutBetweenTwoPagesIsRefused) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 200000);
    sound.format = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    writeSound(folder / "whole", sound);
    copyHead(folder / "whole", folder / "cut", readFile(folder / "whole").rfind("OggS"));
    EXPECT_THAT(refusal(folder / "cut"), HasSubstr("truncated, the end of the audio is missing"));
}

namespace {

// Overwrites the length of the sound: in an RF64 file the 64-bit one, otherwise that of the chunk.
void overwriteLength(const std::filesystem::path &file, char byte) {
    std::string bytes = readFile(file);
    if (bytes.starts_with("RF64"))
        bytes.replace(28, 8, std::string(8, byte));
    else
        bytes.replace(bytes.find("data") + 4, 4, std::string(4, byte));
    writeFile(file, bytes);
}

}  // namespace

TEST(CAudioReader, AWavFileWithoutALengthIsReadToItsEnd) {
    const CTemporaryFolder folder;
    for (const int format :
         {SF_FORMAT_WAV | SF_FORMAT_FLOAT, SF_FORMAT_WAVEX | SF_FORMAT_PCM_16,
          SF_FORMAT_WAV | SF_FORMAT_PCM_16 | SF_ENDIAN_BIG, SF_FORMAT_RF64 | SF_FORMAT_PCM_24}) {
        for (const char byte : {'\0', '\xFF'}) {
            SSound sound = voice(3, 5000);
            sound.format = format;
            writeSound(folder / "piped", sound);
            overwriteLength(folder / "piped", byte);
            CAudioReader reader(folder / "piped");
            EXPECT_EQ(reader.frames(), 5000) << std::hex << format;
            EXPECT_EQ(readAll(reader, 1000),
                      std::vector<float>(sound.samples.begin(), sound.samples.end()));
        }
    }
}

TEST(CAudioReader, HalfAnRf64FileIsRefused) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 5000);
    sound.format = SF_FORMAT_RF64 | SF_FORMAT_PCM_16;
    writeSound(folder / "whole", sound);
    copyHead(folder / "whole", folder / "half", std::filesystem::file_size(folder / "whole") / 2);
    EXPECT_THAT(refusal(folder / "half"), HasSubstr("half: truncated, "));
}

TEST(CAudioReader, NoTextOfTheLibraryIsShown) {
    const CTemporaryFolder folder;
    writeFile(folder / "text.wav", std::string(5000, 'x'));
    EXPECT_EQ(refusal(folder / "text.wav"),
              (folder / "text.wav").string() + ": not a readable audio file");
}
