#include "foundation/ExceptionFence.h"

#include "Allocation.h"
#include "foundation/CException.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <type_traits>

using Tessitor::Exceptions::CException;
using Tessitor::Exceptions::fenced;
using Tessitor::Exceptions::SFence;

namespace {

constexpr SFence outer{"Caught exception during opening, more below\n\n",
                       "Caught unknown exception during opening", "CDoor::open()"};
constexpr SFence inner{"Caught exception during turning, more below\n\n",
                       "Caught unknown exception during turning", "CKey::turn()"};

struct SReport {
    std::string reason, function;
};

template <typename Operation>
SReport caughtFrom(Operation operation) {
    try {
        operation();
    } catch (const CException &exception) {
        return {exception.getErrorReason().getString(), exception.getFunctionName().getString()};
    }
    return {"nothing thrown", ""};
}

TEST(ExceptionFence, ReturnsTheResultOfTheOperation) {
    EXPECT_EQ(fenced(outer, [] { return 7; }), 7);
    int number = 1;
    static_assert(
        std::is_same_v<decltype(fenced(outer, [&]() -> int & { return number; })), int &>);
    fenced(outer, [&]() -> int & { return number; }) = 2;
    fenced(outer, [&] { ++number; });
    EXPECT_EQ(number, 3);
}

TEST(ExceptionFence, PutsTheLeadTextBeforeACaughtException) {
    const SReport report = caughtFrom([] {
        fenced(outer, [] { throw CException("The key is lost", "CPocket::find()", true); });
    });
    EXPECT_EQ(report.reason, "Caught exception during opening, more below\n\n"
                             "The key is lost\n\nCPocket::find()");
    EXPECT_EQ(report.function, "CDoor::open()");
}

TEST(ExceptionFence, LetsAFailureThroughIfThereIsNoMemoryToReportIt) {
    bool isOutOfMemory = false;
    try {
        const CFailingAllocation failing(0, 1'000'000);
        fenced(outer, [] { fenced(inner, [] { throw std::bad_alloc(); }); });
    } catch (const std::bad_alloc &) {
        isOutOfMemory = true;
    }
    EXPECT_TRUE(isOutOfMemory);
}

TEST(ExceptionFence, AChainReadsFromTheOutermostOperationDown) {
    const SReport report = caughtFrom([] {
        fenced(outer, [] {
            fenced(inner, [] { throw CException("The key is lost", "CPocket::find()", true); });
        });
    });
    EXPECT_EQ(report.reason, "Caught exception during opening, more below\n\n"
                             "Caught exception during turning, more below\n\n"
                             "The key is lost\n\nCPocket::find()\n\nCKey::turn()");
    EXPECT_EQ(report.function, "CDoor::open()");
}

TEST(ExceptionFence, ReportsAnyOtherExceptionAsUnknown) {
    const SReport standard = caughtFrom([] { fenced(outer, [] { throw std::bad_alloc(); }); });
    EXPECT_EQ(standard.reason, "Caught unknown exception during opening");
    EXPECT_EQ(standard.function, "CDoor::open()");
    const SReport number = caughtFrom([] { fenced(inner, [] { throw 7; }); });
    EXPECT_EQ(number.reason, "Caught unknown exception during turning");
}

TEST(ExceptionFence, CatchingLowersTheInstanceCount) {
    const CException witness("", "", true);
    const auto instances = witness.getClass().getInstanceCount();
    caughtFrom([] { fenced(outer, [] { throw CException("", "", true); }); });
    EXPECT_EQ(witness.getClass().getInstanceCount(), instances - 1);
    witness.getClass().incrementInstanceCount();  // restores the count for the next test
}

}  // namespace
