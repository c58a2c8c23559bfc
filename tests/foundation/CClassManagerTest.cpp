#include "foundation/CClassManager.h"

#include "CTemporaryFolder.h"
#include "foundation/CException.h"
#include "foundation/CTextStream.h"
#include "foundation/ObjectSamples.h"
#include "foundation/ReadFile.h"

#include <gtest/gtest.h>

using Tessitor::Basics::CClass;
using Tessitor::Basics::CClassManager;
using Tessitor::Exceptions::CException;
using Tessitor::IO::CTextStream;
using Tessitor::IO::EStreamMode;

namespace {

constexpr std::size_t headLength = 450;  // five lines

/// The test's own manager and its records, which also register with the program's manager.
class CClassManagerList : public testing::Test {
protected:
    std::string report() const {
        const CTemporaryFolder folder;
        const std::string path = (folder / "report.txt").string();
        CTextStream stream(path.c_str(), EStreamMode::Write);
        manager.writeClassInformation(stream);
        stream.close();
        return readFile(path);
    }

    CClass beta{"TestBeta"}, alpha{"TestAlpha"}, gamma{"TestGamma"};
    CClassManager manager;
};

TEST_F(CClassManagerList, FindsByName) {
    manager.registerClass(&beta);
    manager.registerClass(&alpha);
    EXPECT_EQ(manager.getClassWithName("TestAlpha"), &alpha);
    EXPECT_EQ(manager.getClassWithName("TestGamma"), nullptr);
    EXPECT_TRUE(manager.isClassRegistered(&beta));
    EXPECT_FALSE(manager.isClassRegistered(&gamma));
}

TEST_F(CClassManagerList, IgnoresNull) {
    manager.registerClass(nullptr);
    EXPECT_EQ(manager.getClasses().getInsertIndex(), 0);
    EXPECT_FALSE(manager.isClassRegistered(nullptr));
}

TEST_F(CClassManagerList, KeepsTheFirstRecordOfAName) {
    const CClass another("TestBeta");
    CClass second(another);
    manager.registerClass(&beta);
    manager.registerClass(&second);
    EXPECT_EQ(manager.getClasses().getInsertIndex(), 1);
    EXPECT_EQ(manager.getClassWithName("TestBeta"), &beta);
    EXPECT_TRUE(manager.isClassRegistered(&second));
}

TEST_F(CClassManagerList, WithdrawsByAddress) {
    const CClass namesake("TestBeta");
    manager.registerClass(&beta);
    manager.withdrawClass(&namesake);
    EXPECT_TRUE(manager.isClassRegistered(&beta));
    manager.withdrawClass(&beta);
    EXPECT_FALSE(manager.isClassRegistered(&beta));
}

TEST_F(CClassManagerList, NeverDeletesARecord) {
    {
        CClassManager passing;
        passing.registerClass(&beta);
    }
    EXPECT_STREQ(beta.getClassName(),
                 "TestBeta");  // a freed record would crash here or fail under the sanitizers
}

TEST_F(CClassManagerList, SortsByNameWithTheEmptySlotsLast) {
    manager.registerClass(&beta);
    manager.registerClass(&gamma);
    manager.registerClass(&alpha);
    manager.sortClasses();
    const auto &classes = manager.getClasses();
    ASSERT_EQ(classes.getArraySize(), 32);
    EXPECT_EQ(classes.elementAtIndex(0), &alpha);
    EXPECT_EQ(classes.elementAtIndex(1), &beta);
    EXPECT_EQ(classes.elementAtIndex(2), &gamma);
    for (int i = 3; i < 32; ++i)
        EXPECT_EQ(classes.elementAtIndex(i), nullptr) << i;
}

TEST_F(CClassManagerList, SortsAListWithEmptySlots) {
    manager.registerClass(&gamma);
    manager.registerClass(&beta);
    manager.registerClass(&alpha);
    manager.withdrawClass(&beta);
    manager.sortClasses();
    EXPECT_EQ(manager.getClasses().elementAtIndex(0), &alpha);
    EXPECT_EQ(manager.getClasses().elementAtIndex(1), &gamma);
    EXPECT_EQ(manager.getClasses().elementAtIndex(2), nullptr);
}

TEST_F(CClassManagerList, SortsByUnsignedBytes) {
    CClass umlaut("\xc4"), letter("z");
    manager.registerClass(&umlaut);
    manager.registerClass(&letter);
    manager.sortClasses();
    EXPECT_EQ(manager.getClasses().elementAtIndex(0), &letter);
    EXPECT_EQ(manager.getClasses().elementAtIndex(1), &umlaut);
}

TEST_F(CClassManagerList, SortsAnEmptyList) {
    manager.sortClasses();
    EXPECT_EQ(manager.getClasses().getArraySize(), 0);
}

TEST_F(CClassManagerList, ReportsAnEmptyListAsHeadingsAndZeros) {
    EXPECT_EQ(
        report(),
        "+-----------------------------------------------------------------+----------+----------+"
        "\n"
        "| Tessitor class information                                      |          |          "
        "|\n"
        "+-----------------------------------------------------------------+----------+----------+"
        "\n"
        "| Class Name                                                      | Instance |   Total  "
        "|\n"
        "+-----------------------------------------------------------------+----------+----------+"
        "\n"
        "+-----------------------------------------------------------------+----------+----------+"
        "\n"
        "|                                                                 |         0|         "
        "0|\n"
        "+-----------------------------------------------------------------+----------+----------"
        "+\n");
}

TEST_F(CClassManagerList, ReportsTheClassesWithInstancesAndTheirTotals) {
    manager.registerClass(&beta);
    manager.registerClass(&alpha);
    manager.registerClass(&gamma);
    for (int i = 0; i < 12; ++i)
        beta.incrementInstanceCount();
    alpha.incrementInstanceCount();
    alpha.decrementInstanceCount();  // no instance left: neither in the table nor in the totals
    gamma.incrementInstanceCount();
    gamma.incrementInstanceCount();
    gamma.decrementInstanceCount();
    EXPECT_EQ(
        report().substr(headLength),
        "|                                                        TestBeta |        12|        "
        "12|\n"
        "|                                                       TestGamma |         1|         "
        "2|\n"
        "+-----------------------------------------------------------------+----------+----------+"
        "\n"
        "|                                                                 |        13|        "
        "14|\n"
        "+-----------------------------------------------------------------+----------+----------"
        "+\n");
}

TEST_F(CClassManagerList, ReportsACountBelowZeroAsUnsigned) {
    manager.registerClass(&beta);
    beta.decrementInstanceCount();
    EXPECT_NE(report().find("|                                                        TestBeta "
                            "|4294967295|         "
                            "0|\n"),
              std::string::npos);
}

TEST_F(CClassManagerList, ReportsAClassWhoseCopiesWereNotCounted) {
    const CException exception("reason", "function", true);
    CClass &record = exception.getClass();
    manager.registerClass(&record);
    while (static_cast<std::int32_t>(record.getInstanceCount()) >= 0)
        copyOf(exception);
    char columns[32];
    std::snprintf(columns, sizeof columns, " CException |%10u|", record.getInstanceCount());
    EXPECT_NE(report().find(columns), std::string::npos);
    EXPECT_GT(record.getInstanceCount(), 4'000'000'000u);
}

TEST_F(CClassManagerList, ReportsANameWiderThanTheTable) {
    const std::string name(128, 'n');
    CClass wide(name.c_str());
    wide.incrementInstanceCount();
    manager.registerClass(&wide);
    EXPECT_NE(report().find("| " + name + " |         1|         1|\n"), std::string::npos);
}

TEST_F(CClassManagerList, WritesNothingToAStreamThatIsNotOpenForWriting) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "report.txt").string();
    CTextStream stream;
    manager.writeClassInformation(stream);
    CTextStream(path.c_str(), EStreamMode::Write).close();
    stream.open(path.c_str(), EStreamMode::Read);
    manager.writeClassInformation(stream);
    stream.close();
    EXPECT_EQ(readFile(path), "");
}

}  // namespace
