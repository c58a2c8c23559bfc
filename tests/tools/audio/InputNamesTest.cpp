#include "corvel/audio/InputNames.h"

#include <gtest/gtest.h>

using Tessitor::Tool::isNamedLikeAudio;

TEST(InputNames, AnEndingInAnyCapitalsCounts) {
    for (const char *name : {"a.wav", "a.WAV", "a.Flac", "x/a.b.aif", "a.aiff", "a.ogg", "a.mp3"})
        EXPECT_TRUE(isNamedLikeAudio(name)) << name;
}

TEST(InputNames, OtherNamesDoNotCount) {
    for (const char *name :
         {"", "wav", "a", "a.", "a.txt", "a.wavx", "a.wa", "a.wav.txt", ".wav", "a.wav/b", "a wav"})
        EXPECT_FALSE(isNamedLikeAudio(name)) << name;
}
