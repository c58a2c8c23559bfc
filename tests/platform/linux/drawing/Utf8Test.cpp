#include "platform/linux/drawing/Utf8.h"

#include <gmock/gmock.h>
#include <string>

namespace {

std::u32string charactersOf(const char *text) {
    std::u32string characters;
    while (*text != '\0')
        characters += readUtf8(text);
    return characters;
}

TEST(Utf8, ReadsCharactersOfOneToFourBytes) {
    EXPECT_EQ(charactersOf("a\x7f\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbf"
                           "\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"),
              U"a\x7f\x80\x7ff\x800\xd7ff\xe000\xffff\x10000\x10ffff");
}

TEST(Utf8, ReplacesEachByteThatBelongsToNoCharacter) {
    const std::u32string one = {replacementCharacter};
    EXPECT_EQ(charactersOf("\xe4x"), one + U"x") << "Latin-1";
    EXPECT_EQ(charactersOf("\x80"), one) << "a byte from the middle of a character";
    EXPECT_EQ(charactersOf("\xc0\xaf"), one + one) << "two bytes where one would do";
    EXPECT_EQ(charactersOf("\xe0\x9f\xbf"), one + one + one) << "three bytes where two would do";
    EXPECT_EQ(charactersOf("\xf0\x8f\xbf\xbf"), one + one + one + one) << "four for three";
    EXPECT_EQ(charactersOf("\xed\xa0\x80"), one + one + one) << "half of a surrogate pair";
    EXPECT_EQ(charactersOf("\xf4\x90\x80\x80"), one + one + one + one) << "above U+10FFFF";
    EXPECT_EQ(charactersOf("\xf8\x88\x80\x80\x80"), one + one + one + one + one) << "five bytes";
    EXPECT_EQ(charactersOf("\xfc\x80\x80\x80"), one + one + one + one) << "six bytes, cut off";
}

TEST(Utf8, StopsAtTheTerminatorInsideACharacter) {
    const char text[] = "\xe2\x82\0\xac";
    const std::u32string one = {replacementCharacter};
    EXPECT_EQ(charactersOf(text), one + one);
}

}  // namespace
