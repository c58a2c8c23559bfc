#pragma once

#include "corvel/plot/CSubject.h"
#include "corvel/plot/StereoSound.h"

#include <vector>

namespace Tessitor::Tool {

/// How much louder each band comes out of an effect than it went in.
struct SResponse {
    std::vector<double> frequencies;  // centres of the bands, Hz, from 20 to 20000
    BothSides<double> gains;          // dB; minus infinity if silent, not a number if not finite
};

/// Plays pink noise into both inputs and compares the energy of the bands of a twelfth of an octave
/// at each output. The noise goes on for some seconds, so sweeping effects show their average, and
/// what overtones add counts as gain.
/// @param level  of the noise, dB RMS.
SResponse measureResponse(const CSubject &subject, double level);

}  // namespace Tessitor::Tool
