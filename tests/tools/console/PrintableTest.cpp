#include "corvel/console/Printable.h"

#include <gtest/gtest.h>

using Tessitor::Tool::printable;

TEST(Printable, OrdinaryTextIsKept) {
    for (const char *text : {"", "voice 1.wav", "[a]{b}='c',\"d\"\\",
                             "Gr\xC3\xBC\xC3\x9F"
                             "e",
                             "\xE2\x82\xAC", "\xF0\x9F\x8E\xA4", "\xC2\xA0"})
        EXPECT_EQ(printable(text), text);
}

TEST(Printable, ControlCharactersAreEscaped) {
    EXPECT_EQ(printable("a\nb\tc\rd"), "a\\nb\\tc\\rd");
    EXPECT_EQ(printable("\x1b[31m\x7F"), "\\x1B[31m\\x7F");
    EXPECT_EQ(printable("\xC2\x9B"), "\\xC2\\x9B");  // the one-byte form of ESC [
}

TEST(Printable, BytesThatAreNotUtf8AreEscaped) {
    EXPECT_EQ(printable("a\xFF"), "a\\xFF");
    EXPECT_EQ(printable("\xC3"), "\\xC3");                    // cut
    EXPECT_EQ(printable("\xC3(\xA4"), "\\xC3(\\xA4");         // without its second byte
    EXPECT_EQ(printable("\xC0\xAF"), "\\xC0\\xAF");           // longer than necessary
    EXPECT_EQ(printable("\xED\xA0\x80"), "\\xED\\xA0\\x80");  // half of a pair
    EXPECT_EQ(printable("\xF4\x90\x80\x80"), "\\xF4\\x90\\x80\\x80");
}
