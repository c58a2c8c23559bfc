#include "foundation/CXMLAttribute.h"

#include <clocale>
#include <gtest/gtest.h>
#include <limits>

using Tessitor::Basics::CString;
using Tessitor::IO::CXMLAttribute;

namespace {

std::string nameOf(const char *name) {
    return CXMLAttribute(name, "").getName().getString();
}

template <typename Value>
std::string textOf(const Value &value) {
    return CXMLAttribute("name", value).getValue().getString();
}

TEST(CXMLAttribute, ItsNameHasNoBlanks) {
    EXPECT_EQ(nameOf("gain"), "gain");
    EXPECT_EQ(nameOf("two words"), "two_words");
    EXPECT_EQ(nameOf(" \t two  words \n"), "two__words");
    EXPECT_EQ(nameOf("a\tb"), "a\tb") << "a tab is no blank";
    EXPECT_EQ(nameOf(""), "");
}

TEST(CXMLAttribute, ANameOfOneLetterIsLost) {
    EXPECT_EQ(nameOf("x"), "");
    EXPECT_EQ(nameOf(" x "), "");
    EXPECT_EQ(nameOf("xy"), "xy");
}

TEST(CXMLAttribute, EveryKindOfValueIsText) {
    EXPECT_EQ(textOf(CString(" any text ")), " any text ");
    EXPECT_EQ(textOf("literal"), "literal");
    EXPECT_EQ(textOf(true), "True");
    EXPECT_EQ(textOf(false), "False");
    EXPECT_EQ(textOf(0.1), "0.100000");
    EXPECT_EQ(textOf(-2.5f), "-2.500000");
    EXPECT_EQ(textOf(1e300).size(), 308u);
    EXPECT_EQ(textOf(std::numeric_limits<double>::lowest()).size(), 317u);
    EXPECT_EQ(textOf(1e-9), "0.000000");
    EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(textOf(-123456789L), "-123456789");
    EXPECT_EQ(textOf(42), "42");
    EXPECT_EQ(textOf(static_cast<const char *>(nullptr)), "");
}

TEST(CXMLAttribute, EveryKindOfValueComesBack) {
    CXMLAttribute attribute("name", 0.25);
    EXPECT_EQ(attribute.getValueAsDouble(), 0.25);
    attribute.setValue(-1.5f);
    EXPECT_EQ(attribute.getValueAsFloat(), -1.5f);
    attribute.setValue(-123456789L);
    EXPECT_EQ(attribute.getValueAsLong(), -123456789L);
    attribute.setValue(std::numeric_limits<int>::min());
    EXPECT_EQ(attribute.getValueAsInt(), std::numeric_limits<int>::min());
    attribute.setValue(true);
    EXPECT_TRUE(attribute.getValueAsBool());
    attribute.setValue(false);
    EXPECT_FALSE(attribute.getValueAsBool());
    attribute.setValue(CString("text"));
    EXPECT_STREQ(attribute.getValue().getString(), "text");
    attribute.setValue(static_cast<const char *>(nullptr));
    EXPECT_STREQ(attribute.getValue().getString(), "text");
}

TEST(CXMLAttribute, ReadsNumbersAsFarAsTheyGo) {
    const auto number = [](const char *text) {
        return CXMLAttribute("name", text).getValueAsDouble();
    };
    EXPECT_EQ(number("1.5 dB"), 1.5);
    EXPECT_EQ(number(" \t\n+2.5e1"), 25);
    EXPECT_EQ(number("+-2"), 0);
    EXPECT_EQ(number("-.5"), -0.5);
    EXPECT_EQ(number("none"), 0);
    EXPECT_EQ(number(""), 0);
    EXPECT_EQ(number("inf"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(number("-1e999"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(number("1e+999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(number("1e-999"), 0);
    const std::string zeros(400, '0');
    EXPECT_EQ(number(("2" + zeros).c_str()), std::numeric_limits<double>::infinity());
    EXPECT_EQ(number(("0." + zeros + "2").c_str()), 0);
    EXPECT_EQ(number(("2" + zeros + "e-1").c_str()), std::numeric_limits<double>::infinity());
    EXPECT_EQ(number(("0." + zeros + "2e1").c_str()), 0);
    const std::string nines(30, '9');
    EXPECT_EQ(number(("1e" + nines).c_str()), std::numeric_limits<double>::infinity());
    EXPECT_EQ(number(("1e-" + nines).c_str()), 0);
    EXPECT_EQ(CXMLAttribute("name", "99999999999").getValueAsInt(),
              std::numeric_limits<int>::max());
    EXPECT_EQ(CXMLAttribute("name", "12.9").getValueAsLong(), 12);
}

TEST(CXMLAttribute, IsTrueForOneTextOnly) {
    for (const char *text : {"true", "TRUE", "1", " True", "True ", ""})
        EXPECT_FALSE(CXMLAttribute("name", text).getValueAsBool()) << text;
}

TEST(CXMLAttribute, NumbersIgnoreTheLocaleOfTheHost) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    const bool hasComma = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr ||
                          std::setlocale(LC_NUMERIC, "German_Germany.1252") != nullptr;
    ASSERT_TRUE(hasComma) << "run by ctest, which brings a locale with a comma";
    const CXMLAttribute attribute("name", 1.5);
    const std::string text = attribute.getValue().getString();
    const double value = attribute.getValueAsDouble();
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_EQ(text, "1.500000");
    EXPECT_EQ(value, 1.5);
}

TEST(CXMLAttribute, EveryConstructorCounts) {
    const CXMLAttribute one("one", 1);
    const auto instances = one.getClass().getInstanceCount();
    {
        const CXMLAttribute two("two", true), three("three", "");
        EXPECT_EQ(one.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(one.getClass().getInstanceCount(), instances);
    EXPECT_TRUE(one.getClass() == "CXMLAttribute");
}

}  // namespace
