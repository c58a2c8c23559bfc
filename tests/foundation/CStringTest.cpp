#include "foundation/CString.h"

#include "foundation/CPascalString.h"
#include "foundation/CSystemString.h"

#include <climits>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>

using Tessitor::Basics::CCountedObject;
using Tessitor::Basics::CPascalString;
using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;

namespace {

/// A string with a terminator in the middle: "a.txt" becomes "a\0txt". It still has 6 characters,
/// with the terminator at the end.
class CCutString : public CSystemString {
public:
    explicit CCutString(const char *text) : CSystemString(text) { removeExtension(); }
};

}  // namespace

TEST(CString, AnEmptyStringHasOneCharacterItsTerminator) {
    const CString empty("");
    EXPECT_STREQ(empty.getString(), "");
    EXPECT_EQ(empty.getNumberOfCharacters(), 1);
    EXPECT_FALSE(!empty);
    EXPECT_EQ(empty.findForward('a'), -1);
    EXPECT_EQ(empty.findForward('\0'), 0);
    EXPECT_EQ(empty.findBackwards('\0'), 0);
}

TEST(CString, TreatsNullAsAnEmptyText) {
    const CString string(nullptr);
    EXPECT_STREQ(string.getString(), "");
    EXPECT_EQ(string.getNumberOfCharacters(), 1);
    EXPECT_STREQ(CString().getString(), "");
}

TEST(CString, ACopyHasTheTextButNoReferences) {
    auto *original = new CString("text");
    original->reference();
    const CString copy(*original);
    EXPECT_STREQ(copy.getString(), "text");
    EXPECT_NE(copy.getString(), original->getString());
    EXPECT_EQ(copy.getReferenceCount(), 0);
    original->dereference();
    EXPECT_STREQ(copy.getString(), "text");
}

TEST(CString, CountsItselfAndItsBase) {
    const CString one("one");
    auto &record = one.getClass();
    auto &base = CCountedObject().getClass();
    const auto instances = record.getInstanceCount();
    const auto bases = base.getInstanceCount();
    {
        const CString two("two"), three = one.getSubString(0, 1);
        const auto copy = std::make_unique<CString>(one);
        EXPECT_EQ(record.getInstanceCount(), instances + 3);
        EXPECT_EQ(base.getInstanceCount(), bases + 3);
    }
    EXPECT_EQ(record.getInstanceCount(), instances);
    EXPECT_EQ(base.getInstanceCount(), bases);
    EXPECT_TRUE(record == "CString");
    EXPECT_TRUE(record.isTypeOf(base));
}

TEST(CString, ABoolIsAssignedAsAWord) {
    CString string;
    string = true;
    EXPECT_STREQ(string.getString(), "True");
    string = false;
    EXPECT_STREQ(string.getString(), "False");
}

TEST(CString, AWholeNumberIsAssignedWithThreeDigits) {
    CString string;
    string = 7;
    EXPECT_STREQ(string.getString(), "007");
    string = -7;
    EXPECT_STREQ(string.getString(), "-007");
    string = 12345;
    EXPECT_STREQ(string.getString(), "12345");
    string = 7L;
    EXPECT_STREQ(string.getString(), "007");
    string = -7L;
    EXPECT_STREQ(string.getString(), "-007");
    string = INT_MIN;
    EXPECT_STREQ(string.getString(), "-2147483648");
    string = LONG_MAX;
    EXPECT_EQ(string.getString(), std::to_string(LONG_MAX));
}

TEST(CString, AFloatIsAssignedWithThreeDecimals) {
    CString string;
    string = 1.5f;
    EXPECT_STREQ(string.getString(), "1.500");
    string = -0.0005f;
    EXPECT_STREQ(string.getString(), "-0.001");
    string = -std::numeric_limits<float>::max();
    EXPECT_STREQ(string.getString(), "-340282346638528859811704183484516925440.000");
}

