#include "foundation/HostReports.h"

#include "foundation/FakeMachine.h"
#include "foundation/ReportText.h"
#include "foundation/VirtualScreen.h"

#include <filesystem>
#include <string>

using namespace Tessitor::Host;
using Tessitor::Basics::CSystemString;

namespace {

class HostReports : public CFakeMachineTest {};

TEST_F(HostReports, DescribeTheDriveThatHoldsTheReport) {
    // reportText() writes to a temporary folder inside this one.
    const std::string drive = std::filesystem::temp_directory_path().string();
    const std::string rule = "----------------------------------\n";
    using enum ENativeDriveType;
    for (const auto &[type, kinds] :
         {std::pair{Fixed, "Is fixed   : true\nIs remote  : false\nIs optical : false\n"},
          std::pair{Remote, "Is fixed   : false\nIs remote  : true\nIs optical : false\n"},
          std::pair{Optical, "Is fixed   : false\nIs remote  : false\nIs optical : true\n"}}) {
        machine.drives[drive] = {{"Voices", "ext4"}, type};
        EXPECT_EQ(reportText(writeDriveReport, "CPUStats.txt"),
                  "Tessitor Host drive info extraction tool\n" + rule + "Drive      : " + drive +
                      "\nVolume name: Voices\nFile system: ext4\n" + kinds + rule);
    }
}

TEST_F(HostReports, DescribeTheVirtualScreen) {
    machine.virtualScreen = {-1920, -120, 1280, 1024};
    EXPECT_EQ(reportText(writeDisplayReport, "CPUStats.txt"),
              "Tessitor Host display info extraction tool\n"
              "----------------------------------\n"
              "Left  : -1920\n"
              "Top   : -120\n"
              "Width : 3200\n"
              "Height: 1144\n"
              "----------------------------------\n");
}

TEST_F(HostReports, AreNotWrittenIfTheFileCannotBeCreated) {
    const CTemporaryFolder folder;
    CSystemString path = (folder / "none" / "report.txt").string().c_str();
    writeDriveReport(path);
    writeDisplayReport(path);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

class VirtualScreen : public CFakeMachineTest {};

TEST_F(VirtualScreen, HasTheEdgesThatTheSystemReports) {
    machine.virtualScreen = {-1920, -120, 1280, 1024};
    const Tessitor::MathTools::CRect screen = getVirtualScreen();
    EXPECT_EQ(screen.getLeft(), -1920);
    EXPECT_EQ(screen.getTop(), -120);
    EXPECT_EQ(screen.getRight(), 1280);
    EXPECT_EQ(screen.getBottom(), 1024);
}

}  // namespace
