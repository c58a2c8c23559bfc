#include "foundation/CHtmlString.h"

#include "platform/NativeShell.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Tessitor::Basics::CHtmlString;
using Tessitor::Basics::CString;

namespace {

std::vector<std::string> openedDocuments;
bool isShellWilling = true;

}  // namespace

// The linker uses this instead of the library's function, so no test opens a browser.
bool openNativeDocument(const std::string &document) {
    openedDocuments.push_back(document);
    return isShellWilling;
}

namespace {

TEST(CHtmlString, CountsItselfAndItsBases) {
    const CHtmlString one("one");
    const auto instances = one.getClass().getInstanceCount();
    {
        const CHtmlString two("two"), three(CString("three"));
        const auto copy = std::make_unique<CHtmlString>(one);
        EXPECT_STREQ(copy->getString(), "one");
        EXPECT_STREQ(three.getString(), "three");
        EXPECT_EQ(one.getClass().getInstanceCount(), instances + 3);
    }
    EXPECT_EQ(one.getClass().getInstanceCount(), instances);
    EXPECT_TRUE(one.getClass() == "CHtmlString");
    EXPECT_TRUE(one.getClass().isTypeOf(CString().getClass()));
}

TEST(CHtmlString, TextsAndAddressesAreAssigned) {
    CHtmlString address("a.b");
    address.removeExtension();
    const CHtmlString &itself = address;
    address = itself;
    EXPECT_EQ(address.getNumberOfCharacters(), 4);
    address = CHtmlString("x");
    EXPECT_STREQ(address.getString(), "x");
    address = "text";
    EXPECT_STREQ(address.getString(), "text");
}

TEST(CHtmlString, NeverFindsAProtocol) {
    for (const char *text : {"file://a", "http://a", "file://", "http://", "file:/", "a", ""}) {
        EXPECT_FALSE(CHtmlString(text).isFileAddress()) << text;
        EXPECT_FALSE(CHtmlString(text).isWebAddress()) << text;
    }
}

TEST(CHtmlString, PutsTheProtocolInFront) {
    CHtmlString address("host/page");
    address.addProtocol(true);
    EXPECT_STREQ(address.getString(), "http://host/page");
    address.addProtocol(true);
    EXPECT_STREQ(address.getString(), "http://http://host/page");
    address = "page";
    address.addProtocol(false);
    EXPECT_STREQ(address.getString(), "file://page");
}

TEST(CHtmlString, OpensALocalFileWithoutAddingAProtocol) {
    openedDocuments.clear();
    CHtmlString address("dir/page.htm");
    EXPECT_TRUE(address.openInBrowser(true));
    EXPECT_EQ(openedDocuments, std::vector<std::string>{"dir/page.htm"});
    EXPECT_STREQ(address.getString(), "dir/page.htm");
}

TEST(CHtmlString, AddsTheWebProtocolToAnythingElseItOpens) {
    openedDocuments.clear();
    CHtmlString address("host");
    EXPECT_TRUE(address.openInBrowser(false));
    EXPECT_STREQ(address.getString(), "http://host");
    EXPECT_TRUE(address.openInBrowser(false));
    EXPECT_EQ(openedDocuments, (std::vector<std::string>{"http://host", "http://http://host"}));
}

TEST(CHtmlString, ReturnsFalseIfTheSystemRefuses) {
    isShellWilling = false;
    EXPECT_FALSE(CHtmlString("host").openInBrowser(false));
    isShellWilling = true;
}

}  // namespace
