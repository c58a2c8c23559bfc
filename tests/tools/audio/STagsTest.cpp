#include "corvel/audio/STags.h"

#include "tools/support/CTemporaryFolder.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>

using namespace Tessitor::Tool;

namespace {

using Texts = std::map<int, std::string>;

STags writtenAndRead(const STags &tags, int format) {
    const CTemporaryFolder folder;
    SF_INFO info{};
    info.format = format;
    info.samplerate = 44100;
    info.channels = 1;
    SNDFILE *file = sf_open((folder / "sound").c_str(), SFM_WRITE, &info);
    writeTags(file, format, tags);
    const std::vector<float> silence(1000);
    sf_writef_float(file, silence.data(), 1000);
    sf_close(file);
    file = sf_open((folder / "sound").c_str(), SFM_READ, &info);
    STags read = tagsOf(file);
    sf_close(file);
    return read;
}

SF_CUE_POINT cueAt(std::uint32_t frame) {
    SF_CUE_POINT cue{};
    cue.indx = static_cast<std::int32_t>(frame) + 1;
    std::memcpy(&cue.fcc_chunk, "data", 4);
    cue.position = cue.sample_offset = frame;
    return cue;
}

std::vector<std::uint32_t> placesOf(const STags &tags) {
    std::vector<std::uint32_t> places;
    for (const SF_CUE_POINT &cue : tags.cues) {
        EXPECT_EQ(cue.position, cue.sample_offset);
        places.push_back(cue.sample_offset);
    }
    return places;
}

STags withBroadcast() {
    STags tags;
    tags.broadcast.emplace();
    SF_BROADCAST_INFO &info = tags.broadcast->info;
    std::strcpy(info.description, "Take 3");
    std::strcpy(info.originator, "Studio");
    info.time_reference_low = 0xFFFFFFFF;
    info.time_reference_high = 2;
    info.version = 2;
    info.loudness_value = -2300;
    info.max_true_peak_level = -100;
    const std::string history = "A=PCM,F=44100\r\n" + std::string(2000, 'h') + "\r\n";
    std::memcpy(info.coding_history, history.data(), history.size());
    info.coding_history_size = static_cast<std::uint32_t>(history.size());
    return tags;
}

}  // namespace

TEST(STags, TextsAreCarriedOver) {
    const Texts texts = {
        {SF_STR_TITLE, "Song"}, {SF_STR_ARTIST, "J\xC3\xBCrgen"}, {SF_STR_COMMENT, "Dry"}};
    STags tags;
    tags.texts = texts;
    for (const int format : {SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_RF64 | SF_FORMAT_FLOAT,
                             SF_FORMAT_AIFF | SF_FORMAT_PCM_16, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                             SF_FORMAT_OGG | SF_FORMAT_VORBIS})
        for (const auto &[number, text] : texts)
            EXPECT_EQ(writtenAndRead(tags, format).texts[number], text) << format;
}

TEST(STags, Latin1BecomesUtf8WhereThatIsPrescribed) {
    STags tags;
    tags.texts[SF_STR_ARTIST] = "J\xFCrgen";
    EXPECT_EQ(writtenAndRead(tags, SF_FORMAT_FLAC | SF_FORMAT_PCM_16).texts[SF_STR_ARTIST],
              "J\xC3\xBCrgen");
    EXPECT_EQ(writtenAndRead(tags, SF_FORMAT_OGG | SF_FORMAT_VORBIS).texts[SF_STR_ARTIST],
              "J\xC3\xBCrgen");
    EXPECT_EQ(writtenAndRead(tags, SF_FORMAT_WAV | SF_FORMAT_PCM_16).texts[SF_STR_ARTIST],
              "J\xFCrgen");
}

TEST(STags, TheBroadcastChunkIsCarriedOverWithoutItsLoudness) {
    const STags read = writtenAndRead(withBroadcast(), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    ASSERT_TRUE(read.broadcast);
    const SF_BROADCAST_INFO &info = read.broadcast->info;
    EXPECT_STREQ(info.description, "Take 3");
    EXPECT_STREQ(info.originator, "Studio");
    EXPECT_EQ(info.time_reference_low, 0xFFFFFFFF);
    EXPECT_EQ(info.time_reference_high, 2u);
    EXPECT_EQ(info.loudness_value, 0x7FFF);
    EXPECT_EQ(info.max_true_peak_level, 0x7FFF);
    EXPECT_TRUE(std::string(info.coding_history, 2015)
                    .starts_with("A=PCM,F=44100\r\n" + std::string(2000, 'h')));
}

TEST(STags, ABroadcastChunkIsLeftOutWhereThereIsNone) {
    EXPECT_FALSE(writtenAndRead(withBroadcast(), SF_FORMAT_FLAC | SF_FORMAT_PCM_16).broadcast);
}

TEST(STags, TheTimeReferenceMovesAlong) {
    const STags part = tagsOfPart(withBroadcast(), 44100, 1000);
    EXPECT_EQ(part.broadcast->info.time_reference_low, 44099u);
    EXPECT_EQ(part.broadcast->info.time_reference_high, 3u);
}

TEST(STags, CuePointsAreCarriedOver) {
    STags tags;
    for (std::uint32_t i = 0; i < 150; ++i)
        tags.cues.push_back(cueAt(3 * i));
    for (const int format : {SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_WAVEX | SF_FORMAT_FLOAT})
        EXPECT_EQ(placesOf(writtenAndRead(tags, format)), placesOf(tags));
}

TEST(STags, CuePointsOfAPartMoveAlong) {
    STags tags;
    for (const std::uint32_t place : {0u, 99u, 100u, 150u, 199u, 200u})
        tags.cues.push_back(cueAt(place));
    EXPECT_EQ(placesOf(tagsOfPart(tags, 100, 100)), (std::vector<std::uint32_t>{0, 50, 99}));
    EXPECT_EQ(placesOf(tagsOfPart(tags, 0, SF_COUNT_MAX)), placesOf(tags));
}
