#include "toolkit/controls/CTextLabel.h"

#include "foundation/CXMLNode.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/controls/Properties.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TestImage.h"

namespace {

using Tessitor::Basics::CString;
using Tessitor::Collections::TCountedPointerArray;
using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Controls::CControlDescriptor;
using Tessitor::GUI::Controls::CTextLabel;
using Tessitor::GUI::Controls::EDescriptorType;
using Tessitor::GUI::Fonts::CFont;
using testing::ElementsAre;

class CTextLabelTest : public CRootTest {
protected:
    CTextLabel *make(const char *text) {
        auto *made = new CTextLabel(&root, 4, CRect(0, 0, 30, 20), text);
        root.addControl(made);
        return made;
    }
    /// True if something has been drawn in these columns.
    static bool isDrawn(SCanvas &canvas, int left, int right) {
        for (int y = 0; y < 30; ++y)
            for (int x = left; x < right; ++x)
                if (canvas.at(x, y) != SCanvas::background)
                    return true;
        return false;
    }

    SCanvas canvas;
    CTextLabel *label = make("M");
};

TEST_F(CTextLabelTest, HasItsDefaults) {
    EXPECT_FALSE(label->isMouseEnabled());
    EXPECT_TRUE(label->isDropFileEnabled());
    EXPECT_EQ(label->getActionListener(), nullptr);
    EXPECT_EQ(label->getUniqueId(), 4);
    EXPECT_EQ(label->getValue(), 1.0);
    EXPECT_TRUE(label->isBackgroundDrawn());
    EXPECT_EQ(label->getFont(), nullptr);  // the library is not started
    EXPECT_EQ(label->getTextColour(), CAlphaColour(0, 0, 0));
    EXPECT_STREQ(label->getText().getString(), "M");
    EXPECT_EQ(label->getTextFormat(), 9);
    EXPECT_TRUE(label->getClass() == "CTextLabel");
    EXPECT_TRUE(label->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CTextLabelTest, SharesTheDefaultFontAndAnyOther) {
    CFont::createDefaultFont();
    CFont *standard = CFont::getDefaultFont();
    const std::int32_t before = standard->getReferenceCount();
    CTextLabel *second = make("");
    EXPECT_EQ(second->getFont(), standard);
    EXPECT_EQ(standard->getReferenceCount(), before + 1);
    auto *font = new CFont("Arial", 20, false, true);
    second->setFont(font);
    EXPECT_EQ(standard->getReferenceCount(), before);
    EXPECT_EQ(font->getReferenceCount(), 1);
    second->setFont(nullptr);
    EXPECT_EQ(second->getFont(), nullptr);
    CFont::releaseDefaultFont();
}

TEST_F(CTextLabelTest, KeepsWhatIsSet) {
    label->setColours({1, 2, 3}, {4, 5, 6}, {7, 8, 9});
    EXPECT_EQ(label->getFrameColour(), CAlphaColour(1, 2, 3));
    EXPECT_EQ(label->getBackgroundColour(), CAlphaColour(4, 5, 6));
    EXPECT_EQ(label->getTextColour(), CAlphaColour(7, 8, 9));
    label->setTextColour({10, 11, 12});
    EXPECT_EQ(label->getTextColour(), CAlphaColour(10, 11, 12));
    label->setDrawBackground(false);
    EXPECT_FALSE(label->isBackgroundDrawn());
    label->setTextFormat(-3);
    EXPECT_EQ(label->getTextFormat(), -3);
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
}

TEST_F(CTextLabelTest, RedrawsANewText) {
    label->setText("Gain");
    EXPECT_STREQ(label->getText().getString(), "Gain");
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,30,20"));
}

TEST_F(CTextLabelTest, ShowsTheNameOfADroppedFile) {
    label->handleFileDrop(Tessitor::GUI::Events::CDropEvent({0, 0}));
    EXPECT_STREQ(label->getText().getString(), "M");
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
    drop(5, 5);
    EXPECT_STREQ(label->getText().getString(), "file");
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,30,20", "0,0,30,20"));
}

TEST_F(CTextLabelTest, DrawsItsTextInItsFormat) {
    CFont::createDefaultFont();
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(isDrawn(canvas, 0, 15));
    EXPECT_FALSE(isDrawn(canvas, 15, 40));
    label->setTextFormat(5);
    SCanvas right;
    label->drawControl(right.graphics);
    EXPECT_FALSE(isDrawn(right, 0, 15));
    EXPECT_TRUE(isDrawn(right, 15, 31));
    CFont::releaseDefaultFont();
}

TEST_F(CTextLabelTest, DrawsItsTextOnePixelFromItsCorner) {
    CFont::createDefaultFont();
    for (int format = 0; format <= 10; ++format) {
        SCanvas drawn, expected;
        label->setTextFormat(format);
        label->drawControl(drawn.graphics);
        expected.graphics.setTextColour({0, 0, 0});
        expected.graphics.drawText("M", CRect(1, 1, 30, 20), nullptr, format);
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x)
                ASSERT_EQ(drawn.at(x, y), expected.at(x, y)) << format << ": " << x << "," << y;
    }
    CFont::releaseDefaultFont();
}

TEST_F(CTextLabelTest, DrawsItsTextInItsColourAndFont) {
    label->setTextColour({255, 0, 0});
    label->setFont(new CFont("Arial", 40, false, true));  // the M fills the label
    label->drawControl(canvas.graphics);
    bool isRedFound = false;
    for (int x = 0; x < 30; ++x)
        isRedFound |= canvas.at(x, 10) == SNativeColour{255, 0, 0};
    EXPECT_TRUE(isRedFound);
    EXPECT_TRUE(isDrawn(canvas, 25, 31));
}

TEST_F(CTextLabelTest, DrawsItsBackgroundOrImageUnderTheText) {
    label->setText("");
    label->setDrawBackground(true);
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
    label->setDefaultDrawing(true);
    label->setDrawBackground(false);
    label->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(0, 0), (SNativeColour{0, 0, 0}));
    EXPECT_EQ(canvas.at(5, 5), (SNativeColour{255, 255, 255}));
    label->setPrimaryImage(new CTestImage(30, 20, false));
    label->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(5, 5), CTestImage::opaqueColourAt(5, 5));
}

