#pragma once

#include "corvel/files/CPendingFile.h"
#include "corvel/plot/CCanvas.h"
#include "corvel/plot/Measurement.h"

#include <optional>
#include <string>

namespace Tessitor::Tool {

struct SPlotCall {
    std::optional<std::string> plugin;
    std::optional<std::string> picture;  // the file to write; may be missing with json
    SSettingsRequest settings;
    SMeasurementOptions measurement;
    std::optional<ETheme> theme;
    std::optional<double> scale;  // pixels per unit, for PNG
    EExisting existing = EExisting::Kept;
    bool json = false;
};

/// Measures the effect and draws the picture. @return the exit status.
/// @throws CCallError or CJobError.
int runPlot(const SPlotCall &call);

}  // namespace Tessitor::Tool
