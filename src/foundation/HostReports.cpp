#include "foundation/HostReports.h"

#include "foundation/DriveServices.h"
#include "foundation/VirtualScreen.h"
#include "foundation/WriteReport.h"

namespace Tessitor::Host {

using Basics::CSystemString;
using IO::CTextStream;

namespace {

constexpr char fileName[] = "CPUStats.txt";

}  // namespace

void writeDriveReport(CSystemString &path) {
    IO::writeReport(path, fileName, "Tessitor Host drive info extraction tool\n",
                    [&path](CTextStream &report) {
                        const CSystemString drive = getDriveOf(path);
                        report << "Drive      : " << drive << "\n";
                        report << "Volume name: " << getVolumeName(drive) << "\n";
                        report << "File system: " << getFileSystem(drive) << "\n";
                        report << "Is fixed   : " << isFixedDrive(drive) << "\n";
                        report << "Is remote  : " << isRemoteDrive(drive) << "\n";
                        report << "Is optical : " << isOpticalDrive(drive) << "\n";
                    });
}

void writeDisplayReport(CSystemString &path) {
    IO::writeReport(path, fileName, "Tessitor Host display info extraction tool\n",
                    [](CTextStream &report) {
                        const MathTools::CRect screen = getVirtualScreen();
                        report << "Left  : " << screen.getLeft() << "\n";
                        report << "Top   : " << screen.getTop() << "\n";
                        report << "Width : " << screen.getWidth() << "\n";
                        report << "Height: " << screen.getHeight() << "\n";
                    });
}

}  // namespace Tessitor::Host
