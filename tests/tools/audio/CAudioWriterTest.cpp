#include "corvel/audio/CAudioWriter.h"

#include "corvel/console/Errors.h"
#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

class CAudioWriterFormats : public testing::TestWithParam<int> {};

TEST_P(CAudioWriterFormats, EverySampleIsWritten) {
    const CTemporaryFolder folder;
    const SSound sound = voice(5, 3000);
    CAudioWriter writer(folder / "out", EExisting::Replaced, GetParam(), 48000, 2, 3000);
    writer.write(sound.samples.data(), 1000);
    const std::vector<float> floats(sound.samples.begin() + 2000, sound.samples.end());
    writer.write(floats.data(), 2000);
    writer.finish();
    EXPECT_EQ(writer.clippedSamples(), 0u);

    const SSound written = readSound(folder / "out");
    EXPECT_EQ(written.format, GetParam());
    EXPECT_EQ(written.sampleRate, 48000);
    EXPECT_EQ(written.channels, 2);
    EXPECT_EQ(written.samples, sound.samples);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CAudioWriterFormats,
    testing::Values(SF_FORMAT_WAV | SF_FORMAT_FLOAT, SF_FORMAT_WAV | SF_FORMAT_DOUBLE,
                    SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                    SF_FORMAT_WAV | SF_FORMAT_PCM_32, SF_FORMAT_WAVEX | SF_FORMAT_PCM_24,
                    SF_FORMAT_RF64 | SF_FORMAT_FLOAT, SF_FORMAT_AIFF | SF_FORMAT_PCM_16,
                    SF_FORMAT_AIFF | SF_FORMAT_FLOAT, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                    SF_FORMAT_FLAC | SF_FORMAT_PCM_24));

TEST(CAudioWriter, FloatingPointSamplesAreNotClipped) {
    const CTemporaryFolder folder;
    const std::vector<float> loud = {2.5f, -3.0f, 1.0f, -1.0f};
    CAudioWriter writer(folder / "out", EExisting::Replaced, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 44100,
                        2);
    writer.write(loud.data(), 2);
    writer.finish();
    EXPECT_EQ(writer.clippedSamples(), 0u);
    EXPECT_EQ(readSound(folder / "out").samples, (std::vector<double>{2.5, -3.0, 1.0, -1.0}));
}

TEST(CAudioWriter, IntegersAreClippedAndCounted) {
    const CTemporaryFolder folder;
    const std::vector<float> loud = {2.5f, -3.0f, 0.5f, -1.0f};
    CAudioWriter writer(folder / "out", EExisting::Replaced, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                        44100, 2);
    writer.write(loud.data(), 2);
    writer.finish();
    EXPECT_EQ(writer.clippedSamples(), 2u);
    EXPECT_EQ(readSound(folder / "out").samples,
              (std::vector<double>{32767.0 / 32768.0, -1.0, 0.5, -1.0}));
}

TEST(CAudioWriter, TheSameSoundGivesTheSameBytes) {
    const CTemporaryFolder folder;
    const SSound sound = voice(5, 100);
    for (const char *name : {"first", "second"}) {
        CAudioWriter writer(folder / name, EExisting::Replaced, SF_FORMAT_WAV | SF_FORMAT_FLOAT,
                            44100, 2);
        writer.write(sound.samples.data(), 100);
        writer.finish();
    }
    EXPECT_EQ(readFile(folder / "first"), readFile(folder / "second"));
    // A peak chunk would hold the time of day.
    EXPECT_EQ(readFile(folder / "first").find("PEAK"), std::string::npos);
}

TEST(CAudioWriter, AnUnfinishedFileDoesNotAppear) {
    const CTemporaryFolder folder;
    {
        CAudioWriter writer(folder / "out", EExisting::Replaced, SF_FORMAT_WAV | SF_FORMAT_FLOAT,
                            44100, 2);
        writer.write(voice(5, 100).samples.data(), 100);
    }
    EXPECT_TRUE(folder.names().empty());
}

TEST(CAudioWriter, AFormatThatCannotBeWrittenLeavesNoFile) {
    const CTemporaryFolder folder;
    EXPECT_THROW(
        CAudioWriter(folder / "out", EExisting::Replaced, SF_FORMAT_OGG | SF_FORMAT_OPUS, 44100, 2),
        CJobError);
    EXPECT_TRUE(folder.names().empty());
}

TEST(CAudioWriter, The64BitFormIsUsedOnlyWhenAnUnknownLengthNeedsIt) {
    const CTemporaryFolder folder;
    const SSound sound = voice(5, 100);
    CAudioWriter writer(folder / "out", EExisting::Replaced, SF_FORMAT_RF64 | SF_FORMAT_FLOAT,
                        44100, 2);
    writer.write(sound.samples.data(), 100);
    writer.finish();
    EXPECT_TRUE(readFile(folder / "out").starts_with("RIFF"));
    EXPECT_EQ(readSound(folder / "out").samples, sound.samples);
}
