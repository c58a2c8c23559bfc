#include "corvel/live/SMidiMessage.h"

#include <gtest/gtest.h>
#include <vector>

using namespace Tessitor::Tool;

namespace {

std::optional<SMidiMessage> read(std::vector<std::uint8_t> bytes) {
    return midiMessageFrom(bytes, 7);
}

}  // namespace

TEST(SMidiMessage, IsReadFromOneToThreeBytes) {
    EXPECT_EQ(read({0xB2, 21, 64}), (SMidiMessage{7, 0xB2, 21, 64}));
    EXPECT_EQ(read({0xCF, 5}), (SMidiMessage{7, 0xCF, 5, 0}));
    EXPECT_EQ(read({0xF8}), (SMidiMessage{7, 0xF8, 0, 0}));
}

TEST(SMidiMessage, IsNotReadFromAnythingElse) {
    EXPECT_FALSE(read({}));
    EXPECT_FALSE(read({64, 1, 2}));
    EXPECT_FALSE(read({0xF0, 1, 0xF7}));
    EXPECT_FALSE(read({0xB0, 21}));
    EXPECT_FALSE(read({0xC0}));
    EXPECT_FALSE(read({0x90, 1, 2, 3}));
}

// They are indices later.
TEST(SMidiMessage, HasDataBytesBelow128) {
    EXPECT_EQ(read({0xB0, 0xFF, 0x80}), (SMidiMessage{7, 0xB0, 127, 0}));
}

TEST(SMidiMessage, KnowsItsKindAndChannel) {
    const SMidiMessage controller{0, 0xB0, 1, 2}, program{0, 0xCF, 3, 0}, clock{0, 0xF8, 0, 0};
    EXPECT_TRUE(controller.isController());
    EXPECT_FALSE(controller.isProgramChange());
    EXPECT_EQ(controller.channel(), 1);
    EXPECT_TRUE(program.isProgramChange());
    EXPECT_FALSE(program.isController());
    EXPECT_EQ(program.channel(), 16);
    EXPECT_TRUE(program.isForOneChannel());
    EXPECT_FALSE(clock.isForOneChannel());
}
