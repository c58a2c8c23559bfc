#pragma once

#include "corvel/plot/CSubject.h"
#include "corvel/plot/StereoSound.h"

#include <vector>

namespace Tessitor::Tool {

/// How loud a steady tone comes out of an effect. 0 dB is a sine that reaches full scale.
struct SLevelCurve {
    std::vector<double> in;  // dB, from -60 to 0
    BothSides<double> out;   // dB; minus infinity if silent, not a number if not finite
};

/// Plays a sine of each level into both inputs, each through a new instance, and waits three
/// seconds before it measures for one.
/// @param tone  Hz.
SLevelCurve measureLevelCurve(const CSubject &subject, double tone);

}  // namespace Tessitor::Tool
