#include "toolkit/windowing/CWindowAttributes.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Basics::CColour;
using Tessitor::GUI::Graphics::CWindowIcon;
using Tessitor::GUI::Windowing::CWindowAttributes;
using Tessitor::GUI::Windowing::EWindowKind;

TEST(CWindowAttributes, StartsAsAPlainWindow) {
    const CWindowAttributes attributes;
    EXPECT_STREQ(attributes.getWindowTitle().getString(), "Application");
    EXPECT_TRUE(attributes.getBackgroundColour() == CColour(255, 255, 255));
    EXPECT_EQ(attributes.getAlpha(), 1.0);
    EXPECT_EQ(attributes.getWindowIcon(), nullptr);
    EXPECT_TRUE(attributes.isEnabled());
    EXPECT_FALSE(attributes.hasDropShadow());
    EXPECT_TRUE(attributes.getClass() == "CWindowAttributes");
}

struct SKind {
    int kind;
    std::uint32_t style, extendedStyle;
};

class CWindowAttributesKinds : public testing::TestWithParam<SKind> {};

TEST_P(CWindowAttributesKinds, SetTheStyles) {
    const CWindowAttributes attributes(static_cast<EWindowKind>(GetParam().kind));
    EXPECT_EQ(attributes.getWindowStyle(), GetParam().style);
    EXPECT_EQ(attributes.getExtendedWindowStyle(), GetParam().extendedStyle);
}

INSTANTIATE_TEST_SUITE_P(Kinds, CWindowAttributesKinds,
                         testing::Values(SKind{0, 0xCF0008, 16}, SKind{1, 0xCA0000, 16},
                                         SKind{2, 0xCA0000, 16}, SKind{3, 0x80000000, 0x8080008},
                                         SKind{4, 0xCF0008, 16}));

TEST(CWindowAttributes, AssignmentCopiesEverythingAndSharesTheIcon) {
    auto *icon = new CWindowIcon(static_cast<void *>(nullptr));
    CWindowAttributes copy;
    {
        CWindowAttributes attributes;
        attributes.setWindowTitle("Title");
        attributes.setBackgroundColour({1, 2, 3});
        attributes.setAlpha(0.25);
        attributes.setWindowIcon(icon);
        attributes.setEnabled(false);
        attributes.setDropShadow(true);
        attributes.setWindowStyles(5, 6);
        copy = attributes;
        EXPECT_EQ(icon->getReferenceCount(), 2);
        EXPECT_EQ(CWindowAttributes(attributes).getAlpha(), 0.25);
    }
    EXPECT_EQ(icon->getReferenceCount(), 1);
    EXPECT_STREQ(copy.getWindowTitle().getString(), "Title");
    EXPECT_TRUE(copy.getBackgroundColour() == CColour(1, 2, 3));
    EXPECT_EQ(copy.getAlpha(), 0.25);
    EXPECT_EQ(copy.getWindowIcon(), icon);
    EXPECT_FALSE(copy.isEnabled());
    EXPECT_TRUE(copy.hasDropShadow());
    EXPECT_EQ(copy.getWindowStyle(), 5u);
    EXPECT_EQ(copy.getExtendedWindowStyle(), 6u);
}

}  // namespace
