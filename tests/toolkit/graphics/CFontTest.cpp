#include "toolkit/graphics/CFont.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

using Tessitor::Basics::CString;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;

void expectFont(const CFont &font, const char *face, std::int32_t size, bool isItalic,
                bool isBold) {
    EXPECT_STREQ(font.getFaceName().getString(), face);
    EXPECT_EQ(font.getHeight(), size);
    EXPECT_EQ(font.isItalic(), isItalic);
    EXPECT_EQ(font.isBold(), isBold);
    const SNativeFontRecord &record = font.getRecord();
    EXPECT_STREQ(record.faceName, face);
    EXPECT_EQ(record.height, -size);
    EXPECT_EQ(record.weight, isBold ? 700 : 400);
    EXPECT_EQ(record.italic, isItalic ? 1 : 0);
}

TEST(CFont, IsArialAt11AtFirst) {
    expectFont(CFont(), "Arial", 11, false, false);
}

TEST(CFont, FillsItsRecord) {
    const CFont font("Times", 20, true, true);
    expectFont(font, "Times", 20, true, true);
    const SNativeFontRecord &record = font.getRecord();
    EXPECT_EQ(record.width, 0);
    EXPECT_EQ(record.escapement, 0);
    EXPECT_EQ(record.orientation, 0);
    EXPECT_EQ(record.underline, 0);
    EXPECT_EQ(record.strikeOut, 0);
    EXPECT_EQ(record.characterSet, 0);
    EXPECT_EQ(record.outputPrecision, 4);
    EXPECT_EQ(record.clipPrecision, 0);
    EXPECT_EQ(record.quality, 5);
    EXPECT_EQ(record.pitchAndFamily, 0);
}

TEST(CFont, CutsTheFaceNameOfTheRecordTo31Bytes) {
    const CString longName("A face name of more than thirty-one bytes");
    CFont font(longName, 10, false, false);
    EXPECT_STREQ(font.getRecord().faceName, "A face name of more than thirty");
    EXPECT_STREQ(font.getFaceName().getString(), longName.getString());
    font.setFaceName("Short");
    EXPECT_STREQ(font.getRecord().faceName, "Short");
    EXPECT_EQ(font.getRecord().faceName[31], '\0');
    EXPECT_EQ(font.getRecord().faceName[6], '\0') << "nothing is left of the longer name";
}

TEST(CFont, CopiesWithANativeFontOfItsOwn) {
    CFont font("Times", 20, true, true);
    CFont copy(font);
    expectFont(copy, "Times", 20, true, true);
    EXPECT_NE(&copy.getNativeFont(), &font.getNativeFont());
    CFont assigned;
    assigned = font;
    expectFont(assigned, "Times", 20, true, true);
    EXPECT_NE(&assigned.getNativeFont(), &font.getNativeFont());
}

TEST(CFont, MakesItsNativeFontAnewWhenItChanges) {
    CFont font("Arial", 10, false, false);
    const std::int32_t small = font.getTextWidth("width");
    font.setHeight(30);
    EXPECT_GT(font.getTextWidth("width"), 2 * small);
    expectFont(font, "Arial", 30, false, false);
    font.setFont("Arial", 10, false, false, false, false);
    EXPECT_EQ(font.getTextWidth("width"), small);
}

TEST(CFont, MakesItsNativeFontAnewWithItsFace) {
    CFont font("Arial", 10, false, false);
    const INativeFont *old = &font.getNativeFont();
    font.setFaceName("Times");
    EXPECT_NE(&font.getNativeFont(), old);
    expectFont(font, "Times", 10, false, false);
}

TEST(CFont, SetsEverythingAtOnce) {
    CFont font;
    font.setFont("Times", 14, true, true, true, true);
    expectFont(font, "Times", 14, true, true);
    EXPECT_EQ(font.getRecord().underline, 1);
    EXPECT_EQ(font.getRecord().strikeOut, 1);
    font.setFont("Times", 14, false, true, false, false);
    EXPECT_EQ(font.getRecord().underline, 1);
    EXPECT_EQ(font.getRecord().strikeOut, 0);
}

TEST(CFont, AnEmptyTextHasNoWidth) {
    const CFont font;
    EXPECT_EQ(font.getTextWidth(""), 0);
    EXPECT_GT(font.getTextWidth("a"), 0);
}

TEST(CFont, ReadsItsOwnText) {
    const CFont font("Times", 20, true, true);
    EXPECT_STREQ(font.toString().getString(), "Times,20");
    const std::unique_ptr<CFont> read(CFont::getFontFromString(font.toString()));
    ASSERT_NE(read, nullptr);
    expectFont(*read, "Times", 20, false, false);
}

TEST(CFont, ReadsNoOtherText) {
    for (const char *text : {"", "Times", "Times,20,30", "Times 20"})
        EXPECT_EQ(CFont::getFontFromString(text), nullptr) << text;
}

TEST(CFont, IsWrittenToANodeAndReadBack) {
    CXMLNode node("font", nullptr);
    CFont("Times", 20, true, false).serializeToNode(&node);
    ASSERT_EQ(node.getNumberOfAttributes(), 4);
    EXPECT_STREQ(node.getAttribute("font_name")->getValue().getString(), "Times");
    EXPECT_EQ(node.getAttribute("font_size")->getValueAsInt(), 20);
    EXPECT_TRUE(node.getAttribute("italic")->getValueAsBool());
    EXPECT_FALSE(node.getAttribute("bold")->getValueAsBool());
    CFont font("Arial", 1, false, true);
    font.deserializeFromNode(&node);
    expectFont(font, "Times", 20, true, false);
}

TEST(CFont, KeepsWhatANodeDoesNotTell) {
    CXMLNode empty("font", nullptr), size("font", nullptr);
    CFont font("Times", 20, true, true);
    font.setFont("Times", 20, true, true, true, true);
    font.deserializeFromNode(&empty);
    font.deserializeFromNode(nullptr);
    font.serializeToNode(nullptr);
    expectFont(font, "Times", 20, true, true);
    EXPECT_EQ(font.getRecord().underline, 1);
    EXPECT_EQ(font.getRecord().strikeOut, 1);
    size.addAttribute(new CXMLAttribute("font_size", 7));
    font.setFont("Times", 20, true, true, false, true);
    font.deserializeFromNode(&size);
    expectFont(font, "Times", 7, true, true);
    EXPECT_EQ(font.getRecord().underline, 1);
    EXPECT_EQ(font.getRecord().strikeOut, 0);
}

TEST(CFont, TheDefaultFontLivesBetweenStartAndEnd) {
    for (int session = 0; session < 2; ++session) {
        EXPECT_EQ(CFont::getDefaultFont(), nullptr);
        CFont::createDefaultFont();
        CFont *font = CFont::getDefaultFont();
        ASSERT_NE(font, nullptr);
        CFont::createDefaultFont();
        EXPECT_EQ(CFont::getDefaultFont(), font) << "a second start changes nothing";
        expectFont(*font, "Arial", 11, false, false);
        EXPECT_EQ(font->getReferenceCount(), 1);
        CFont::releaseDefaultFont();
        CFont::releaseDefaultFont();
    }
}

TEST(CFont, ADefaultFontInUseOutlivesItsRelease) {
    CFont::createDefaultFont();
    CFont *font = CFont::getDefaultFont();
    font->reference();
    CFont::releaseDefaultFont();
    EXPECT_EQ(font->getReferenceCount(), 1);
    EXPECT_STREQ(font->getFaceName().getString(), "Arial");
    font->dereference();
}

}  // namespace
