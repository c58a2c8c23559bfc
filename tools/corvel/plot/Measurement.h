#pragma once

#include "corvel/plot/Decay.h"
#include "corvel/plot/LevelCurve.h"
#include "corvel/plot/Response.h"

#include <cstdint>
#include <string>

namespace Tessitor::Tool {

struct SMeasurementOptions {
    double level = -20.0;  // of the pink noise, dB RMS
    double tone = 1000.0;  // of the level curve, Hz
    double tempo = 120.0;  // beats per minute
};

/// What is measured of an effect, and with which settings.
struct SMeasurement {
    std::string effect;    // its name
    std::int32_t version;  // of the effect
    std::string program;   // may be empty
    std::string chain;     // labels, "none" for the empty chain, or empty for other effects
    std::string settings;  // changes to the program: "CmpThresh -24.00 dB, ..."
    SMeasurementOptions options;
    SResponse response;
    SLevelCurve levels;
    SDecay decay;
};

/// @param trial  an instance with the settings.
SMeasurement measure(const CEffectLibrary &library, const CEffectSettings &settings,
                     CEffectInstance &trial, const SMeasurementOptions &options);

/// @return true if left and right differ by a tenth of a dB somewhere, or only one is silent.
bool differ(const BothSides<double> &sides);

/// @return "RT60 1.25 s", "no tail" and the like.
std::string describeTail(const SDecay &decay);

}  // namespace Tessitor::Tool
