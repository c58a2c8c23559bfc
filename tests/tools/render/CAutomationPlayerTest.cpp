#include "corvel/render/CAutomationPlayer.h"

#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

// At 10 frames per second, so that times are easy to read.
class CAutomationPlayerTest : public testing::Test {
protected:
    CAutomation automation(const std::string &text) {
        writeFile(folder / "moves", text);
        return CAutomation(folder / "moves", effect);
    }

    /// Plays blocks of one length.
    /// @return the length of each part and a parameter's value in it.
    std::vector<std::pair<std::size_t, float>> play(const std::string &text, std::size_t frames,
                                                    std::size_t block, int index = 0) {
        const CAutomation moves = automation(text);
        CAutomationPlayer player(moves, effect, 10.0);
        std::vector<std::pair<std::size_t, float>> parts;
        for (std::size_t begin = 0; begin < frames; begin += block) {
            std::size_t left = std::min(block, frames - begin);
            while (left > 0) {
                const std::size_t length = player.startBlock(left);
                parts.emplace_back(length, effect.parameter(index));
                left -= length;
            }
        }
        return parts;
    }

    CTemporaryFolder folder;
    const CEffectLibrary library{testEffect("Whole")};
    CEffectInstance effect{library};
};

using Parts = std::vector<std::pair<std::size_t, float>>;

}  // namespace

TEST_F(CAutomationPlayerTest, BlocksAreSplitAtPoints) {
    EXPECT_EQ(play("0.3 Gain @0.1\n0.9 Freq @0.5\n", 16, 8),
              (Parts{{3, 0.5f}, {5, 0.1f}, {1, 0.1f}, {7, 0.1f}}));
}

TEST_F(CAutomationPlayerTest, ValuesMoveInAStraightLineOncePerBlock) {
    EXPECT_EQ(play("0 Gain @0\n0.8 Gain @1\n", 12, 2),
              (Parts{{2, 0.0f}, {2, 0.25f}, {2, 0.5f}, {2, 0.75f}, {2, 1.0f}, {2, 1.0f}}));
    EXPECT_EQ(play("0 Gain @0\n0.8 Gain @1\n", 12, 12), (Parts{{8, 0.0f}, {4, 1.0f}}));
}

TEST_F(CAutomationPlayerTest, BeforeTheFirstPointTheValueIsLeftAlone) {
    effect.setParameter(0, 0.7f);
    EXPECT_EQ(play("0.4 Gain @0\n", 8, 2), (Parts{{2, 0.7f}, {2, 0.7f}, {2, 0.0f}, {2, 0.0f}}));
}

TEST_F(CAutomationPlayerTest, TwoPointsAtTheSameTimeMakeAJump) {
    EXPECT_EQ(play("0 Gain @0\n0.4 Gain @0.5\n0.4 Gain @1\n0.8 Gain @0\n", 10, 2),
              (Parts{{2, 0.0f}, {2, 0.25f}, {2, 1.0f}, {2, 0.5f}, {2, 0.0f}}));
}

TEST_F(CAutomationPlayerTest, APointBeforeTheStartBeginsALine) {
    EXPECT_EQ(play("-0.4 Gain @0\n0.4 Gain @1\n", 6, 2), (Parts{{2, 0.5f}, {2, 0.75f}, {2, 1.0f}}));
    EXPECT_EQ(play("-2 Gain @0\n-1 Gain @0.25\n", 2, 2), (Parts{{2, 0.25f}}));
}

TEST_F(CAutomationPlayerTest, APointBeyondTheEndEndsALine) {
    EXPECT_EQ(play("0 Gain @0\n0.8 Gain @1\n", 4, 2), (Parts{{2, 0.0f}, {2, 0.25f}}));
    EXPECT_EQ(play("99999999999999999999999 Gain @0\n", 4, 2), (Parts{{2, 0.25f}, {2, 0.25f}}));
}

TEST_F(CAutomationPlayerTest, AChoiceJumps) {
    EXPECT_EQ(play("0 Link Separate\n0.4 Link Linked\n", 6, 2, 2),
              (Parts{{2, 0.0f}, {2, 0.0f}, {2, 1.0f}}));
}

TEST_F(CAutomationPlayerTest, AValueThatStaysIsNotSetAgain) {
    const CAutomation moves = automation("0 Gain @0.2\n1 Gain @0.2\n");
    CAutomationPlayer player(moves, effect, 10.0);
    player.startBlock(2);
    effect.setParameter(0, 0.9f);
    player.startBlock(2);
    EXPECT_EQ(effect.parameter(0), 0.9f);
}

TEST_F(CAutomationPlayerTest, PointsThatFallOnOneFrameCountAsOne) {
    EXPECT_EQ(play("0.40 Gain @0\n0.41 Gain @1\n", 6, 6), (Parts{{4, 0.5f}, {2, 1.0f}}));
}
