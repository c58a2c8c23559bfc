#include "corvel/audio/CAudioReader.h"

#include "corvel/audio/Mp3Length.h"
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
                    SF_FORMAT_FLAC | SF_FORMAT_PCM_24, SF_FORMAT_W64 | SF_FORMAT_FLOAT,
                    SF_FORMAT_CAF | SF_FORMAT_PCM_24, SF_FORMAT_CAF | SF_FORMAT_ALAC_16,
                    SF_FORMAT_AU | SF_FORMAT_PCM_16));

TEST(CAudioReader, AFileThatIsCutShortIsRefused) {
    const CTemporaryFolder folder;
    for (const int format : {SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_AIFF | SF_FORMAT_PCM_24,
                             SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_OGG | SF_FORMAT_VORBIS,
                             SF_FORMAT_W64 | SF_FORMAT_PCM_16, SF_FORMAT_CAF | SF_FORMAT_PCM_16,
                             SF_FORMAT_AU | SF_FORMAT_FLOAT}) {
        SSound sound = voice(3, 44100);
        sound.format = format;
        writeSound(folder / "whole", sound);
        EXPECT_EQ(refusal(folder / "whole"), "");
        const std::size_t length = std::filesystem::file_size(folder / "whole");
        for (const std::size_t tenths : {5u, 8u, 9u}) {
            copyHead(folder / "whole", folder / "cut", length * tenths / 10);
            EXPECT_THAT(refusal(folder / "cut"), HasSubstr("truncated")) << format << tenths;
        }
        copyHead(folder / "whole", folder / "cut", 3);
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
    sound.format = SF_FORMAT_VOC | SF_FORMAT_PCM_16;
    writeSound(folder / "sound.voc", sound);
    EXPECT_THAT(refusal(folder / "sound.voc"),
                HasSubstr("not a WAV, AIFF, FLAC, Ogg, MP3, W64, CAF or AU file"));
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

TEST(CAudioReader, AnMp3FileIsReadToItsEnd) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 100000);
    sound.format = SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
    writeSound(folder / "sound", sound);
    CAudioReader reader(folder / "sound");
    EXPECT_FALSE(reader.knowsLength());
    EXPECT_GE(readAll(reader, 1000).size(), sound.samples.size());
}

TEST(CAudioReader, AnMp3FileThatSaysItsLengthIsRefusedWhenCutShort) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 100000);
    sound.format = SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
    writeSound(folder / "plain", sound);
    // The first frame is silent, and announces the frames and the bytes of the file.
    const std::string frames = readFile(folder / "plain");
    std::string first = frames.substr(0, 4) + std::string(32, '\0') + "Xing";
    const std::size_t bytes = frames.size();
    first += std::string("\0\0\0\3\0\0\0\x50", 8);
    for (const int shift : {24, 16, 8, 0})
        first += static_cast<char>(bytes >> shift & 0xFF);
    const std::string whole = first + frames.substr(first.size());
    const std::string tag("ID3\3\0\0\0\0\1\2", 10);  // 130 bytes
    for (const std::string &front : {std::string(), tag + std::string(130, 'x')}) {
        writeFile(folder / "whole", front + whole);
        EXPECT_EQ(mp3BytesMissing(folder / "whole"), 0u);
        copyHead(folder / "whole", folder / "cut", front.size() + bytes - 7);
        EXPECT_EQ(mp3BytesMissing(folder / "cut"), 7u);
        EXPECT_THAT(refusal(folder / "cut"), HasSubstr("cut: truncated, 7 bytes of audio"));
    }
    writeFile(folder / "other", "WXYZ" + whole.substr(4));
    copyHead(folder / "other", folder / "cut", bytes - 7);
    EXPECT_EQ(mp3BytesMissing(folder / "cut"), 0u);
}

