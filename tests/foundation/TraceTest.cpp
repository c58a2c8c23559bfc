#include "foundation/Trace.h"

#include "CTemporaryFolder.h"
#include "foundation/CLong.h"
#include "foundation/ReadFile.h"

#include <cstring>
#include <gtest/gtest.h>

using Tessitor::Basics::CCountedObject;
using Tessitor::Basics::CLong;
using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;
using Tessitor::IO::openTrace;
using Tessitor::IO::trace;

namespace {

class TraceFile : public testing::Test {
protected:
    ~TraceFile() override { openTrace(""); }  // closes it, so the folder can be deleted

    CTemporaryFolder folder;
    CSystemString path{(folder / "trace.txt").string().c_str()};
};

TEST_F(TraceFile, WritesNothingUntilItIsOpened) {
    trace("lost");
    trace(CLong(7), "lost ");
    ASSERT_TRUE(openTrace(path));
    EXPECT_EQ(readFile(path.getString()), "");
}

TEST_F(TraceFile, WritesALineAtOnceForEachCall) {
    openTrace(path);
    trace("plain");
    EXPECT_EQ(readFile(path.getString()), "plain\n");
    trace("%s has %i of %.1f", "format", 3, 1.5);
    trace(CLong(-42), "number = ");
    trace("%s", "");
    EXPECT_EQ(readFile(path.getString()), "plain\nformat has 3 of 1.5\nnumber = -42\n\n");
}

TEST_F(TraceFile, WritesALineOfAnyLength) {
    openTrace(path);
    const std::string text(100000, 'x');
    trace("%s", text.c_str());
    EXPECT_EQ(readFile(path.getString()), text + "\n");
}

TEST_F(TraceFile, CutsADescriptionTo1023Bytes) {
    openTrace(path);
    const std::string text(2000, 'x');
    trace(CString(text.c_str()), "text = ");
    EXPECT_EQ(readFile(path.getString()), "text = " + text.substr(0, 1023) + "\n");
}

TEST_F(TraceFile, WritesADescriptionThatFillsItsBufferWithoutATerminator) {
    class CFilling : public CCountedObject {
        void getObjectDescription(char *array, long size) const override {
            std::memset(array, 'f', static_cast<std::size_t>(size));
        }
    };
    openTrace(path);
    trace(CFilling(), "");
    EXPECT_EQ(readFile(path.getString()), std::string(1024, 'f') + "\n");
}

TEST_F(TraceFile, ReplacesTheFileWhenItIsOpened) {
    const CSystemString other((folder / "other.txt").string().c_str());
    openTrace(path);
    trace("first");
    EXPECT_TRUE(openTrace(other));
    trace("second");
    EXPECT_EQ(readFile(path.getString()), "first\n");
    EXPECT_EQ(readFile(other.getString()), "second\n");
    openTrace(path);
    EXPECT_EQ(readFile(path.getString()), "");
}

TEST_F(TraceFile, IsClosedWhenOpeningFails) {
    openTrace(path);
    EXPECT_FALSE(openTrace((folder / "none" / "trace.txt").string().c_str()));
    trace("lost");
    EXPECT_EQ(readFile(path.getString()), "");
}

}  // namespace
