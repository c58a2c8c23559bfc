#include "foundation/ProcessorReport.h"

#include "foundation/ProcessorFeatures.h"
#include "foundation/WriteReport.h"

namespace Tessitor::Basics {

void writeProcessorReport(CSystemString &path) {
    IO::writeReport(path, "FPUStats.txt", "Tessitor FPU info extraction tool \n",
                    [](IO::CTextStream &report) {
                        const SProcessorFeatures &features = getProcessorFeatures();
                        report << "Has MMX : " << features.hasMmx << "\n";
                        report << "Has SSE : " << features.hasSse << "\n";
                        report << "Has SSE2: " << features.hasSse2 << "\n";
                        report << "Has SSE3: " << features.hasSse3 << "\n";
                        report << "Has HT  : " << features.hasHt << "\n";
                    });
}

}  // namespace Tessitor::Basics
