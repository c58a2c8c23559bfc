#include "toolkit/controls/CControlDescriptor.h"

#include "foundation/CBool.h"
#include "foundation/CDouble.h"
#include "foundation/CLong.h"
#include "foundation/CRect.h"
#include "foundation/CXMLNode.h"
#include "foundation/TCountedPointerArray.h"
#include "toolkit/graphics/CAlphaColour.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/graphics/IImage.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::Basics::CBool;
using Tessitor::Basics::CDouble;
using Tessitor::Basics::CLong;
using Tessitor::Basics::CString;
using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Controls::CControlDescriptor;
using Tessitor::GUI::Controls::EDescriptorType;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;
using Tessitor::MathTools::CRect;

const char *attribute(const CXMLNode &node, const char *name) {
    const CXMLAttribute *found = node.getAttribute(name);
    return found != nullptr ? found->getValue().getString() : nullptr;
}

TEST(CControlDescriptor, StartsWithoutAValue) {
    const CControlDescriptor descriptor("Area", EDescriptorType::Rect);
    EXPECT_STREQ(descriptor.getName().getString(), "Area");
    EXPECT_EQ(descriptor.getType(), EDescriptorType::Rect);
    EXPECT_EQ(descriptor.getValue(), nullptr);
    EXPECT_EQ(descriptor.getSelectionIndex(), -1);
    EXPECT_TRUE(descriptor.getClass() == "CControlDescriptor");
}

TEST(CControlDescriptor, SharesItsValue) {
    auto *value = new CLong(5);
    value->reference();
    {
        CControlDescriptor descriptor("Control ID", EDescriptorType::Integer);
        descriptor.setValue(value);
        EXPECT_EQ(value->getReferenceCount(), 2);
        EXPECT_EQ(descriptor.getValueAs<CLong>(), value);
        EXPECT_EQ(descriptor.getValueAs<CBool>(), nullptr);
    }
    EXPECT_EQ(value->getReferenceCount(), 1);
    value->dereference();
}

/// Writes a value and reads it again.
/// @return what is written as its "value".
template <typename Value>
std::string writeAndRead(EDescriptorType type, Value *value, const char *typeName,
                         CControlDescriptor &copy) {
    CControlDescriptor descriptor("A name", type);
    descriptor.setValue(value);
    descriptor.setSelectionIndex(3);
    CXMLNode node("descriptor", nullptr);
    descriptor.serialiseToXml(node);
    EXPECT_STREQ(attribute(node, "name"), "A name");
    EXPECT_STREQ(attribute(node, "type"), typeName);
    EXPECT_TRUE(copy.serialiseFromXml(node));
    EXPECT_EQ(copy.getType(), type);
    EXPECT_STREQ(copy.getName().getString(), "A name");
    const char *text = attribute(node, "value");
    return text != nullptr ? text : "none";
}

TEST(CControlDescriptor, WritesAndReadsEveryType) {
    CControlDescriptor copy;
    EXPECT_EQ(writeAndRead(EDescriptorType::Rect, new CRect(1, -2, 3, 4), "rect", copy),
              "1,-2,3,4");
    EXPECT_STREQ(copy.getValueAs<CRect>()->toString().getString(), "1,-2,3,4");
    EXPECT_EQ(writeAndRead(EDescriptorType::Colour, new CAlphaColour(1, 2, 3, 4), "colour", copy),
              "1,2,3,4");
    EXPECT_EQ(*copy.getValueAs<CAlphaColour>(), CAlphaColour(1, 2, 3, 4));
    EXPECT_EQ(writeAndRead(EDescriptorType::Boolean, new CBool(true), "boolean", copy), "True");
    EXPECT_TRUE(copy.getValueAs<CBool>()->getValue());
    EXPECT_EQ(writeAndRead(EDescriptorType::Boolean, new CBool(false), "boolean", copy), "False");
    EXPECT_FALSE(copy.getValueAs<CBool>()->getValue());
    EXPECT_EQ(writeAndRead(EDescriptorType::Integer, new CLong(-7), "integer", copy), "-7");
    EXPECT_EQ(copy.getValueAs<CLong>()->getValue(), -7);
    EXPECT_EQ(writeAndRead(EDescriptorType::Float, new CDouble(0.25), "float", copy), "0.250000");
    EXPECT_EQ(copy.getValueAs<CDouble>()->getValue(), 0.25);
    EXPECT_EQ(writeAndRead(EDescriptorType::String, new CString("a < b"), "string", copy), "a < b");
    EXPECT_STREQ(copy.getValueAs<CString>()->getString(), "a < b");
}

TEST(CControlDescriptor, WritesTheIndexOfASelection) {
    using Choices = Tessitor::Collections::TCountedPointerArray<CString>;
    CControlDescriptor copy;
    EXPECT_EQ(writeAndRead(EDescriptorType::Selection, new Choices, "selection", copy), "3");
    EXPECT_EQ(copy.getSelectionIndex(), 3);
    EXPECT_EQ(copy.getValue(), nullptr);
}

TEST(CControlDescriptor, WritesAFontAsItsOwnAttributes) {
    CControlDescriptor copy;
    EXPECT_EQ(writeAndRead(EDescriptorType::Font, new CFont("Courier New", 17, true, false), "font",
                           copy),
              "none");
    const auto *font = copy.getValueAs<CFont>();
    ASSERT_NE(font, nullptr);
    EXPECT_STREQ(font->getFaceName().getString(), "Courier New");
    EXPECT_EQ(font->getHeight(), 17);
    EXPECT_TRUE(font->isItalic());
    EXPECT_FALSE(font->isBold());
    EXPECT_EQ(writeAndRead<CFont>(EDescriptorType::Font, nullptr, "font", copy), "none");
    EXPECT_EQ(copy.getValue(), nullptr);
}

TEST(CControlDescriptor, WritesNoNameForAMissingImage) {
    CControlDescriptor copy;
    using Tessitor::GUI::Graphics::IImage;
    EXPECT_EQ(writeAndRead<IImage>(EDescriptorType::Image, nullptr, "image", copy), "");
    EXPECT_EQ(copy.getValue(), nullptr);
}

TEST(CControlDescriptor, RejectsIncompleteNodes) {
    const auto isRead = [](const char *name, const char *type, const char *value) {
        CXMLNode node("descriptor", nullptr);
        if (name != nullptr)
            node.addAttribute(new CXMLAttribute("name", name));
        if (type != nullptr)
            node.addAttribute(new CXMLAttribute("type", type));
        if (value != nullptr)
            node.addAttribute(new CXMLAttribute("value", value));
        return CControlDescriptor().serialiseFromXml(node);
    };
    EXPECT_TRUE(isRead("a", "integer", "5"));
    EXPECT_FALSE(isRead(nullptr, "integer", "5"));
    EXPECT_FALSE(isRead("a", nullptr, "5"));
    EXPECT_FALSE(isRead("a", "integer", nullptr));
    EXPECT_FALSE(isRead("a", "Integer", "5"));
    EXPECT_FALSE(isRead("a", "", "5"));
}

}  // namespace
