#include "corvel/presets/Encoding.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

TEST(Encoding, Utf8IsRecognised) {
    for (const char *text : {"", "plain", "K\xC3\xA4se", "\xE2\x82\xAC", "\xF0\x9D\x84\x9E",
                             "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(text)) << text;
}

TEST(Encoding, DamagedUtf8IsRefused) {
    const char *const damaged[] = {"\xE4",              // a single byte
                                   "\xC3",              // cut off
                                   "\xE2\x82",          // cut off
                                   "\x80",              // a continuation
                                   "\xC3(",             // no continuation
                                   "\xC0\x80",          // overlong
                                   "\xE0\x80\x80",      // overlong
                                   "\xF0\x80\x80\x80",  // overlong
                                   "\xED\xA0\x80",      // a surrogate
                                   "\xF4\x90\x80\x80",  // beyond the last character
                                   "\xFF"};
    for (const char *text : damaged)
        EXPECT_FALSE(isUtf8(text)) << testing::PrintToString(text);
}

TEST(Encoding, Latin1ComesBackUnchanged) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const std::string text = utf8FromLatin1(bytes);
    EXPECT_TRUE(isUtf8(text));
    EXPECT_EQ(latin1FromUtf8(text), bytes);
}

TEST(Encoding, OtherCharactersAreNotInLatin1) {
    EXPECT_EQ(latin1FromUtf8("\xC4\x80"), std::nullopt);
    EXPECT_EQ(latin1FromUtf8("\xFF"), std::nullopt);
}

TEST(Encoding, LongTextsAreCutInMessages) {
    EXPECT_EQ(shortQuote("short\n"), "\"short\\n\"");
    EXPECT_EQ(shortQuote(std::string(1000, 'x')), "\"" + std::string(40, 'x') + "...\"");
}
