#include "corvel/audio/OutputFormat.h"

#include "corvel/console/Errors.h"

#include <gtest/gtest.h>
#include <limits>
#include <sndfile.h>

using namespace Tessitor::Tool;

namespace {

constexpr int wavFloat = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
constexpr int wav16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr std::int64_t fourGibibytes = std::int64_t(1) << 32;

}  // namespace

TEST(OutputFormat, TheInputsFormatIsKeptExactly) {
    for (const int format :
         {wavFloat, SF_FORMAT_WAVEX | SF_FORMAT_PCM_24,
          SF_FORMAT_AIFF | SF_FORMAT_PCM_16 | SF_ENDIAN_LITTLE, SF_FORMAT_WAV | SF_FORMAT_ULAW,
          SF_FORMAT_RF64 | SF_FORMAT_DOUBLE, SF_FORMAT_OGG | SF_FORMAT_VORBIS}) {
        EXPECT_EQ(outputFormat(format, {}, "out"), format);
        EXPECT_EQ(outputFormat(format, {}, "out.mp3"), format);
    }
    EXPECT_EQ(outputFormat(SF_FORMAT_WAVEX | SF_FORMAT_PCM_24, {}, "out.WAV"),
              SF_FORMAT_WAVEX | SF_FORMAT_PCM_24);
}

