#include "corvel/batch/ListedNames.h"

#include <gtest/gtest.h>

using Tessitor::Tool::listedNames;
using Names = std::vector<std::string>;
using namespace std::string_literals;

TEST(ListedNames, EachLineIsAName) {
    EXPECT_EQ(listedNames("a.wav\nb.wav\n"), (Names{"a.wav", "b.wav"}));
    EXPECT_EQ(listedNames("a.wav\nb.wav"), (Names{"a.wav", "b.wav"}));
    EXPECT_EQ(listedNames(""), Names{});
}

TEST(ListedNames, EmptyLinesAreSkipped) {
    EXPECT_EQ(listedNames("\n\na\n\nb\n\n"), (Names{"a", "b"}));
}

TEST(ListedNames, SpacesBelongToTheName) {
    EXPECT_EQ(listedNames(" lead vocal .wav \n\t# 1\n"), (Names{" lead vocal .wav ", "\t# 1"}));
}

TEST(ListedNames, AZeroByteSeparatesNamesThatMayHaveLineBreaks) {
    EXPECT_EQ(listedNames("a\nb\0c\r\0\0d"s), (Names{"a\nb", "c\r", "d"}));
}

TEST(ListedNames, LinesMayEndAsOnWindows) {
    EXPECT_EQ(listedNames("a\r\nb c\r\n"), (Names{"a", "b c"}));
    EXPECT_EQ(listedNames("a\r\n\r\nb\r\n"), (Names{"a", "b"}));
    EXPECT_EQ(listedNames("a\r\nb\n"), (Names{"a\r", "b"}));
}
