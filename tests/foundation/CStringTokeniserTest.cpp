#include "foundation/CStringTokeniser.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Tessitor::Basics::CString;
using Tessitor::Basics::CStringTokeniser;

namespace {

using Tokens = std::vector<std::string>;

Tokens tokensOf(CStringTokeniser &tokeniser) {
    Tokens tokens;
    while (const auto token = std::unique_ptr<char[]>(tokeniser.getNextToken()))
        tokens.emplace_back(token.get());
    return tokens;
}

Tokens split(const std::string &text, char delimiter = ',') {
    CStringTokeniser tokeniser(text.c_str(), delimiter);
    return tokensOf(tokeniser);
}

TEST(CStringTokeniser, SplitsAtItsDelimiter) {
    EXPECT_EQ(split("1,22,333"), (Tokens{"1", "22", "333"}));
    EXPECT_EQ(split("1;2,3;4", ';'), (Tokens{"1", "2,3", "4"}));
    EXPECT_EQ(split("one"), Tokens{"one"});
    EXPECT_EQ(split(""), Tokens{});
    EXPECT_EQ(split(",,"), Tokens{});
    EXPECT_EQ(split("a,"), Tokens{"a"});
}

TEST(CStringTokeniser, SkipsEmptyTokensWhenCountingButNotWhenReading) {
    CStringTokeniser tokeniser(",,a,,b,", ',');
    EXPECT_EQ(tokeniser.countTokens(), 2);
    EXPECT_EQ(tokensOf(tokeniser), (Tokens{"", ""}));
    EXPECT_EQ(split("a,,b"), (Tokens{"a", ""}));
}

TEST(CStringTokeniser, DoesNotCountAFirstTokenThatBeginsWithAnUnderscore) {
    EXPECT_EQ(split("_a,b,c"), (Tokens{"_a", "b"}));
    EXPECT_EQ(split("_a"), Tokens{});
    EXPECT_EQ(split("a,_b"), (Tokens{"a", "_b"}));
    EXPECT_EQ(split("_a", '_'), Tokens{""}) << "here the underscore is also the delimiter";
}

TEST(CStringTokeniser, MustCountFirstIfBuiltWithoutADelimiter) {
    CStringTokeniser fromText("a,b");
    EXPECT_FALSE(fromText.hasMoreTokens());
    EXPECT_EQ(fromText.getNextToken(), nullptr);
    EXPECT_EQ(fromText.countTokens(), 2);
    EXPECT_TRUE(fromText.hasMoreTokens());
    EXPECT_EQ(tokensOf(fromText), (Tokens{"a", "b"}));
    EXPECT_FALSE(fromText.hasMoreTokens());

    CStringTokeniser fromString(CString("a,b"));
    EXPECT_FALSE(fromString.hasMoreTokens());
    EXPECT_EQ(fromString.countTokens(), 2);
}

TEST(CStringTokeniser, HasTokensAtOnceIfBuiltWithADelimiter) {
    EXPECT_TRUE(CStringTokeniser("a|b", '|').hasMoreTokens());
    CStringTokeniser fromString(CString("a|b"), '|');
    EXPECT_EQ(tokensOf(fromString), (Tokens{"a", "b"}));
}

TEST(CStringTokeniser, StoresTokensInAString) {
    CStringTokeniser tokeniser("a,,c,d", ',');
    CString token("before");
    EXPECT_TRUE(tokeniser.getNextToken(token));
    EXPECT_STREQ(token.getString(), "a");
    EXPECT_TRUE(tokeniser.getNextToken(token));
    EXPECT_STREQ(token.getString(), "");
    EXPECT_TRUE(tokeniser.getNextToken(token));
    EXPECT_STREQ(token.getString(), "c");
    EXPECT_FALSE(tokeniser.getNextToken(token));
    EXPECT_STREQ(token.getString(), "c");
}

TEST(CStringTokeniser, CountingAgainDoesNotRestartTheReading) {
    CStringTokeniser tokeniser("a,b,c", ',');
    std::unique_ptr<char[]> first(tokeniser.getNextToken());
    EXPECT_EQ(tokeniser.countTokens(), 3);
    EXPECT_EQ(tokensOf(tokeniser), (Tokens{"b", "c"}));
}

TEST(CStringTokeniser, ANewDelimiterKeepsTheCountAndRepeatsTheEnd) {
    CStringTokeniser tokeniser("a,b;c", ',');
    tokeniser.setDelimiter('|');
    EXPECT_EQ(tokensOf(tokeniser), (Tokens{"a,b;c", "a,b;c"}));
    tokeniser.setDelimiter(';');
    EXPECT_EQ(tokeniser.countTokens(), 2);
}

TEST(CStringTokeniser, ANewTextIsReadFromItsStartAfterCounting) {
    CStringTokeniser tokeniser("a;b", ';');
    EXPECT_EQ(tokensOf(tokeniser), (Tokens{"a", "b"}));
    tokeniser.setText("c;d;e");
    EXPECT_FALSE(tokeniser.hasMoreTokens());
    EXPECT_EQ(tokeniser.countTokens(), 3);
    EXPECT_EQ(tokensOf(tokeniser), (Tokens{"c", "d", "e"}));
}

TEST(CStringTokeniser, CutsATextTo2047Bytes) {
    const std::string fits(2047, 'x');
    EXPECT_EQ(split(fits), Tokens{fits});
    EXPECT_EQ(split(fits + "x"), Tokens{fits});
    EXPECT_EQ(split(fits + ",y"), Tokens{fits});
}

TEST(CStringTokeniser, CountsItself) {
    const CStringTokeniser one("one");
    const auto instances = one.getClass().getInstanceCount();
    {
        const CString text("a,b");
        const CStringTokeniser two("two", ','), three(text), four(text, ',');
        EXPECT_EQ(one.getClass().getInstanceCount(), instances + 3);
    }
    EXPECT_EQ(one.getClass().getInstanceCount(), instances);
    EXPECT_TRUE(one.getClass() == "CStringTokeniser");
}

}  // namespace