TEST(CString, ATextIsAssigned) {
    CString string;
    string = "text";
    EXPECT_STREQ(string.getString(), "text");
    EXPECT_EQ(string.getNumberOfCharacters(), 5);
    string = static_cast<const char *>(nullptr);
    EXPECT_STREQ(string.getString(), "text");
}

TEST(CString, AssignmentOfAConstStringDoesNothingIfTheTextsAreEqual) {
    CCutString cut("a.txt");
    CString &string = cut;
    const CString equal("a"), other("b");
    string = equal;
    EXPECT_EQ(string.getNumberOfCharacters(), 6);
    string = other;
    EXPECT_STREQ(string.getString(), "b");
    EXPECT_EQ(string.getNumberOfCharacters(), 2);
}

TEST(CString, AssignmentOfANonConstStringCopiesUnlessItIsTheSameObject) {
    CCutString cut("a.txt");
    CString &string = cut;
    string = cut;
    EXPECT_EQ(string.getNumberOfCharacters(), 6);
    CString equal("a");
    string = equal;
    EXPECT_STREQ(string.getString(), "a");
    EXPECT_EQ(string.getNumberOfCharacters(), 2);
}

TEST(CString, AcceptsTextsThatPointIntoItself) {
    CString string("one two");
    string = string.getString() + 4;
    EXPECT_STREQ(string.getString(), "two");
    string.appendString(string);
    EXPECT_STREQ(string.getString(), "twotwo");
    string += string.getString() + 3;
    EXPECT_STREQ(string.getString(), "twotwotwo");
    string.setString(string);
    EXPECT_STREQ(string.getString(), "twotwotwo");
    string.setStringWithFormat("<%s>", string.getString());
    EXPECT_STREQ(string.getString(), "<twotwotwo>");
}

TEST(CString, ComparesBytes) {
    const CString string("Text"), same("Text"), other("text"), longer("Texts");
    EXPECT_TRUE(string == same);
    EXPECT_FALSE(string != same);
    EXPECT_FALSE(string == other);
    EXPECT_TRUE(string != other);
    EXPECT_FALSE(string == longer);
    EXPECT_TRUE(string == "Text");
    EXPECT_FALSE(string != "Text");
    EXPECT_FALSE(string == "Tex");
    EXPECT_TRUE(string != "Tex");
    EXPECT_TRUE(string.equals(same));
    EXPECT_TRUE(string.equals("Text"));
    EXPECT_FALSE(string.equals(other));
    EXPECT_FALSE(string.equals("text"));
}

TEST(CString, ComparesIgnoringCase) {
    const CString string("TeXt"), other("tExT"), longer("texts");
    EXPECT_TRUE(string.equalsIgnoringCase(other));
    EXPECT_TRUE(string.equalsIgnoringCase("TEXT"));
    EXPECT_FALSE(string.equalsIgnoringCase(longer));
    EXPECT_FALSE(longer.equalsIgnoringCase(string));
    EXPECT_FALSE(string.equalsIgnoringCase("teyt"));
    EXPECT_TRUE(CString("").equalsIgnoringCase(""));
    EXPECT_FALSE(CString("[").equalsIgnoringCase("{"));
}

TEST(CString, ReturnsABlankForABadIndex) {
    const CString string("abc");
    EXPECT_EQ(string.characterAt(0), 'a');
    EXPECT_EQ(string[2], 'c');
    EXPECT_EQ(string.characterAt(string.getNumberOfCharacters() - 1), '\0');
    EXPECT_EQ(string.characterAt(string.getNumberOfCharacters()), ' ');
    EXPECT_EQ(string[-1], ' ');
    EXPECT_EQ(string.characterAt(LONG_MAX), ' ');
    EXPECT_EQ(string.characterAt(LONG_MIN), ' ');
}

TEST(CString, BecomesAPascalStringOf256Bytes) {
    const CPascalString small = CString("text");
    EXPECT_EQ(small.getString()[0], 4);
    EXPECT_EQ(std::memcmp(small.getString() + 1, "text", 5), 0);

    const CPascalString cut = CString(std::string(300, 'x').c_str());
    EXPECT_EQ(cut.getString()[0], 254);
    EXPECT_EQ(cut.getString()[254], 'x');
    EXPECT_EQ(cut.getString()[255], 0);
}

