#include "corvel/audio/SRawFormat.h"

#include "corvel/console/Errors.h"

#include <gtest/gtest.h>
#include <sndfile.h>

using namespace Tessitor::Tool;

TEST(SRawFormat, IsReadFromText) {
    const SRawFormat format = rawFormatFromText("48000:1:s24");
    EXPECT_EQ(format.sampleRate, 48000);
    EXPECT_EQ(format.channels, 1);
    EXPECT_EQ(format.sampleType, SF_FORMAT_PCM_24);
    EXPECT_EQ(rawFormatFromText("8000:2:s16").sampleType, SF_FORMAT_PCM_16);
    EXPECT_EQ(rawFormatFromText("8000:2:s32").sampleType, SF_FORMAT_PCM_32);
    EXPECT_EQ(rawFormatFromText("8000:2:F32LE").sampleType, SF_FORMAT_FLOAT);
    EXPECT_EQ(rawFormatFromText("8000:2:f64le").sampleType, SF_FORMAT_DOUBLE);
}

TEST(SRawFormat, OtherTextsAreRefused) {
    for (const char *text :
         {"", "44100", "44100:2", "44100:2:s16:", "0:2:s16", "-1:2:s16", "44.1k:2:s16",
          "44100.0:2:s16", "9999999:2:s16", "44100:0:s16", "44100:3:s16", "44100:x:s16",
          "44100:2:", "44100:2:s8", "44100:2:s16be", "44100:2:le", ":2:s16"})
        EXPECT_THROW(rawFormatFromText(text), CCallError) << text;
}