TEST(CAudioReader, AnAuOrCafFileWithoutALengthIsReadToItsEnd) {
    const CTemporaryFolder folder;
    for (const int container : {SF_FORMAT_AU, SF_FORMAT_CAF}) {
        SSound sound = voice(3, 5000);
        sound.format = container | SF_FORMAT_PCM_16;
        writeSound(folder / "sound", sound);
        std::string bytes = readFile(folder / "sound");
        if (container == SF_FORMAT_AU)
            bytes.replace(8, 4, 4, '\xFF');
        else
            bytes.replace(bytes.find("data") + 4, 8, 8, '\xFF');
        writeFile(folder / "piped", bytes);
        CAudioReader reader(folder / "piped");
        EXPECT_EQ(readAll(reader, 1000),
                  std::vector<float>(sound.samples.begin(), sound.samples.end()));
    }
}

TEST(CAudioReader, AW64FileWithTheLongestLengthIsReadToItsEnd) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 5000);
    sound.format = SF_FORMAT_W64 | SF_FORMAT_PCM_16;
    writeSound(folder / "sound", sound);
    std::string bytes = readFile(folder / "sound");
    bytes.replace(bytes.find("data") + 16, 8, std::string(7, '\xFF') + '\x7F');
    writeFile(folder / "piped", bytes);
    CAudioReader reader(folder / "piped");
    EXPECT_EQ(readAll(reader, 1000),
              std::vector<float>(sound.samples.begin(), sound.samples.end()));
}

class CAudioReaderExcerpts : public testing::TestWithParam<int> {};

TEST_P(CAudioReaderExcerpts, AreExactToTheFrame) {
    const CTemporaryFolder folder;
    SSound sound = voice(3, 60000);
    sound.format = GetParam();
    writeSound(folder / "sound", sound);
    CAudioReader whole(folder / "sound");
    const std::vector<float> all = readAll(whole, 1000);
    for (const std::int64_t start : {0, 1, 16384, 44101}) {
        for (const std::int64_t length : {1, 999, 7000}) {
            CAudioReader reader(folder / "sound");
            reader.select(start, length);
            EXPECT_EQ(reader.frames(), length);
            EXPECT_EQ(readAll(reader, 1000), std::vector<float>(all.begin() + 2 * start,
                                                                all.begin() + 2 * (start + length)))
                << start << " " << length;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, CAudioReaderExcerpts,
                         testing::Values(SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                                         SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                                         SF_FORMAT_OGG | SF_FORMAT_VORBIS,
                                         SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III,
                                         SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM));

TEST(CAudioReader, AnExcerptEndsWithTheFile) {
    const CTemporaryFolder folder;
    const SSound sound = voice(3, 5000);
    writeSound(folder / "sound", sound);
    CAudioReader reader(folder / "sound");
    reader.select(4000, 2000);
    EXPECT_EQ(reader.frames(), 1000);
    EXPECT_EQ(readAll(reader, 300).size(), 2000u);
}

TEST(CAudioReader, AnExcerptThatBeginsAtTheEndIsRefused) {
    const CTemporaryFolder folder;
    for (const int format :
         {SF_FORMAT_WAV | SF_FORMAT_FLOAT, SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III}) {
        SSound sound = voice(3, 44100);
        sound.format = format;
        writeSound(folder / "sound", sound);
        CAudioReader whole(folder / "sound");
        const auto frames = static_cast<std::int64_t>(readAll(whole, 1000).size() / 2);
        for (const std::int64_t start : {frames, frames + 1000}) {
            CAudioReader reader(folder / "sound");
            try {
                reader.select(start, 10);
                readAll(reader, 10);
                ADD_FAILURE() << format;
            } catch (const CJobError &error) {
                EXPECT_THAT(error.what(), HasSubstr("seconds; --start leaves nothing of it"));
            }
        }
    }
    writeSound(folder / "empty", voice(3, 0));
    CAudioReader empty(folder / "empty");
    empty.select(0, 10);
    EXPECT_TRUE(readAll(empty, 10).empty());
}