TEST(CString, StoresFormattedText) {
    CString string("old");
    string.setStringWithFormat("%s = %.3li, %c", "name", 7L, 'x');
    EXPECT_STREQ(string.getString(), "name = 007, x");
    EXPECT_EQ(string.getNumberOfCharacters(), 14);
    string.setStringWithFormat("%s", "");
    EXPECT_EQ(string.getNumberOfCharacters(), 1);
    string.setStringWithFormat("ab%cde", '\0');
    EXPECT_STREQ(string.getString(), "ab");
    EXPECT_EQ(string.getNumberOfCharacters(), 3);
    const std::string longText(5000, 'z');
    string.setStringWithFormat("%s!", longText.c_str());
    EXPECT_EQ(string.getString(), longText + "!");
}

TEST(CString, Appends) {
    CString string("one");
    string.appendString(" two");
    string.appendString(CString(" three"));
    string.appendString('!');
    EXPECT_STREQ(string.getString(), "one two three!");
    EXPECT_EQ(string.getNumberOfCharacters(), 15);
    string.appendString("");
    string.appendString('\0');
    EXPECT_EQ(string.getNumberOfCharacters(), 15);
    string += "?";
    string += CString("?");
    EXPECT_STREQ(string.getString(), "one two three!??");
}

TEST(CString, AppendingKeepsTheSpareBytesOfABlock) {
    CCutString string("a.txt");
    string.appendString("bc");
    EXPECT_STREQ(string.getString(), "abc");
    EXPECT_EQ(string.getNumberOfCharacters(), 8);
    EXPECT_EQ(string.characterAt(7), '\0');
    EXPECT_EQ(string.characterAt(8), ' ');
    EXPECT_EQ(string.findForward('t'), -1);
}

TEST(CString, CopiesSevenCharactersToABufferOfUnknownSize) {
    char buffer[16];
    std::memset(buffer, '#', sizeof buffer);
    CString("0123456789").getString(buffer);
    EXPECT_STREQ(buffer, "0123456");
    EXPECT_EQ(buffer[8], '#');
    CString("0123456").getString(buffer);
    EXPECT_STREQ(buffer, "0123456");
    CString("ab").getString(buffer);
    EXPECT_EQ(std::memcmp(buffer, "ab\0\0\0\0\0\0#", 9), 0);
    CString("ab").getString(nullptr);
}

TEST(CString, FillsABufferOfKnownSize) {
    const CString string("abcd");
    char buffer[8];
    const auto filled = [&](long size) {
        std::memset(buffer, '#', sizeof buffer);
        string.getString(buffer, size);
        return std::string(buffer, sizeof buffer);
    };
    using namespace std::string_literals;
    EXPECT_EQ(filled(8), "abcd\0\0\0\0"s);
    EXPECT_EQ(filled(6), "abcd\0\0##"s);
    EXPECT_EQ(filled(5), "abcd\0###"s);
    EXPECT_EQ(filled(4), "abc\0####"s);
    EXPECT_EQ(filled(1), "\0#######"s);
    EXPECT_EQ(filled(0), "########");
    EXPECT_EQ(filled(-1), "########");
    string.getString(nullptr, 8);
}

TEST(CString, DescribesItselfByItsText) {
    char buffer[4];
    CString("abcd").getObjectDescription(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "abc");
}

