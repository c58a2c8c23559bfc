#include "foundation/CSystemString.h"

#include "Allocation.h"
#include "foundation/CException.h"
#include "platform/NativePath.h"

#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;
using Tessitor::Exceptions::CException;

namespace {

/// @param slashed  a path with "/" between its folders.
/// @return the same with the system's separator.
std::string native(std::string slashed) {
    for (char &character : slashed) {
        if (character == '/')
            character = nativePathSeparator[0];
    }
    return slashed;
}

CSystemString path(const std::string &slashed) {
    return native(slashed).c_str();
}

/// @return the path after one operation on it.
template <typename... Parameters, typename... Arguments>
std::string after(const std::string &slashed, void (CSystemString::*operation)(Parameters...),
                  const Arguments &...arguments) {
    CSystemString changed = path(slashed);
    (changed.*operation)(arguments...);
    return changed.getString();
}

TEST(CSystemString, CountsItselfAndItsBase) {
    const CString base;
    const CSystemString one("one");
    const auto strings = base.getClass().getInstanceCount();
    const auto paths = one.getClass().getInstanceCount();
    {
        const CSystemString two("two"), three(base);
        const auto copy = std::make_unique<CSystemString>(one);
        EXPECT_EQ(one.getClass().getInstanceCount(), paths + 3);
        EXPECT_EQ(base.getClass().getInstanceCount(), strings + 3);
    }
    EXPECT_EQ(one.getClass().getInstanceCount(), paths);
    EXPECT_EQ(base.getClass().getInstanceCount(), strings);
    EXPECT_TRUE(one.getClass() == "CSystemString");
    EXPECT_TRUE(one.getClass().isTypeOf(base.getClass()));
}

TEST(CSystemString, IsBuiltFromTextsStringsAndPaths) {
    EXPECT_STREQ(CSystemString().getString(), "");
    EXPECT_STREQ(CSystemString(nullptr).getString(), "");
    EXPECT_STREQ(CSystemString(CString("text")).getString(), "text");
    const CSystemString original("text");
    const auto copy = std::make_unique<CSystemString>(original);
    EXPECT_STREQ(copy->getString(), "text");
    EXPECT_NE(copy->getString(), original.getString());
}

TEST(CSystemString, TextsPathsStringsAndNumbersAreAssigned) {
    CSystemString string;
    CSystemString &returned = (string = "text");
    EXPECT_EQ(&returned, &string);
    EXPECT_STREQ(string.getString(), "text");
    string = CSystemString("path");
    EXPECT_STREQ(string.getString(), "path");
    string = CString("string");
    EXPECT_STREQ(string.getString(), "string");
    string = 7;
    EXPECT_STREQ(string.getString(), "007");
}

TEST(CSystemString, OnlySelfAssignmentDoesNothing) {
    CSystemString string("a.txt"), same("a");
    const CSystemString &itself = string;
    string.removeExtension();
    string = itself;
    EXPECT_EQ(string.getNumberOfCharacters(), 6);
    string = same;
    EXPECT_EQ(string.getNumberOfCharacters(), 2);
}

TEST(CSystemString, ComparesBytes) {
    const CSystemString string("text"), same("text"), other("Text");
    const CString plain("text");
    EXPECT_TRUE(string == same);
    EXPECT_FALSE(string != same);
    EXPECT_FALSE(string == other);
    EXPECT_TRUE(string != other);
    EXPECT_TRUE(string == "text");
    EXPECT_TRUE(string != "Text");
    EXPECT_TRUE(string == plain);
    EXPECT_FALSE(plain != string);
    EXPECT_FALSE(!string);
    EXPECT_EQ(string[1], 'e');
    EXPECT_EQ(string[9], ' ');
}

TEST(CSystemString, JoinsWithASeparatorEvenAfterASeparator) {
    CSystemString string = path("dir");
    EXPECT_EQ(&(string += "sub"), &string);
    EXPECT_EQ(string.getString(), native("dir/sub"));
    string += CString("file");
    EXPECT_EQ(string.getString(), native("dir/sub/file"));
    string = path("dir/");
    string += "sub";
    EXPECT_EQ(string.getString(), native("dir//sub"));
    string += string;
    EXPECT_EQ(string.getString(), native("dir//sub/dir//sub"));
}

TEST(CSystemString, JoinsWithASeparatorThroughItsBaseClassToo) {
    CSystemString string("dir");
    CString &base = string;
    base += "sub";
    base += CString("file");
    EXPECT_EQ(string.getString(), native("dir/sub/file"));
}

TEST(CSystemString, AppendsAPathWithOneSeparator) {
    const auto appended = [](const std::string &slashed, const char *name) {
        CSystemString string = path(slashed);
        string.appendPath(name);
        return std::string(string.getString());
    };
    EXPECT_EQ(appended("dir", "file"), native("dir/file"));
    EXPECT_EQ(appended("dir/", "file"), native("dir/file"));
    EXPECT_EQ(appended("dir//", "file"), native("dir//file"));
    EXPECT_EQ(appended("/", "file"), native("/file"));
    EXPECT_EQ(appended("", "file"), native("/file"));
    EXPECT_EQ(appended("dir", ""), native("dir/"));
    CSystemString string("dir");
    string.appendPath(string);
    EXPECT_EQ(string.getString(), native("dir/dir"));
}

TEST(CSystemString, AppendsTheSeparator) {
    EXPECT_EQ(after("dir", &CSystemString::appendSeparator), native("dir/"));
    EXPECT_EQ(after("dir/", &CSystemString::appendSeparator), native("dir//"));
}

TEST(CSystemString, HasTheExtensionThatItEndsWith) {
    const CSystemString string("name.txt");
    EXPECT_TRUE(string.hasExtension(".txt"));
    EXPECT_TRUE(string.hasExtension("txt"));
    EXPECT_TRUE(string.hasExtension(CString("e.txt")));
    EXPECT_TRUE(string.hasExtension("name.txt"));
    EXPECT_FALSE(string.hasExtension(".TXT"));
    EXPECT_FALSE(string.hasExtension(".tx"));
    EXPECT_FALSE(string.hasExtension(CString("x.txt")));
}

TEST(CSystemString, HasEveryExtensionThatIsEmptyOrLongerThanItself) {
    EXPECT_TRUE(CSystemString("abc").hasExtension(".txt"));
    EXPECT_TRUE(CSystemString("").hasExtension("x"));
    EXPECT_TRUE(CSystemString("abc").hasExtension(""));
    EXPECT_TRUE(CSystemString("").hasExtension(""));
    EXPECT_FALSE(CSystemString("abcd").hasExtension(".txt"));
}

TEST(CSystemString, HasAnExtensionIfThereIsADotAfterItsFirstCharacter) {
    const auto has = [](const char *text) {
        const CSystemString string(text);
        EXPECT_NE(string.hasExtension(), string.hasNoExtension()) << text;
        return string.hasExtension();
    };
    EXPECT_TRUE(has("a.txt"));
    EXPECT_TRUE(has("a."));
    EXPECT_TRUE(has(".a.b"));
    EXPECT_FALSE(has(".txt"));
    EXPECT_FALSE(has("txt"));
    EXPECT_FALSE(has(""));
}

TEST(CSystemString, AddsANewExtensionOrReplacesTheOldOne) {
    const auto renamed = [](const char *text, bool removeOld) {
        CSystemString string(text), same(text);
        string.setNewExtension("wav", removeOld);
        same.setNewExtension(CString("wav"), removeOld);
        EXPECT_TRUE(string == same);
        return std::string(string.getString());
    };
    EXPECT_EQ(renamed("a.txt", true), "a.wav");
    EXPECT_EQ(renamed("a.txt", false), "a.txt.wav");
    EXPECT_EQ(renamed("a.b.txt", true), "a.b.wav");
    EXPECT_EQ(renamed("a", true), "a.wav");
    EXPECT_EQ(renamed("a", false), "a.wav");
    EXPECT_EQ(renamed(".txt", true), ".txt.wav");
    EXPECT_EQ(renamed("", true), ".wav");
}

TEST(CSystemString, ANewExtensionMayPointIntoTheOldOne) {
    CSystemString string("a.txt");
    string.setNewExtension(string.getString() + 3, true);
    EXPECT_STREQ(string.getString(), "a.xt");
    EXPECT_EQ(string.getNumberOfCharacters(), 9) << "the spare bytes of the block are kept";
}

TEST(CSystemString, RemovesItsExtensionAndKeepsTheNumberOfCharacters) {
    CSystemString string("a.txt");
    string.removeExtension();
    EXPECT_STREQ(string.getString(), "a");
    EXPECT_EQ(string.getNumberOfCharacters(), 6);
    EXPECT_EQ(string.characterAt(2), 't');
    EXPECT_EQ(after("a.b.txt", &CSystemString::removeExtension), "a.b");
    EXPECT_EQ(after(".txt", &CSystemString::removeExtension), ".txt");
    EXPECT_EQ(after("txt", &CSystemString::removeExtension), "txt");
}

TEST(CSystemString, RemovesItsFileName) {
    EXPECT_EQ(after("c:/dir/file.txt", &CSystemString::removeFileName), native("c:/dir/"));
    EXPECT_EQ(after("dir/", &CSystemString::removeFileName), native("dir/"));
    EXPECT_EQ(after("/file", &CSystemString::removeFileName), native("/"));
    EXPECT_EQ(after("file", &CSystemString::removeFileName), "file");
}

TEST(CSystemString, ReturnsThePathOfAFileWithAnExtension) {
    EXPECT_EQ(path("c:/dir/file.txt").getPath(), native("c:/dir/").c_str());
    EXPECT_EQ(path("c:/dir/file").getPath(), native("c:/dir/file").c_str());
    EXPECT_EQ(path("/file.txt").getPath(), nativePathSeparator);
    EXPECT_EQ(path("file.txt").getPath(), "");
    EXPECT_EQ(path("").getPath(), "");
}

TEST(CSystemString, ReturnsTheDrive) {
    EXPECT_EQ(path("c:/dir/file").getDrive(false), "c");
    EXPECT_EQ(path("").getDrive(false), "");
    EXPECT_EQ(path("c:/dir/file").getDrive(true), native("c:/").c_str());
    EXPECT_EQ(path("/dir").getDrive(true), nativePathSeparator);
    EXPECT_EQ(path("c:/").getDrive(true), native("c:/").c_str());
    EXPECT_EQ(path("file").getDrive(true), "");
    EXPECT_EQ(path("").getDrive(true), "");
}

TEST(CSystemString, ReturnsTheExtensionWithItsDot) {
    EXPECT_EQ(path("c:/dir/file.txt").getExtension(), ".txt");
    EXPECT_EQ(path("a.b.c").getExtension(), ".c");
    EXPECT_EQ(path(".txt").getExtension(), ".txt");
    EXPECT_EQ(path("a.").getExtension(), ".");
    EXPECT_EQ(path("a").getExtension(), "");
}

TEST(CSystemString, ReturnsTheFileName) {
    EXPECT_EQ(path("c:/dir/file.txt").getFileName(), "file.txt");
    EXPECT_EQ(path("/f").getFileName(), "f");
    EXPECT_EQ(path("dir/").getFileName(), "");
    EXPECT_EQ(path("file").getFileName(), "");
}

TEST(CSystemString, CountsPathSections) {
    EXPECT_EQ(path("c:/dir/file.txt").getNumberOfPathSections(), 3);
    EXPECT_EQ(path("/dir/file").getNumberOfPathSections(), 2);
    EXPECT_EQ(path("dir//file/").getNumberOfPathSections(), 2);
    EXPECT_EQ(path("_dir/file").getNumberOfPathSections(), 1);
    EXPECT_EQ(path("/").getNumberOfPathSections(), 0);
    EXPECT_EQ(path("").getNumberOfPathSections(), 0);
}

TEST(CSystemString, ReturnsPathSectionsWithASeparatorAfterTheFirst) {
    const auto section = [](const std::string &slashed, long index) {
        const std::unique_ptr<CString> found(path(slashed).getPathSection(index));
        return found == nullptr ? std::string("null") : found->getString();
    };
    EXPECT_EQ(section("c:/dir/file", 0), native("c:/"));
    EXPECT_EQ(section("c:/dir/file", 1), "dir");
    EXPECT_EQ(section("c:/dir/file", 2), "file");
    EXPECT_EQ(section("c:/dir/file", 3), "null");
    EXPECT_EQ(section("c:/dir/file", LONG_MAX), "null");
    EXPECT_EQ(section("c:/dir/file", -1), "c:");
    EXPECT_EQ(section("", 0), "null");
    EXPECT_EQ(section("", -1), "null");
    EXPECT_EQ(section("/dir/file", 0), nativePathSeparator);
    EXPECT_EQ(section("/dir/file", 1), "dir");
    EXPECT_EQ(section("/dir/file", 2), "null") << "two are counted, and the first is empty";
}

TEST(CSystemString, ReturnsItsLastPathSection) {
    EXPECT_EQ(path("c:/dir/file").getLastPathSection(), "file");
    EXPECT_EQ(path("file").getLastPathSection(), native("file/").c_str());
    EXPECT_EQ(path("/dir/file").getLastPathSection(), "dir");
    EXPECT_EQ(path("").getLastPathSection(), "");
}

TEST(CSystemString, SplitsALongPathAsIfItEndedAfter2047Bytes) {
    const std::string folder(2040, 'f');
    EXPECT_EQ(path(folder + "/123456789").getLastPathSection(), "123456");
    EXPECT_EQ(path(folder + "/12345/789").getNumberOfPathSections(), 2);
}

/// Runs the operation again and again on a path: its first allocation fails, then its second, and
/// so on until it succeeds. Any exception but a CException is passed on.
/// @return the report of the first failure.
template <typename Operation>
std::string firstReportOf(Operation operation) {
    std::string firstReport;
    for (int allocation = 0;; ++allocation) {
        CSystemString changed = path("the drive of the file:/the folder of the file/its name.txt");
        try {
            const CFailingAllocation failing(allocation);
            operation(changed);
            return firstReport;
        } catch (const CException &exception) {
            if (firstReport.empty())
                firstReport = exception.getErrorReason().getString();
        }
    }
}

TEST(CSystemString, ReportsFailedAllocationsAsExceptions) {
    const char *const construction = "Caught unknown exception during string construction";
    EXPECT_EQ(firstReportOf([](CSystemString &p) { p.removeFileName(); }), construction);
    EXPECT_EQ(firstReportOf([](CSystemString &p) { p.getPath(); }), construction);
    EXPECT_EQ(firstReportOf([](CSystemString &p) { p.getDrive(true); }), construction);
    EXPECT_EQ(firstReportOf([](CSystemString &p) { p.removeLastPathSection(); }), construction);
}

TEST(CSystemString, ReportsAFailedAllocationOfAPathSectionAsAnException) {
    const auto get = [](long index) {
        return [index](const CSystemString &p) {
            const std::unique_ptr<CString> section(p.getPathSection(index));
            EXPECT_NE(section, nullptr);
        };
    };
    EXPECT_EQ(firstReportOf(get(0)), "Caught exception during path section get, more below\n\n"
                                     "Caught unknown exception during string construction\n\n"
                                     "Tessitor::Basics::CString::CString");
    EXPECT_EQ(firstReportOf(get(2)), firstReportOf(get(0)));
    EXPECT_EQ(firstReportOf([](const CSystemString &p) { p.getLastPathSection(); }),
              firstReportOf(get(0)));
}

TEST(CSystemString, RemovesItsLastPathSection) {
    EXPECT_EQ(after("c:/dir/file.txt", &CSystemString::removeLastPathSection), native("c:/dir"));
    EXPECT_EQ(after("c:/dir/", &CSystemString::removeLastPathSection), native("c:/dir"));
    EXPECT_EQ(after("c:/dir", &CSystemString::removeLastPathSection), "c:");
    EXPECT_EQ(after("c/dir", &CSystemString::removeLastPathSection), native("c/dir"));
    EXPECT_EQ(after("/dir", &CSystemString::removeLastPathSection), native("/dir"));
    EXPECT_EQ(after("dir", &CSystemString::removeLastPathSection), "dir");
}

TEST(CSystemString, RemovesItsFirstPathSection) {
    EXPECT_EQ(after("c:/dir/file", &CSystemString::removeFirstPathSection), native("dir/file"));
    EXPECT_EQ(after("c:/f", &CSystemString::removeFirstPathSection), "f");
    EXPECT_EQ(after("/dir", &CSystemString::removeFirstPathSection), "dir");
    EXPECT_EQ(after("dir/", &CSystemString::removeFirstPathSection), "");
    EXPECT_EQ(after("dir", &CSystemString::removeFirstPathSection), "dir");
}

TEST(CSystemString, ConvertsSlashesToTheSeparator) {
    CSystemString string("c:/dir/file");
    string.convertSlashes();
    EXPECT_EQ(string.getString(), native("c:/dir/file"));
}

}  // namespace
