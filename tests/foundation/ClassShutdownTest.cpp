// A separate program, because it destroys the class manager, which every other test needs.
#include "CTemporaryFolder.h"
#include "foundation/CClass.h"
#include "foundation/ReadFile.h"
#include "foundation/TPointerCollection.h"

#include <filesystem>
#include <gtest/gtest.h>

using Tessitor::Basics::CClass;

namespace {

/// @return the number of managers, counted by the collection of records that each one owns.
std::uint32_t countManagers() {
    const Tessitor::Collections::TPointerCollection<CClass> probe(nullptr);
    return probe.getClass().getInstanceCount() - 1;
}

TEST(ClassShutdown, TheProgramsRecordsHaveCreatedTheManager) {
    EXPECT_EQ(countManagers(), 1u);
}

TEST(ClassShutdown, WithoutAPathDeletesTheManagerAndWritesNothing) {
    const CTemporaryFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    CClass record("CReported");
    record.incrementInstanceCount();
    ASSERT_EQ(countManagers(), 1u);
    CClass::destroyClassManager(nullptr);
    std::filesystem::current_path(before);
    EXPECT_EQ(countManagers(), 0u);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(ClassShutdown, WithoutAManagerDoesNothing) {
    const CTemporaryFolder folder;
    CClass::destroyClassManager(nullptr);
    CClass::destroyClassManager((folder / "report.txt").string().c_str());
    EXPECT_EQ(countManagers(), 0u);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(ClassShutdown, ALaterRecordCreatesANewManager) {
    CClass::destroyClassManager(nullptr);
    const CClass record("CLater");
    EXPECT_EQ(countManagers(), 1u);
}

TEST(ClassShutdown, TheLastRecordDestroysTheManager) {
    CClass::destroyClassManager(nullptr);
    {
        const CClass first("CFirst");
        { const CClass second("CSecond"); }
        EXPECT_EQ(countManagers(), 1u);
    }
    EXPECT_EQ(countManagers(), 0u);
}

TEST(ClassShutdown, ALaterRecordWithoutANameAlsoCreatesANewManager) {
    CClass::destroyClassManager(nullptr);
    const CClass record;
    EXPECT_EQ(countManagers(), 1u);
}

TEST(ClassShutdown, WithoutAManagerARecordIsOnlyItsOwnType) {
    const CClass parent("CParent"), child("CChild", "CParent");
    EXPECT_TRUE(child.isTypeOf(parent));
    CClass::destroyClassManager(nullptr);
    EXPECT_FALSE(child.isTypeOf(parent));
    EXPECT_TRUE(child.isTypeOf(child));
}

TEST(ClassShutdown, WithAPathWritesTheSortedReport) {
    CClass::destroyClassManager(nullptr);
    const CTemporaryFolder folder;
    const std::string path = (folder / "report.txt").string();
    CClass second("CSecond"), first("CFirst"), idle("CIdle");
    second.incrementInstanceCount();
    first.incrementInstanceCount();
    CClass::destroyClassManager(path.c_str());
    EXPECT_EQ(countManagers(), 0u);

    const std::string report = readFile(path);
    const auto firstRow = report.find(" CFirst |         1|         1|\n");
    const auto secondRow = report.find(" CSecond |         1|         1|\n");
    ASSERT_NE(firstRow, std::string::npos) << report;
    ASSERT_NE(secondRow, std::string::npos) << report;
    EXPECT_LT(firstRow, secondRow);
    EXPECT_EQ(report.find("CIdle"), std::string::npos);
}

TEST(ClassShutdown, IgnoresAReportPathThatCannotBeWritten) {
    const CClass record("CAnyone");
    const CTemporaryFolder folder;
    CClass::destroyClassManager((folder / "missing" / "report.txt").string().c_str());
    EXPECT_EQ(countManagers(), 0u);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