TEST(CString, SubStringsIncludeTheirEnd) {
    const CString string("abcd");
    EXPECT_STREQ(string.getSubString(0, 2).getString(), "abc");
    EXPECT_STREQ(string.getSubString(1, 2).getString(), "bc");
    EXPECT_EQ(string.getSubString(0, 2).getNumberOfCharacters(), 4);
    EXPECT_STREQ(string.getSubString(0, 3).getString(), "abcd");
    EXPECT_STREQ(string.getSubString(0, 4).getString(), "abcd");
    EXPECT_STREQ(string.getSubString(0, 5).getString(), "abcd");
    EXPECT_STREQ(string.getSubString(3, 5).getString(), "d");
    EXPECT_STREQ(string.getSubString(3, 4).getString(), "d");
    EXPECT_STREQ(string.getSubString(4, 5).getString(), "");
}

TEST(CString, SubStringsWithBadOrEqualIndicesAreEmpty) {
    const CString string("abcd");
    EXPECT_STREQ(string.getSubString(3, 3).getString(), "");
    EXPECT_STREQ(string.getSubString(0, 0).getString(), "");
    EXPECT_STREQ(string.getSubString(2, 1).getString(), "");
    EXPECT_STREQ(string.getSubString(-1, 2).getString(), "");
    EXPECT_STREQ(string.getSubString(0, -1).getString(), "");
    EXPECT_STREQ(string.getSubString(0, 6).getString(), "");
    EXPECT_STREQ(string.getSubString(0, 99).getString(), "");
    EXPECT_STREQ(string.getSubString(LONG_MIN, LONG_MAX).getString(), "");
}

TEST(CString, SubStringsEndAtATerminatorInTheMiddle) {
    const CString part = CCutString("ab.txt").getSubString(0, 5);
    EXPECT_STREQ(part.getString(), "ab");
    EXPECT_EQ(part.getNumberOfCharacters(), 3);
}

TEST(CString, ChangesCase) {
    CString string("aZ9 z\xe4");
    string.toUpperCase();
    EXPECT_STREQ(string.getString(), "AZ9 Z\xe4");
    string.toLowerCase();
    EXPECT_STREQ(string.getString(), "az9 z\xe4");
}

TEST(CString, RemovesLeadingWhiteSpace) {
    const auto without = [](const char *text) {
        CString string(text);
        string.removeLeadingWhiteSpace();
        return string;
    };
    EXPECT_STREQ(without(" \t\n\v\f\rabc ").getString(), "abc ");
    EXPECT_STREQ(without("abc").getString(), "abc");
    EXPECT_STREQ(without("  a").getString(), "a");
    EXPECT_STREQ(without("a").getString(), "a");
    EXPECT_STREQ(without("   ").getString(), "");
    EXPECT_STREQ(without("").getString(), "");
    EXPECT_EQ(without(" a").getNumberOfCharacters(), 2);
}

TEST(CString, RemovesTrailingWhiteSpaceButKeepsBlanksAloneAndLosesASingleLetter) {
    const auto without = [](const char *text) {
        CString string(text);
        string.removeTrailingWhiteSpace();
        return string;
    };
    EXPECT_STREQ(without("abc  ").getString(), "abc");
    EXPECT_STREQ(without("abc \t\n\v\f\r").getString(), "abc");
    EXPECT_STREQ(without(" abc").getString(), " abc");
    EXPECT_STREQ(without("   ").getString(), "   ");
    EXPECT_STREQ(without("a").getString(), "");
    EXPECT_STREQ(without("a  ").getString(), "");
    EXPECT_STREQ(without(" a ").getString(), " a");
    EXPECT_STREQ(without("").getString(), "");
}

TEST(CString, RemovesLeadingWhiteSpaceBeforeTrailing) {
    CString string("  abc  ");
    string.removeTrailingAndLeadingWhiteSpace();
    EXPECT_STREQ(string.getString(), "abc");
    // In the reverse order, the letter would be kept.
    string = " a ";
    string.removeTrailingAndLeadingWhiteSpace();
    EXPECT_STREQ(string.getString(), "");
}

TEST(CString, RemovesItsLastCharacter) {
    CString string("ab");
    string.removeLastCharacter();
    EXPECT_STREQ(string.getString(), "a");
    EXPECT_EQ(string.getNumberOfCharacters(), 2);
    string.removeLastCharacter();
    EXPECT_EQ(string.getNumberOfCharacters(), 1);
    string.removeLastCharacter();
    EXPECT_EQ(string.getNumberOfCharacters(), 1);
}

