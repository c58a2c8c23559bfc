#include "platform/linux/drawing/CLinuxFont.h"

#include "platform/linux/drawing/CFontConfiguration.h"
#include "platform/linux/drawing/FontRecords.h"

#include <gmock/gmock.h>
#include <malloc.h>
#include <numeric>

namespace {

constexpr float noError = 0.001f;

// The sum of the coverage of a glyph
int inkOf(const CLinuxFont &font, char32_t character) {
    const SGlyph &glyph = font.getGlyph(character);
    return std::accumulate(glyph.coverage.begin(), glyph.coverage.end(), 0);
}

TEST(CLinuxFont, DrawsArialWithAFaceOfTheSameWidths) {
    const CLinuxFont font(arial(-11));
    EXPECT_NEAR(nativeTextSize("The quick brown fox", &font).width, 99.0f, noError);
    EXPECT_NEAR(nativeTextSize("WWWW", &font).width, 40.0f, noError);
}

TEST(CLinuxFont, TakesANegativeHeightAsTheSizeOfTheLetters) {
    const CLinuxFont font(arial(-20));
    EXPECT_EQ(font.getEm(), 20);
    EXPECT_EQ(font.getAscent(), 18);
    EXPECT_EQ(font.getLineHeight(), 22);
}

TEST(CLinuxFont, TakesAPositiveHeightAsTheHeightOfALine) {
    const CLinuxFont font(arial(22));
    EXPECT_EQ(font.getEm(), 20);
    EXPECT_EQ(font.getLineHeight(), 22);
}

TEST(CLinuxFont, HasTwelvePixelsWithoutAHeight) {
    EXPECT_EQ(CLinuxFont(arial(0)).getEm(), 12);
}

TEST(CLinuxFont, KeepsAbsurdSizesInBounds) {
    for (const std::int32_t height : {INT32_MIN, INT32_MAX}) {
        const CLinuxFont font(arial(height));
        EXPECT_EQ(font.getEm(), 2048);
        EXPECT_LT(font.getGlyph('W').width, 3000);
    }
    EXPECT_EQ(CLinuxFont(arial(1)).getEm(), 1);
}

TEST(CLinuxFont, IsBoldByItsWeightAndSlantedIfItalic) {
    SNativeFontRecord bold = arial(-40), italic = arial(-40);
    bold.weight = 700;
    italic.italic = 1;
    const CLinuxFont plainFont(arial(-40)), boldFont(bold), italicFont(italic);
    EXPECT_GT(inkOf(boldFont, 'l'), inkOf(plainFont, 'l') * 5 / 4);
    EXPECT_GT(italicFont.getGlyph('l').width, plainFont.getGlyph('l').width * 3 / 2);
}

TEST(CLinuxFont, EmboldensAndSlantsWhereFontconfigSaysSo) {
    const int plainInk = inkOf(CLinuxFont(arial(-40)), 'l');
    const int plainWidth = CLinuxFont(arial(-40)).getGlyph('l').width;
    const CFontConfiguration configuration(CFontConfiguration::systemFontsWith(R"(
        <match target="font">
            <edit name="embolden"><bool>true</bool></edit>
            <edit name="matrix"><matrix>
                <double>1</double><double>0.2</double><double>0</double><double>1</double>
            </matrix></edit>
        </match>)"));
    const CLinuxFont font(arial(-40));
    EXPECT_GT(inkOf(font, 'l'), plainInk * 5 / 4);
    EXPECT_GT(font.getGlyph('l').width, plainWidth * 2);
}

TEST(CLinuxFont, TakesAMissingCharacterFromAnotherFace) {
    constexpr char32_t onlyInLiberationSerif = 0xf004;
    const CLinuxFont font(fontRecord("Liberation Sans", -11));
    const SGlyph &glyph = font.getGlyph(onlyInLiberationSerif);
    EXPECT_NE(glyph.face, font.getGlyph('a').face);
    EXPECT_NE(glyph.index, 0u);
    EXPECT_EQ(
        glyph.height,
        CLinuxFont(fontRecord("Liberation Serif", -11)).getGlyph(onlyInLiberationSerif).height);
}

TEST(CLinuxFont, ShowsABoxForACharacterThatNoFaceHas) {
    constexpr char32_t noCharacter = 0x10ffff;
    const CLinuxFont font(arial(-11));
    EXPECT_EQ(font.getGlyph(noCharacter).face, font.getGlyph('a').face);
    EXPECT_EQ(font.getGlyph(noCharacter).index, 0u);
    EXPECT_GT(inkOf(font, noCharacter), 0);
}

TEST(CLinuxFont, RendersEachGlyphOnce) {
    const CLinuxFont font(arial(-11));
    const SGlyph *first = &font.getGlyph('a');
    for (char32_t character = 0x20; character < 0x200; ++character)
        font.getGlyph(character);
    EXPECT_EQ(&font.getGlyph('a'), first);
}

TEST(CLinuxFont, GivesControlCharactersNoRoom) {
    const CLinuxFont font(arial(-11));
    EXPECT_EQ(nativeTextSize("a\r\t\x7f\n", &font).width, nativeTextSize("a", &font).width);
}

TEST(CLinuxFont, KernsPairsIfTheFaceSaysSo) {
    const CLinuxFont font(arial(-40));
    const float apart = font.getGlyph('A').advance + font.getGlyph('V').advance;
    EXPECT_LT(nativeTextSize("AV", &font).width, apart);
}

TEST(CLinuxFont, DoesNotKernPairsOfTwoFaces) {
    constexpr char32_t notInLiberationSerif = 0xfb00;
    const CLinuxFont font(fontRecord("Liberation Serif", -40));
    const SGlyph &first = font.getGlyph('A'), &second = font.getGlyph(notInLiberationSerif);
    ASSERT_NE(first.face, second.face);
    EXPECT_EQ(nativeTextSize("A\xef\xac\x80", &font).width, first.advance + second.advance);
}

TEST(CLinuxFont, TakesHalfTheSizePerCharacterWithoutAnyFont) {
    const CFontConfiguration noFonts("");
    const CLinuxFont font(arial(-20));
    EXPECT_FALSE(font.hasFace());
    EXPECT_EQ(nativeTextSize("1234567", &font).width, 70.0f);
    EXPECT_EQ(nativeTextSize("\xe2\x82\xac", &font).width, 10.0f) << "one character of three bytes";
    EXPECT_EQ(nativeTextSize("1", &font).height, 23.0f);
    EXPECT_EQ(CLinuxFont(arial(23)).getEm(), 20);
}

TEST(CLinuxFont, LooksForItsFaceOnlyWhenItIsUsed) {
    std::unique_ptr<INativeFont> font;
    {
        const CFontConfiguration noFonts("");
        font = createNativeFont(arial(-11));
    }
    EXPECT_NEAR(nativeTextSize("WWWW", font.get()).width, 40.0f, noError);
}

TEST(CLinuxFont, LeavesTheConfigurationOfTheHostAlone) {
    FcFini();
    {
        const CFontConfiguration noFonts("");
        const CLinuxFont font(arial(-11));
        nativeTextSize("text \xe2\x82\xac", &font);
    }
    EXPECT_GT(FcConfigGetFonts(FcConfigGetCurrent(), FcSetSystem)->nfont, 0);
    const FcConfig *ofHost = FcConfigGetCurrent();
    {
        const CLinuxFont font(arial(-11));
        nativeTextSize("text \xe2\x82\xac", &font);
    }
    EXPECT_EQ(FcConfigGetCurrent(), ofHost);
    FcFini();
}

// Fonts and the caches of fontconfig are mapped into memory.
int countMappedFontFiles() {
    std::ifstream maps("/proc/self/maps");
    int count = 0;
    for (std::string line; std::getline(maps, line);)
        if (line.ends_with(".ttf") || line.find("/fontconfig/") != std::string::npos)
            ++count;
    return count;
}

// In use, and freed but kept at hand by the allocator for the thread
std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

TEST(CLinuxFont, GivesItsMemoryBackWithTheLastFont) {
    const auto useFont = [] {
        const CLinuxFont font(arial(-100));
        for (char32_t character = 0x20; character < 0x200; ++character)
            font.getGlyph(character);
        EXPECT_GT(countMappedFontFiles(), 0) << "else the test below would see nothing";
        return heapInUse();
    };
    useFont();  // fontconfig keeps a little for the whole process
    const std::size_t before = heapInUse();
    const std::size_t ofOneFont = useFont() - before;
    for (int i = 0; i < 10; ++i)
        useFont();
    EXPECT_EQ(countMappedFontFiles(), 0);
    EXPECT_LE(heapInUse(), before + ofOneFont);
}

}  // namespace
