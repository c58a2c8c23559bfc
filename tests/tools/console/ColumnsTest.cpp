#include "corvel/console/Columns.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

TEST(Columns, WideCharactersTakeTwoAndAccentsNone) {
    EXPECT_EQ(columnsOf(""), 0u);
    EXPECT_EQ(columnsOf("voice.wav"), 9u);
    EXPECT_EQ(columnsOf("\u00E4\u00DF\u0416\u20AC"), 4u);
    EXPECT_EQ(columnsOf("\u6B4C\u58F0"), 4u);
    EXPECT_EQ(columnsOf("\uD55C\u30AB\uFF21"), 6u);
    EXPECT_EQ(columnsOf("\U0001F3A4"), 2u);
    EXPECT_EQ(columnsOf("a\u0308"), 1u);
    EXPECT_EQ(columnsOf("\u202Ea"), 1u);
}

TEST(Columns, ATextThatFitsStays) {
    EXPECT_EQ(endWithin("voice.wav", 9), "voice.wav");
    EXPECT_EQ(endWithin("", 0), "");
    EXPECT_EQ(endWithin("\u6B4C\u58F0", 4), "\u6B4C\u58F0");
}

TEST(Columns, ALongTextIsCutAtTheStart) {
    EXPECT_EQ(endWithin("voice.wav", 8), "...e.wav");
    EXPECT_EQ(endWithin("voice.wav", 4), "...v");
    EXPECT_EQ(endWithin("voice.wav", 3), "...");
    EXPECT_EQ(endWithin("voice.wav", 1), ".");
    EXPECT_EQ(endWithin("voice.wav", 0), "");
}

TEST(Columns, NoCharacterIsCutInTwo) {
    EXPECT_EQ(endWithin("\u6B4C\u58F0\u6B4C", 5), "...\u6B4C");
    EXPECT_EQ(endWithin("\u6B4C\u58F0\u6B4C", 4), "...");
    EXPECT_EQ(endWithin("xxxa\u0308\u00E9", 4), "...\u00E9");
    EXPECT_EQ(endWithin("xxxxa\u0308\u00E9", 5), "...a\u0308\u00E9");
}
