#include "corvel/settings/AutomationLines.h"

#include "corvel/console/Errors.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using Lines = std::vector<SAutomationLine>;

namespace {

std::string refusal(const std::string &text) {
    try {
        automationLines(text, "moves.csv");
    } catch (const CJobError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(AutomationLines, EachLineHasTimeParameterAndValue) {
    EXPECT_EQ(automationLines("0 Gain -3dB\n1:02.5 Freq 0.5\n", "f"),
              (Lines{{1, 0.0, "Gain", "-3dB"}, {2, 62.5, "Freq", "0.5"}}));
}

class AutomationSeparators : public testing::TestWithParam<const char *> {};

TEST_P(AutomationSeparators, SeparateTheFields) {
    EXPECT_EQ(automationLines(GetParam(), "f"), (Lines{{1, 1.5, "Gain", "1,5 dB"}})) << GetParam();
}
INSTANTIATE_TEST_SUITE_P(
    Lines, AutomationSeparators,
    testing::Values("1.5 Gain 1,5 dB", "  1.5   Gain   1,5 dB  ", "1.5\tGain\t1,5 dB",
                    "1.5,Gain,1,5 dB", "1.5, Gain, 1,5 dB", "1.5;Gain;1,5 dB",
                    "1.5 , Gain , 1,5 dB", "1,5;Gain;1,5 dB", "1,5\tGain\t1,5 dB",
                    "1.5 Gain\t\t1,5 dB", "1.5\t\tGain\t\t1,5 dB", "\"1,5\";Gain;1,5 dB",
                    "\"1.5\",\"Gain\",\"1,5 dB\"", "1.5,Gain,\"1,5 dB\"", "1.5 Gain 1,5 dB\r"));

TEST(AutomationLines, ATimeMayBeNegative) {
    EXPECT_EQ(automationLines("-1:30.5 Gain 1", "f"), (Lines{{1, -90.5, "Gain", "1"}}));
    EXPECT_NE(refusal("--1 Gain 1"), "");
}

TEST(AutomationLines, AParameterMayHaveSpacesBetweenCommasTabsOrQuotes) {
    for (const char *text : {"1,Room Size,-", "1\tRoom Size\t-", "1 \"Room Size\" -"})
        EXPECT_EQ(automationLines(text, "f"), (Lines{{1, 1.0, "Room Size", "-"}})) << text;
}

TEST(AutomationLines, CommentsAndEmptyLinesAreSkippedButCounted) {
    EXPECT_EQ(automationLines("# all\n\n  # indented\n2 Gain 1 # louder\n\t\n3 A#B C#\n", "f"),
              (Lines{{4, 2.0, "Gain", "1"}, {6, 3.0, "A#B", "C#"}}));
    EXPECT_EQ(automationLines("", "f"), Lines{});
}

TEST(AutomationLines, AByteOrderMarkAndColumnNamesAreSkipped) {
    EXPECT_EQ(automationLines("\xEF\xBB\xBFTime,Parameter,Value\r\n1,Gain,2\r\n", "f"),
              (Lines{{2, 1.0, "Gain", "2"}}));
    for (const char *names : {"time;x;y", "TIME\tx\ty", "time x y", "\"Time\",x,y"})
        EXPECT_EQ(automationLines(names, "f"), Lines{}) << names;
    EXPECT_EQ(refusal("1 Gain 1\ntime,parameter,value\n"),
              "moves.csv:2: \"time\" is not a time; write seconds or m:ss, as in 1:05.250");
}

TEST(AutomationLines, AFileThatIsNoTextIsRefused) {
    EXPECT_EQ(refusal(std::string("0 Gain 1\nRIFF\0\1", 15)), "moves.csv: not a text file");
}

TEST(AutomationLines, AWrongLineIsNamed) {
    EXPECT_EQ(refusal("0 Gain 1\nsoon Gain 1\n"),
              "moves.csv:2: \"soon\" is not a time; write seconds or m:ss, as in 1:05.250");
    for (const char *line : {"1", "1 Gain", "1,Gain", "1,Gain,", "1,,2", "1 Gain # 2", "1 \"\" 2"})
        EXPECT_EQ(refusal(std::string("\n") + line),
                  "moves.csv:2: a line needs a time, a parameter and a value")
            << line;
}
