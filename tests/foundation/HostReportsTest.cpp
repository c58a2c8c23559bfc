#include "foundation/HostReports.h"

#include "foundation/DriveServices.h"
#include "foundation/ReportText.h"
#include "foundation/VirtualScreen.h"
#include "platform/NativeScreen.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Tessitor::Host;
using Tessitor::Basics::CSystemString;

namespace {

TEST(HostReports, TellTheDriveOfTheReport) {
    const CSystemString here = std::filesystem::temp_directory_path().string().c_str();
    const CSystemString drive = here.getDrive(true);
    EXPECT_THAT(reportText(writeDriveReport, "CPUStats.txt"),
                testing::AllOf(
                    testing::StartsWith("Tessitor Host drive info extraction tool\n"
                                        "----------------------------------\n"
                                        "Drive      : " +
                                        std::string(drive.getString()) + "\n"),
                    testing::HasSubstr(
                        "\nFile system: " + std::string(getFileSystem(drive).getString()) + "\n"),
                    testing::HasSubstr(isFixedDrive(drive) ? "\nIs fixed   : true\n"
                                                           : "\nIs fixed   : false\n"),
                    testing::EndsWith("\n----------------------------------\n")));
}

TEST(HostReports, TellTheVirtualScreen) {
    const Tessitor::MathTools::CRect screen = getVirtualScreen();
    EXPECT_EQ(reportText(writeDisplayReport, "CPUStats.txt"),
              "Tessitor Host display info extraction tool\n"
              "----------------------------------\n"
              "Left  : " +
                  std::to_string(screen.getLeft()) +
                  "\nTop   : " + std::to_string(screen.getTop()) +
                  "\nWidth : " + std::to_string(screen.getWidth()) + "\nHeight: " +
                  std::to_string(screen.getHeight()) + "\n----------------------------------\n");
}

TEST(HostReports, TheVirtualScreenIsTheSystems) {
    const SNativeRect native = nativeVirtualScreen(), screen = getVirtualScreen().toNative();
    EXPECT_EQ(screen.left, native.left);
    EXPECT_EQ(screen.top, native.top);
    EXPECT_EQ(screen.right, native.right);
    EXPECT_EQ(screen.bottom, native.bottom);
}

TEST(HostReports, AFileThatCannotBeMadeIsNoFailure) {
    const CTemporaryFolder folder;
    CSystemString path = (folder / "none" / "report.txt").string().c_str();
    writeDriveReport(path);
    writeDisplayReport(path);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
