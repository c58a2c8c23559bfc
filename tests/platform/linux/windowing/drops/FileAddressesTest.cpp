#include "platform/linux/windowing/drops/FileAddresses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> files(std::string_view list) {
    return filesOfAddresses(list, "studio");
}

TEST(FileAddresses, EachLineIsAFile) {
    EXPECT_THAT(files("file:///home/a.wav\r\nfile:///home/b.wav\r\n"),
                ElementsAre("/home/a.wav", "/home/b.wav"));
    EXPECT_THAT(files("file:///a\nfile:///b\n"), ElementsAre("/a", "/b"));
    EXPECT_THAT(files("file:///a"), ElementsAre("/a"));
    EXPECT_THAT(files(std::string_view("file:///a\0", 10)), ElementsAre("/a"));
}

TEST(FileAddresses, ThereMayBeNone) {
    EXPECT_THAT(files(""), IsEmpty());
    EXPECT_THAT(files("\r\n\r\n\n"), IsEmpty());
}

TEST(FileAddresses, CommentsAreNoFiles) {
    EXPECT_THAT(files("#file:///a\r\nfile:///b#c\r\n# end"), ElementsAre("/b#c"));
}

TEST(FileAddresses, OnlyThisComputerHasFiles) {
    EXPECT_THAT(files("file://localhost/a\r\nfile://studio/b\r\nfile://STUDIO/c\r\nfile:/d\r\n"
                      "FILE:///e\r\n"),
                ElementsAre("/a", "/b", "/c", "/d", "/e"));
    EXPECT_THAT(files("file://elsewhere/a\r\nfile://studio2/b\r\nfile://stud/c"), IsEmpty());
    EXPECT_THAT(filesOfAddresses("file://elsewhere/a\r\nfile:///b", ""), ElementsAre("/b"));
}

TEST(FileAddresses, OtherSchemesAreLeftOut) {
    EXPECT_THAT(files("http://localhost/a\r\nfiles:///b\r\n/c\r\nfile\r\nfile:\r\nfile:d\r\n"
                      "file://\r\nfile://localhost\r\n file:///e\r\n"),
                IsEmpty());
}

TEST(FileAddresses, DecodesPercentSigns) {
    EXPECT_THAT(files("file:///a%20b%2Fc%c3%A4%25"), ElementsAre("/a b/c\xC3\xA4%"));
    EXPECT_THAT(files("file:///%23a%0A"), ElementsAre("/#a\n"));
    EXPECT_THAT(files("file:///%252F"), ElementsAre("/%2F"));
}

TEST(FileAddresses, APercentSignWithoutACodeIsItself) {
    EXPECT_THAT(files("file:///50%\r\nfile:///%2\r\nfile:///%zz\r\nfile:///%+1\r\nfile:///%-1\r\n"
                      "file:///%1z%\r\nfile:///% 1"),
                ElementsAre("/50%", "/%2", "/%zz", "/%+1", "/%-1", "/%1z%", "/% 1"));
}

TEST(FileAddresses, AZeroByteIsInNoName) {
    EXPECT_THAT(files("file:///etc/passwd%00.wav\r\nfile:///b"), ElementsAre("/b"));
}

TEST(FileAddresses, NamesAreCutAt2047Bytes) {
    const std::string fits(2046, 'a'), tooLong(5000, 'a');
    EXPECT_THAT(files("file:///" + fits + "\r\nfile:///" + fits + "b\r\nfile:///" + tooLong),
                ElementsAre("/" + fits, "/" + fits, "/" + fits));
    std::string encoded;
    for (int i = 0; i < 2046; ++i)
        encoded += "%61";
    EXPECT_THAT(files("file:///" + encoded + "%62"), ElementsAre("/" + fits));
}

}  // namespace