TEST(CString, RemovingTheLastCharacterOfABlockWithSpareBytesOnlyTrimsTheBlock) {
    CCutString string("ab.txt");
    string.removeLastCharacter();
    EXPECT_STREQ(string.getString(), "ab");
    EXPECT_EQ(string.getNumberOfCharacters(), 3);
}

TEST(CString, ReplacesCharactersInPlace) {
    CString string("a-b-c-");
    const char *const block = string.getString();
    string.replaceCharWithChar('-', '+');
    EXPECT_STREQ(string.getString(), "a+b+c+");
    EXPECT_EQ(string.getString(), block);
    string.replaceCharWithChar('\0', '!');
    EXPECT_STREQ(string.getString(), "a+b+c+");
    string.replaceCharWithChar('b', '\0');
    EXPECT_STREQ(string.getString(), "a+");
    EXPECT_EQ(string.getNumberOfCharacters(), 7);
}

TEST(CString, ReplacesCharactersAfterATerminatorToo) {
    CCutString string("a.txt");
    string.replaceCharWithChar('\0', '-');
    EXPECT_STREQ(string.getString(), "a-txt");
}

TEST(CString, ReplacesCharactersWithStrings) {
    CString string("a&b&");
    string.replaceCharWithString('&', "&amp;");
    EXPECT_STREQ(string.getString(), "a&amp;b&amp;");
    string.replaceCharWithString('a', "");
    EXPECT_STREQ(string.getString(), "&mp;b&mp;");
    string.replaceCharWithString('x', "y");
    EXPECT_STREQ(string.getString(), "&mp;b&mp;");
    string.replaceCharWithString('b', string);
    EXPECT_STREQ(string.getString(), "&mp;&mp;b&mp;&mp;");
}

TEST(CString, ReplacesStringsWithACharacter) {
    const auto replaced = [](const char *text, char replacement, const char *find) {
        CString string(text);
        string.replaceStringWithChar(replacement, find);
        return std::string(string.getString());
    };
    EXPECT_EQ(replaced("ab&lt;cd&lt;e", '<', "&lt;"), "ab<cd<e");
    EXPECT_EQ(replaced("ab&lt;", '<', "&lt;"), "ab<");
    EXPECT_EQ(replaced("&lt;ab", '<', "&lt;"), "<ab");
    EXPECT_EQ(replaced("&lt;", '<', "&lt;"), "<");
    EXPECT_EQ(replaced("&lt;&lt;", '<', "&lt;"), "<") << "a single character in front is lost";
    EXPECT_EQ(replaced("axbxc", '-', "x"), "-b-c") << "a single character in front is lost";
    EXPECT_EQ(replaced("abc", '<', "&lt;"), "abc");
    EXPECT_EQ(replaced("&amp;amp;", '&', "&amp;"), "&");
    EXPECT_EQ(replaced("b&gt;&lt;", '<', "&lt;"), "b&gt;&lt;") << "only the first '&' is tried";
}

TEST(CString, ReplacementThatWouldNeverEndDoesNothing) {
    CString string("banana");
    string.replaceStringWithChar('a', "a");
    EXPECT_STREQ(string.getString(), "banana");
    string.replaceStringWithChar('a', "");
    EXPECT_STREQ(string.getString(), "banana");
    string.replaceStringWithChar('x', string);
    EXPECT_STREQ(string.getString(), "x");
    string.replaceStringWithChar('x', string);
    EXPECT_STREQ(string.getString(), "x");
}

