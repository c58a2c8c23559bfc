#pragma once

#include "hostlayer/CTimeSignature.h"

namespace Tessitor::Vst {

/// The host's latest tempo and transport. A value is 0 if the host did not set its flag; the time
/// signature is then 4/4. Only samplesToNextBar keeps its old value.
struct STempoInformation {
    bool tempoValid = false;
    bool timeSignatureValid = false;
    bool ppqPositionValid = false;
    bool barsValid = false;
    bool samplesToNextBarValid = false;  // once set, never cleared
    bool samplesPerBeatValid = false;
    bool transportChanged = false;
    bool transportPlaying = false;
    Music::CTimeSignature timeSignature;
    double tempo = 120.0;           // beats per minute; 120 until the host first reports a time
    double ppqPosition = 0.0;       // quarter notes
    double barStartPosition = 0.0;  // quarter notes
    double samplePosition = 0.0;    // frames
    std::int32_t samplesToNextBar = 0;
    std::int32_t samplesPerBeat = 0;
};

}  // namespace Tessitor::Vst
