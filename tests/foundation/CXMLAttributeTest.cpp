#include "foundation/CXMLAttribute.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

using Tessitor::Basics::CString;
using Tessitor::IO::CXMLAttribute;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const std::string zeros(400, '0'), nines(30, '9');

std::string nameOf(const char *name) {
    return CXMLAttribute(name, "").getName().getString();
}

template <typename Value>
std::string textOf(const Value &value) {
    return CXMLAttribute("name", value).getValue().getString();
}

TEST(CXMLAttribute, ANameHasNoBlanks) {
    EXPECT_EQ(nameOf("gain"), "gain");
    EXPECT_EQ(nameOf("two words"), "two_words");
    EXPECT_EQ(nameOf(" \t two  words \n"), "two__words");
    EXPECT_EQ(nameOf("a\tb"), "a\tb") << "a tab is not a blank";
    EXPECT_EQ(nameOf(""), "");
}

TEST(CXMLAttribute, ANameOfOneLetterIsLost) {
    EXPECT_EQ(nameOf("x"), "");
    EXPECT_EQ(nameOf(" x "), "");
    EXPECT_EQ(nameOf("xy"), "xy");
}

TEST(CXMLAttribute, EveryKindOfValueBecomesText) {
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

TEST(CXMLAttribute, EveryKindOfValueIsReadBack) {
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

double numberIn(const std::string &text) {
    return CXMLAttribute("name", text.c_str()).getValueAsDouble();
}

TEST(CXMLAttribute, ReadsTheNumberAtTheStartOfAText) {
    EXPECT_EQ(numberIn("1.5 dB"), 1.5);
    EXPECT_EQ(numberIn(" \t\n+2.5e1"), 25);
    EXPECT_EQ(numberIn("+-2"), 0);
    EXPECT_EQ(numberIn("-.5"), -0.5);
    EXPECT_EQ(numberIn("none"), 0);
    EXPECT_EQ(numberIn(""), 0);
    EXPECT_EQ(numberIn("inf"), infinity);
    EXPECT_EQ(CXMLAttribute("name", "99999999999").getValueAsInt(),
              std::numeric_limits<int>::max());
    EXPECT_EQ(CXMLAttribute("name", "12.9").getValueAsLong(), 12);
}

TEST(CXMLAttribute, ReadsNumbersTooLargeForADoubleAsInfinity) {
    for (const std::string &text :
         {"2" + zeros, "2" + zeros + ".5", "2" + zeros + "e-1", "0002" + zeros + "e-1",
          std::string("1e999"), std::string("1e+999"), std::string("1E999"), "1e" + nines,
          "1e+" + nines, "0." + zeros + "1e999", "0." + zeros + "1e" + nines}) {
        EXPECT_EQ(numberIn(text), infinity) << text;
        EXPECT_EQ(numberIn("+" + text), infinity) << text;
        EXPECT_EQ(numberIn("-" + text), -infinity) << text;
    }
}

TEST(CXMLAttribute, ReadsNumbersTooSmallForADoubleAsZeroOfTheirSign) {
    for (const std::string &text :
         {"0." + zeros + "2", "." + zeros + "2", "0." + zeros + "2e1", "000." + zeros + "2e1",
          std::string("1e-999"), std::string("1E-999"), std::string("1.5e-400"), "1e-" + nines,
          "1" + zeros + "e-999", "1" + zeros + "e-" + nines}) {
        EXPECT_EQ(numberIn(text), 0) << text;
        EXPECT_FALSE(std::signbit(numberIn(text))) << text;
        EXPECT_EQ(numberIn("-" + text), 0) << text;
        EXPECT_TRUE(std::signbit(numberIn("-" + text))) << text;
    }
}

TEST(CXMLAttribute, IgnoresTextAfterANumberOutsideTheRange) {
    for (const char *rest : {" e-500", "x", " ", "e", "e-", " dBE-900", ",5e-500", " 0.1"})
        EXPECT_EQ(numberIn("1" + zeros + rest), infinity) << rest;
    for (const char *rest : {" e500", "x", " ", "e", "e+", " dBE900", ",5e500", " 1.5"})
        EXPECT_EQ(numberIn("0." + zeros + "1" + rest), 0) << rest;
}

TEST(CXMLAttribute, IsTrueOnlyForTheWordTrue) {
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
