#include "foundation/CPascalString.h"

#include <gtest/gtest.h>
#include <string>

using Tessitor::Basics::CPascalString;

namespace {

/// @return the length byte, and the text up to its terminator.
std::pair<int, std::string> contents(const CPascalString &string) {
    const unsigned char *block = string.getString();
    return {block[0], reinterpret_cast<const char *>(block + 1)};
}

using SContents = std::pair<int, std::string>;

TEST(CPascalString, HoldsLengthTextAndTerminator) {
    EXPECT_EQ(contents(CPascalString("text", 256)), SContents(4, "text"));
    EXPECT_EQ(contents(CPascalString("", 256)), SContents(0, ""));
    EXPECT_EQ(contents(CPascalString("text", 6)), SContents(4, "text"));
}

TEST(CPascalString, WrapsItsLengthAt256) {
    const std::string bytes255(255, 'x'), bytes256(256, 'x'), bytes300(300, 'x');
    EXPECT_EQ(contents(CPascalString(bytes255.c_str(), 512)), SContents(255, bytes255));
    EXPECT_EQ(contents(CPascalString(bytes256.c_str(), 512)), SContents(0, bytes256));
    EXPECT_EQ(contents(CPascalString(bytes300.c_str(), 512)), SContents(44, bytes300));
}

TEST(CPascalString, CutsATextToTheSizeOfItsBlock) {
    EXPECT_EQ(contents(CPascalString("text", 5)), SContents(3, "tex"));
    EXPECT_EQ(contents(CPascalString("text", 2)), SContents(0, ""));
    EXPECT_EQ(contents(CPascalString("text", 0)), SContents(0, ""));
    EXPECT_EQ(contents(CPascalString("text", -1)), SContents(0, ""));
    EXPECT_EQ(contents(CPascalString(std::string(300, 'x').c_str(), 256)),
              SContents(254, std::string(254, 'x')));
}

TEST(CPascalString, CanBeSetAgainEvenFromItsOwnText) {
    CPascalString string("some text", 256);
    string.setString(reinterpret_cast<const char *>(string.getString() + 6), 8);
    EXPECT_EQ(contents(string), SContents(4, "text"));
}

TEST(CPascalString, CountsItself) {
    const CPascalString one("one", 8);
    const auto instances = one.getClass().getInstanceCount();
    {
        const CPascalString two("two", 8);
        EXPECT_EQ(one.getClass().getInstanceCount(), instances + 1);
    }
    EXPECT_EQ(one.getClass().getInstanceCount(), instances);
    EXPECT_TRUE(one.getClass() == "CPascalString");
}

}  // namespace
