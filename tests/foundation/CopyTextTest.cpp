#include "foundation/CopyText.h"

#include <gtest/gtest.h>
#include <string>

using Tessitor::Basics::copyText;

namespace {

TEST(CopyText, FillsTheRestWithZeros) {
    char field[6] = {'x', 'x', 'x', 'x', 'x', 'x'};
    copyText(field, 5, "ab");
    EXPECT_EQ(std::string(field, 6), std::string("ab\0\0\0x", 6));
}

TEST(CopyText, CutsAndTerminatesWhatDoesNotFit) {
    char field[4] = {'x', 'x', 'x', 'x'};
    copyText(field, 3, "abc");
    EXPECT_EQ(std::string(field, 4), std::string("ab\0x", 4));
}

TEST(CopyText, IgnoresATargetWithoutRoom) {
    char field[] = "kept";
    copyText(field, 0, "lost");
    copyText(field, -1, "lost");
    copyText(nullptr, 5, "lost");
    EXPECT_STREQ(field, "kept");
}

}  // namespace
