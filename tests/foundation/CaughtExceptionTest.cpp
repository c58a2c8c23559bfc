#include "foundation/CaughtException.h"

#include "Allocation.h"
#include "CTemporaryFolder.h"
#include "foundation/CException.h"
#include "foundation/ReadFile.h"
#include "foundation/Trace.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

using Tessitor::Basics::CSystemString;
using Tessitor::Exceptions::CException;
using Tessitor::Exceptions::traceCaughtException;
using Tessitor::IO::openTrace;

namespace {

class CaughtException : public testing::Test {
protected:
    CaughtException() { openTrace(path); }
    ~CaughtException() override { openTrace(""); }  // closes it, so the folder can be deleted

    void traceThrown(const std::function<void()> &thrower) {
        try {
            thrower();
        } catch (...) {
            traceCaughtException("Failed");
        }
    }
    std::string traced() { return readFile(path.getString()); }

    CTemporaryFolder folder;
    CSystemString path{(folder / "trace.txt").string().c_str()};
};

TEST_F(CaughtException, IsTracedWithItsReasonAndFunction) {
    traceThrown([] { throw CException("100% broken", "f(int)", true); });
    EXPECT_EQ(traced(), "Failed: 100% broken\n\nf(int)\n");
}

TEST_F(CaughtException, IsTracedWithItsTextIfItIsAStandardOne) {
    traceThrown([] { throw std::runtime_error("too late"); });
    EXPECT_EQ(traced(), "Failed: too late\n");
}

TEST_F(CaughtException, IsTracedEvenIfNothingIsKnownAboutIt) {
    traceThrown([] { throw 1; });
    EXPECT_EQ(traced(), "Failed: Unknown exception\n");
}

TEST_F(CaughtException, IsLostIfTheReportRunsOutOfMemory) {
    try {
        throw CException(std::string(100, 'x').c_str(), "f(int)", true);
    } catch (...) {
        const CFailingAllocation failing(0, 1000);
        traceCaughtException("Failed");
    }
    EXPECT_EQ(traced(), "");
}

}  // namespace
