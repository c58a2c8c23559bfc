#include "corvel/audio/WavLengths.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

std::string chunk(const std::string &name, const std::string &contents) {
    return name + static_cast<char>(contents.size()) + std::string(3, '\0') + contents +
           std::string(contents.size() % 2, '\0');
}

std::string header(const std::string &riff, const std::string &fact, const std::string &data) {
    return "RIFF" + riff + "WAVE" + chunk("fmt ", std::string(16, 'f')) + chunk("fact", fact) +
           chunk("LIST", "odd") + "data" + data;
}

const std::string zero(4, '\0'), unknown(4, '\xFF');

}  // namespace

TEST(WavLengths, AreFilledIn) {
    const std::string head = header(zero, zero, zero);
    const std::string riff = {static_cast<char>(head.size() - 8), 2, 0, 0};
    EXPECT_EQ(withWavLengths(head, 512, 4),
              header(riff, std::string("\x80\0\0\0", 4), std::string("\0\2\0\0", 4)));
}

TEST(WavLengths, AnOddLengthIsPadded) {
    const std::string head = header(zero, zero, zero);
    const std::string riff = {static_cast<char>(head.size() - 8 + 4), 0, 0, 0};
    EXPECT_EQ(withWavLengths(head, 3, 1),
              header(riff, std::string("\3\0\0\0", 4), std::string("\3\0\0\0", 4)));
}

TEST(WavLengths, AreTheLargestNumberIfTheyAreNotKnownOrTooLong) {
    const std::string head = header(zero, zero, zero);
    EXPECT_EQ(withWavLengths(head, {}, 4), header(unknown, unknown, unknown));
    EXPECT_EQ(withWavLengths(head, std::uint64_t(1) << 32, 4), header(unknown, unknown, unknown));
    EXPECT_EQ(withWavLengths(head, 0xFFFFFFF0, 4), header(unknown, unknown, unknown));
}

TEST(WavLengths, OtherBytesAreLeftAlone) {
    for (const std::string bytes : {"", "RIFF", "FORM....AIFF"})
        EXPECT_EQ(withWavLengths(bytes, 512, 4), bytes);
}