TEST(OutputFormat, TheExtensionSelectsTheContainer) {
    EXPECT_EQ(outputFormat(wav16, {}, "out.flac"), SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    EXPECT_EQ(outputFormat(wav16, {}, "out.AIF"), SF_FORMAT_AIFF | SF_FORMAT_PCM_16);
    EXPECT_EQ(outputFormat(wav16, {}, "out.oga"), SF_FORMAT_OGG | SF_FORMAT_VORBIS);
}

TEST(OutputFormat, TheNearestSampleTypeIsTaken) {
    EXPECT_EQ(outputFormat(wavFloat, {}, "out.flac"), SF_FORMAT_FLAC | SF_FORMAT_PCM_24);
    EXPECT_EQ(outputFormat(SF_FORMAT_WAV | SF_FORMAT_PCM_32, {}, "out.flac"),
              SF_FORMAT_FLAC | SF_FORMAT_PCM_24);
    EXPECT_EQ(outputFormat(SF_FORMAT_WAV | SF_FORMAT_ULAW, {}, "out.flac"),
              SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    EXPECT_EQ(outputFormat(SF_FORMAT_WAV | SF_FORMAT_PCM_U8, {}, "out.aiff"),
              SF_FORMAT_AIFF | SF_FORMAT_PCM_S8);
    EXPECT_EQ(outputFormat(SF_FORMAT_OGG | SF_FORMAT_VORBIS, {}, "out.wav"), wavFloat);
    EXPECT_EQ(outputFormat(SF_FORMAT_AIFF | SF_FORMAT_DOUBLE, {}, "out.wav"),
              SF_FORMAT_WAV | SF_FORMAT_DOUBLE);
}

TEST(OutputFormat, TheRequestOverridesTheExtension) {
    EXPECT_EQ(outputFormat(wav16, formatFromText("flac"), "out.wav"),
              SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    EXPECT_EQ(outputFormat(SF_FORMAT_WAVEX | SF_FORMAT_PCM_16, formatFromText("wav"), "out.flac"),
              SF_FORMAT_WAVEX | SF_FORMAT_PCM_16);
    EXPECT_EQ(outputFormat(wav16, formatFromText("WAV:Float"), "out.wav"), wavFloat);
}

TEST(OutputFormat, EveryTypeOfEveryContainerCanBeWritten) {
    for (const char *text : {"wav:8", "wav:16", "wav:24", "wav:32", "wav:float", "wav:double",
                             "aiff:8", "aiff:16", "aiff:24", "aiff:32", "aiff:float", "aiff:double",
                             "flac:8", "flac:16", "flac:24", "ogg:vorbis", "ogg:opus"}) {
        SF_INFO info{};
        info.format = outputFormat(wav16, formatFromText(text), "out");
        info.samplerate = 48000;
        info.channels = 2;
        EXPECT_TRUE(sf_format_check(&info)) << text;
    }
}

TEST(OutputFormat, UnknownContainersAndTypesAreRefused) {
    for (const char *text :
         {"", "mp3", "wav:", "wav:12", "flac:float", "ogg:16", ":16", "wav:16:2"})
        EXPECT_THROW(formatFromText(text), CCallError) << text;
}

TEST(OutputFormat, AWavFileAbove4GiBBecomesRf64) {
    EXPECT_EQ(formatForLength(wav16, fourGibibytes / 4 - 2000, 2, "out"), wav16);
    EXPECT_EQ(formatForLength(wav16, fourGibibytes / 4, 2, "out"),
              SF_FORMAT_RF64 | SF_FORMAT_PCM_16);
    EXPECT_EQ(formatForLength(wavFloat, fourGibibytes / 8, 2, "out"),
              SF_FORMAT_RF64 | SF_FORMAT_FLOAT);
    EXPECT_EQ(formatForLength(wavFloat, fourGibibytes / 8, 1, "out"), wavFloat);
}

TEST(OutputFormat, AnAiffFileAbove4GiBIsRefused) {
    const int aiff24 = SF_FORMAT_AIFF | SF_FORMAT_PCM_24;
    EXPECT_EQ(formatForLength(aiff24, fourGibibytes / 7, 2, "out"), aiff24);
    EXPECT_THROW(formatForLength(aiff24, fourGibibytes / 6, 2, "out"), CJobError);
}

TEST(OutputFormat, CompressedContainersHaveNoLimit) {
    for (const int format : {SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_OGG | SF_FORMAT_VORBIS})
        EXPECT_EQ(formatForLength(format, fourGibibytes, 2, "out"), format);
}

TEST(OutputFormat, IsDescribedInWords) {
    EXPECT_EQ(describeFormat(wavFloat), "WAV, 32-bit float");
    EXPECT_EQ(describeFormat(SF_FORMAT_WAVEX | SF_FORMAT_PCM_24), "WAV, 24-bit");
    EXPECT_EQ(describeFormat(SF_FORMAT_OGG | SF_FORMAT_VORBIS), "Ogg, Vorbis");
    EXPECT_EQ(describeFormat(SF_FORMAT_WAV | SF_FORMAT_ULAW), "WAV, compressed");
}

TEST(OutputFormat, OtherContainersAreUnknown) {
    EXPECT_TRUE(isKnownContainer(SF_FORMAT_RF64 | SF_FORMAT_FLOAT));
    EXPECT_TRUE(isKnownContainer(SF_FORMAT_AU | SF_FORMAT_PCM_16));
    EXPECT_FALSE(isKnownContainer(SF_FORMAT_VOC | SF_FORMAT_PCM_16));
}

TEST(OutputFormat, TheNameOfAnOutputMustNotMislead) {
    const SFormatRequest none, flac = formatFromText("flac");
    for (const char *const name : {"a.wav", "a.WAV", "a.flac", "a", "a.b/c", ".hidden", "x.oga"})
        EXPECT_EQ(problemOfName(name, none), "") << name;
    for (const char *const name : {"a.mp3", "a.", "a.wav.tmp", "take.1"})
        EXPECT_NE(problemOfName(name, none), "") << name;
    for (const char *const name : {"a.flac", "a", "a.mp3"})
        EXPECT_EQ(problemOfName(name, flac), "") << name;
    EXPECT_EQ(problemOfName("a.wav", flac), "its ending means WAV, but --format asks for FLAC");
}

TEST(OutputFormat, WhatIsOnlyReadBecomesWav) {
    EXPECT_EQ(outputFormat(SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, {}, "out"), wavFloat);
    EXPECT_EQ(outputFormat(SF_FORMAT_W64 | SF_FORMAT_PCM_24, {}, "out"),
              SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    EXPECT_EQ(outputFormat(SF_FORMAT_CAF | SF_FORMAT_ALAC_20, {}, "out.flac"),
              SF_FORMAT_FLAC | SF_FORMAT_PCM_24);
    EXPECT_EQ(outputFormat(SF_FORMAT_AU | SF_FORMAT_PCM_16, {}, "out.aiff"),
              SF_FORMAT_AIFF | SF_FORMAT_PCM_16);
    EXPECT_EQ(describeFormat(SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III), "MP3, layer III");
    EXPECT_THROW(formatFromText(""), CCallError);
}

TEST(OutputFormat, AnUnknownLengthMayExceed4GiB) {
    EXPECT_EQ(formatForUnknownLength(wav16), SF_FORMAT_RF64 | SF_FORMAT_PCM_16);
    EXPECT_EQ(formatForUnknownLength(SF_FORMAT_WAVEX | SF_FORMAT_FLOAT),
              SF_FORMAT_RF64 | SF_FORMAT_FLOAT);
    EXPECT_EQ(formatForUnknownLength(SF_FORMAT_FLAC | SF_FORMAT_PCM_16),
              SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
}