TEST_F(CTextLabelTest, DrawsNoTextWhileItIsDisabled) {
    label->disableControl();
    label->setDefaultDrawing(true);
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
}

TEST_F(CTextLabelTest, ListsItsProperties) {
    EXPECT_THAT(listOwnProperties(*label),
                ElementsAre("Font: 8", "Text: 6", "Text Colour: 2", "Alignment: 7"));
}

TEST_F(CTextLabelTest, NamesItsAlignmentsInTheOrderOfTheTextFormat) {
    label->setTextFormat(4);
    CControlDescriptor alignment("Alignment", EDescriptorType::Selection);
    EXPECT_TRUE(label->getDescriptorValue(alignment));
    EXPECT_EQ(alignment.getSelectionIndex(), 4);
    const auto *choices = alignment.getValueAs<TCountedPointerArray<CString>>();
    ASSERT_NE(choices, nullptr);
    std::vector<std::string> names;
    for (int i = 0; i < choices->getInsertIndex(); ++i)
        names.emplace_back(choices->elementAtIndex(i)->getString());
    EXPECT_THAT(names,
                ElementsAre("Left / Top", "Center / Top", "Right / Top", "Left / Center",
                            "Center / Center", "Right / Center", "Left / Bottom", "Center / Bottom",
                            "Right / Bottom", "Default Label", "Default Single Line"));
}

TEST_F(CTextLabelTest, AcceptsOnlyAlignmentsThatHaveAName) {
    const auto set = [this](std::int32_t index) {
        CControlDescriptor alignment("Alignment", EDescriptorType::Selection);
        alignment.setSelectionIndex(index);
        return label->setFromDescriptor(alignment);
    };
    EXPECT_FALSE(set(-1));
    EXPECT_FALSE(set(11));
    EXPECT_EQ(label->getTextFormat(), 9);
    EXPECT_TRUE(set(10));
    EXPECT_EQ(label->getTextFormat(), 10);
    EXPECT_TRUE(set(0));
    EXPECT_EQ(label->getTextFormat(), 0);
}

TEST_F(CTextLabelTest, SetsItsPropertiesAndSurvivesXml) {
    using enum EDescriptorType;
    EXPECT_TRUE(setProperty(*label, "Font", Font, new CFont("Courier", 17, true, true)));
    EXPECT_TRUE(setProperty(*label, "Text", String, new CString("a \"b\" & c")));
    EXPECT_TRUE(setProperty(*label, "Text Colour", Colour, new CAlphaColour(1, 2, 3, 4)));
    EXPECT_FALSE(setProperty(*label, "Font", Font, new CString("Arial")));
    EXPECT_FALSE(setProperty(*label, "Text", String, nullptr));
    EXPECT_FALSE(setProperty(*label, "Text Colour", Colour, nullptr));
    label->setTextFormat(7);
    Tessitor::IO::CXMLNode node("control", nullptr);
    label->serialiseToXml(&node);
    EXPECT_EQ(node.getNumberOfChildren(), 16);

    CTextLabel *copy = make("");
    EXPECT_TRUE(copy->serialiseFromXml(&node));
    EXPECT_STREQ(copy->getText().getString(), "a \"b\" & c");
    ASSERT_NE(copy->getFont(), nullptr);
    EXPECT_STREQ(copy->getFont()->getFaceName().getString(), "Courier");
    EXPECT_EQ(copy->getFont()->getHeight(), 17);
    EXPECT_EQ(copy->getTextColour(), CAlphaColour(1, 2, 3, 4));
    EXPECT_EQ(copy->getTextFormat(), 7);
    EXPECT_FALSE(copy->isMouseEnabled());
}

}  // namespace