TEST(CString, FindsCharactersUpToTheTerminator) {
    const CString string("abca");
    EXPECT_EQ(string.findForward('a'), 0);
    EXPECT_EQ(string.findForward('c'), 2);
    EXPECT_EQ(string.findForward('x'), -1);
    EXPECT_EQ(string.findForward('\0'), 4);
    EXPECT_EQ(string.findBackwards('a'), 3);
    EXPECT_EQ(string.findBackwards('b'), 1);
    EXPECT_EQ(string.findBackwards('x'), -1);
    EXPECT_EQ(string.findBackwards('\0'), 4);
}

TEST(CString, FindsASubStringOnlyWhereItsFirstCharacterFirstOccurs) {
    const CString string("one two");
    EXPECT_EQ(string.findSubString("one"), 0);
    EXPECT_EQ(string.findSubString("two"), 4);
    EXPECT_EQ(string.findSubString("one two"), 0);
    EXPECT_EQ(string.findSubString("one two "), -1);
    EXPECT_EQ(string.findSubString("two!"), -1);
    EXPECT_EQ(string.findSubString("twx"), -1);
    EXPECT_EQ(string.findSubString("x"), -1);
    EXPECT_EQ(CString("aab").findSubString("ab"), -1);
    EXPECT_EQ(CString("oto two").findSubString("two"), -1);
    EXPECT_EQ(string.findSubString(""), 7);
    EXPECT_EQ(CString("").findSubString(""), 0);
    EXPECT_EQ(CString("").findSubString("a"), -1);
}

TEST(CString, RecognisesWhiteSpace) {
    for (int byte = 0; byte < 256; ++byte) {
        const bool expected = byte == ' ' || (byte >= 9 && byte <= 13);
        EXPECT_EQ(CString::isWhiteSpace(static_cast<char>(byte)), expected) << byte;
    }
    EXPECT_FALSE(CString("  ").isWhiteSpace());
    EXPECT_FALSE(CString("").isWhiteSpace());
}

TEST(CString, ConvertsNumbersToText) {
    EXPECT_STREQ(CString::toString(1.5).getString(), "1.500");
    EXPECT_STREQ(CString::toString(-2.25f).getString(), "-2.250");
    EXPECT_STREQ(CString::toString(7).getString(), "007");
    EXPECT_STREQ(CString::toString(-7).getString(), "-07");
    EXPECT_STREQ(CString::toString(7L).getString(), "007");
    EXPECT_STREQ(CString::toString(-7L).getString(), "-07");
    EXPECT_STREQ(CString::toString(1234L).getString(), "1234");
    const CString longest = CString::toString(-std::numeric_limits<double>::max());
    EXPECT_EQ(longest.getNumberOfCharacters(), 315);
    EXPECT_EQ(longest.getSubString(0, 6), "-179769");
    EXPECT_EQ(longest.getSubString(309, 314), "8.000");
}

TEST(CString, ConvertsTextToNumbers) {
    EXPECT_EQ(CString::toDouble(" -1.25x"), -1.25);
    EXPECT_EQ(CString::toDouble(CString("1e3")), 1000.0);
    EXPECT_EQ(CString::toDouble("none"), 0.0);
    EXPECT_EQ(CString::toFloat("0.1"), 0.1f);
    EXPECT_EQ(CString::toFloat(CString("-0.1")), -0.1f);
    EXPECT_EQ(CString::toLong("-12 34"), -12);
    EXPECT_EQ(CString::toLong(CString("+12")), 12);
    EXPECT_EQ(CString::toLong(""), 0);
    EXPECT_EQ(CString::toInt("012"), 12);
    EXPECT_EQ(CString::toInt(CString("-2147483648")), INT_MIN);
}

TEST(CString, NumbersOutsideTheRangeOfTheirTypeBecomeTheNearestInRange) {
    EXPECT_EQ(CString::toInt("2147483648"), INT_MAX);
    EXPECT_EQ(CString::toInt("-99999999999999999999"), INT_MIN);
    EXPECT_EQ(CString::toLong("99999999999999999999"), LONG_MAX);
    EXPECT_EQ(CString::toFloat("1e300"), HUGE_VALF);
    EXPECT_EQ(CString::toDouble("-1e400"), -HUGE_VAL);
}
