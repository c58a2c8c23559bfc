#include "dspclasses/CDSPBalance.h"
#include "dspclasses/CDSPGain.h"
#include "dspclasses/CDSPMono.h"
#include "dspclasses/CDSPPan.h"
#include "dspclasses/PlainLevels.h"
#include "dspclasses/SSubject.h"

std::vector<SSubject> modulesToMeasure() {
    return {
        subject<CDSPGain, CPlainGain>("Gain", {{0, -6.0f}}),
        subject<CDSPMono, CPlainMono>("Mono, combined", {{0, 0.0f}}),
        subject<CDSPMono, CPlainMono>("Mono, stereo", {{0, 1.0f}}),
        subject<CDSPBalance, CPlainBalance>("Balance", {{0, 0.3f}}),
        subject<CDSPPan, CPlainPan>("Pan", {{0, 0.3f}}),
    };
}
