#include "foundation/ProcessorReport.h"

#include "foundation/ProcessorFeatures.h"
#include "foundation/ReportText.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace Tessitor::Basics;

namespace {

std::string word(bool value) {
    return value ? "true" : "false";
}

TEST(ProcessorReport, ListsTheFeatures) {
    readProcessorFeatures();
    const SProcessorFeatures &features = getProcessorFeatures();
    EXPECT_EQ(reportText(writeProcessorReport, "FPUStats.txt"),
              "Tessitor FPU info extraction tool \n"
              "----------------------------------\n"
              "Has MMX : " +
                  word(features.hasMmx) + "\nHas SSE : " + word(features.hasSse) + "\nHas SSE2: " +
                  word(features.hasSse2) + "\nHas SSE3: " + word(features.hasSse3) +
                  "\nHas HT  : " + word(features.hasHt) + "\n----------------------------------\n");
}

TEST(ProcessorReport, APathWithAnExtensionIsTheFile) {
    const CTemporaryFolder folder;
    const std::string file = (folder / "processor.log").string();
    CSystemString path = file.c_str();
    writeProcessorReport(path);
    EXPECT_EQ(path.getString(), file);
    EXPECT_EQ(readFile(file).substr(0, 12), "Tessitor FPU");
}

TEST(ProcessorReport, IsNotWrittenIfTheFileCannotBeCreated) {
    const CTemporaryFolder folder;
    CSystemString path = (folder / "none" / "report.txt").string().c_str();
    writeProcessorReport(path);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
