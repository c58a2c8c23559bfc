#include "foundation/XMLEntities.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

using Tessitor::IO::decodeEntities;
using Tessitor::IO::encodeEntities;

namespace {

std::string encoded(const char *text) {
    return encodeEntities(text).getString();
}

std::string decoded(const char *text) {
    return decodeEntities(text).getString();
}

TEST(XMLEntities, EncodeAndDecodeSixCharacters) {
    EXPECT_EQ(encoded("a&b\"c>d<e\nf\rg"), "a&amp;b&quot;c&gt;d&lt;e&#10;f&#13;g");
    EXPECT_EQ(decoded("a&amp;b&quot;c&gt;d&lt;e&#10;f&#13;g"), "a&b\"c>d<e\nf\rg");
    EXPECT_EQ(encoded("'\t plain"), "'\t plain");
    EXPECT_EQ(encoded(""), "");
    EXPECT_EQ(decoded(""), "");
}

TEST(XMLEntities, AreFoundAnywhereInTheText) {
    EXPECT_EQ(decoded("&lt;&amp;&lt;"), "<&<");
    EXPECT_EQ(decoded("&&lt;"), "&<");
    EXPECT_EQ(decoded("x&lt;"), "x<") << "the text before the entity is kept";
    EXPECT_EQ(decoded("&nbsp;&gt;"), "&nbsp;>");
    EXPECT_EQ(decoded("&am&amp;p;"), "&am&p;");
    EXPECT_EQ(decoded("&LT; &#11; &lt"), "&LT; &#11; &lt");
}

TEST(XMLEntities, AreDecodedOneKindAfterTheOther) {
    EXPECT_EQ(encoded("&lt;"), "&amp;lt;");
    EXPECT_EQ(decoded("&amp;lt;"), "<");
    EXPECT_EQ(decoded("&amp;amp;quot;"), "\"");
    EXPECT_EQ(decoded("&#3&lt;8;"), "&#3<8;");
}

TEST(XMLEntities, RestoreEveryTextWithoutASemicolon) {
    constexpr std::string_view characters = "&\"><\n\ra #1l";
    for (unsigned seed = 0; seed < 500; ++seed) {
        std::mt19937 random(seed);
        std::string text(random() % 40, ' ');
        for (char &character : text)
            character = characters[random() % characters.size()];
        EXPECT_EQ(decoded(encoded(text.c_str()).c_str()), text) << "seed " << seed;
    }
}

}  // namespace
