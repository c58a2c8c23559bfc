#include "corvel/settings/CAutomation.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

class CAutomationTest : public testing::Test {
protected:
    CAutomation automation(const std::string &text) {
        writeFile(file, text);
        return CAutomation(file, trial);
    }

    std::string refusal(const std::string &text) {
        try {
            automation(text);
        } catch (const CJobError &error) {
            return error.what();
        }
        return "";
    }

    CTemporaryFolder folder;
    const std::string file = folder / "moves";
    const CEffectLibrary library{testEffect("Whole")};
    CEffectInstance trial{library};
};

}  // namespace

TEST_F(CAutomationTest, ValuesAreReadAsSetTakesThem) {
    const CAutomation moves = automation("0 gain 0 dB\n1 GAIN @0.37\n2 Freq 0.4 kHz\n");
    ASSERT_EQ(moves.lanes().size(), 2u);
    EXPECT_EQ(moves.lanes()[0].index, 0);
    EXPECT_EQ(moves.lanes()[0].points[0].value, 0.5f);
    EXPECT_EQ(moves.lanes()[0].points[1].value, 0.37f);
    EXPECT_EQ(moves.lanes()[1].index, 1);
    EXPECT_NEAR(moves.lanes()[1].points[0].value, 0.5f, 1e-3f);
    EXPECT_EQ(moves.file(), file);
}

TEST_F(CAutomationTest, PointsAreSortedAndThoseOfOneTimeKeepTheirOrder) {
    const auto points =
        automation("2 Gain @0.1\n1 Gain @0.9\n1 Gain @0.2\n-1 Gain @0.5\n").lanes()[0].points;
    std::vector<std::pair<double, float>> pairs;
    for (const auto &point : points)
        pairs.emplace_back(point.seconds, point.value);
    EXPECT_EQ(pairs, (std::vector<std::pair<double, float>>{
                         {-1.0, 0.5f}, {1.0, 0.9f}, {1.0, 0.2f}, {2.0, 0.1f}}));
}

TEST_F(CAutomationTest, OnlyChoicesAreStepped) {
    const CAutomation moves = automation("0 Gain @0\n0 Link Linked\n0 Ratio 2:1\n0 Route Stereo\n");
    EXPECT_FALSE(moves.lanes()[0].isStepped);
    EXPECT_TRUE(moves.lanes()[1].isStepped);
    EXPECT_FALSE(moves.lanes()[2].isStepped);
    EXPECT_TRUE(moves.lanes()[3].isStepped);
}

TEST_F(CAutomationTest, TheInstanceKeepsItsValues) {
    trial.setParameter(0, 0.3f);
    automation("0 Gain 3dB\n1 Freq 200Hz\n");
    EXPECT_EQ(trial.parameter(0), 0.3f);
    EXPECT_EQ(trial.parameter(1), 0.25f);
}

TEST_F(CAutomationTest, AWrongLineIsRefusedWithItsPlace) {
    EXPECT_EQ(refusal("0 Gain @0\n1 Gian @0\n"),
              file + ":2: no parameter \"Gian\"; corvel params lists them");
    EXPECT_EQ(refusal("\n\n1 Gain 30dB\n"), file + ":3: 30dB is outside -6.00 to 6.00 dB");
    EXPECT_THAT(refusal("1 Gain @2\n"), HasSubstr(file + ":1: "));
    EXPECT_THAT(refusal("later Gain @1\n"), HasSubstr(file + ":1: "));
    EXPECT_EQ(trial.parameter(0), 0.5f);
}

TEST_F(CAutomationTest, BothMeaningsOfAPlainNumberAreNotedOnceForAParameter) {
    EXPECT_EQ(automation("0 Gain @0\n1 Gain 0\n2 Gain 1\n3 Freq 0.5\n").notes(),
              std::vector<std::string>{"note: " + file +
                                       ":2: 0 is taken as a normalised value, which is -6.00 dB; "
                                       "write @0 for this, or \"0 dB\" for 0 dB"});
}

TEST_F(CAutomationTest, AMissingFileIsRefused) {
    try {
        CAutomation(folder / "missing", trial);
        ADD_FAILURE();
    } catch (const CJobError &error) {
        EXPECT_EQ(error.what(), (folder / "missing").string() + ": no such file");
    }
}
