#include "corvel/audio/CPartOfFile.h"

#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>

using Tessitor::Tool::CPartOfFile;

TEST(CPartOfFile, IsReadLikeAFile) {
    const CTemporaryFolder folder;
    const SSound sound = voice(1, 1000);
    writeSound(folder / "sound", sound);
    const std::string bytes = readFile(folder / "sound");
    writeFile(folder / "packed", "in front" + bytes + "behind");

    CPartOfFile part(folder / "packed", {8, 8 + bytes.size()});
    SF_INFO info{};
    SNDFILE *file = part.open(info);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(info.frames, 1000);
    std::vector<double> samples(sound.samples.size());
    sf_readf_double(file, samples.data(), 1000);
    sf_close(file);
    EXPECT_EQ(samples, sound.samples);
}

TEST(CPartOfFile, ShowsThePatchInsteadOfTheBytesBelow) {
    const CTemporaryFolder folder;
    const SSound sound = voice(1, 1000);
    writeSound(folder / "sound", sound);
    const std::string bytes = readFile(folder / "sound");
    // Half the samples: 500 frames of 8 bytes
    CPartOfFile part(folder / "sound",
                     {0, bytes.size(), bytes.find("data") + 4, std::string("\xA0\x0F\0\0", 4)});
    SF_INFO info{};
    SNDFILE *file = part.open(info);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(info.frames, 500);
    sf_close(file);
}
