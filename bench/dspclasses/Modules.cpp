#include "dspclasses/CDSP3EQ.h"
#include "dspclasses/CDSPBalance.h"
#include "dspclasses/CDSPGain.h"
#include "dspclasses/CDSPHiPass.h"
#include "dspclasses/CDSPMono.h"
#include "dspclasses/CDSPPan.h"
#include "dspclasses/CDSPParametric.h"
#include "dspclasses/CDSPPresence.h"
#include "dspclasses/CDSPWarmer.h"
#include "dspclasses/Plain3EQ.h"
#include "dspclasses/PlainHiPass.h"
#include "dspclasses/PlainLevels.h"
#include "dspclasses/PlainParametric.h"
#include "dspclasses/PlainPresence.h"
#include "dspclasses/PlainWarmer.h"
#include "dspclasses/SSubject.h"

std::vector<SSubject> modulesToMeasure() {
    return {
        subject<CDSPGain, CPlainGain>("Gain", {{0, -6.0f}}),
        subject<CDSPMono, CPlainMono>("Mono, combined", {{0, 0.0f}}),
        subject<CDSPMono, CPlainMono>("Mono, stereo", {{0, 1.0f}}),
        subject<CDSPBalance, CPlainBalance>("Balance", {{0, 0.3f}}),
        subject<CDSPPan, CPlainPan>("Pan", {{0, 0.3f}}),
        subject<CDSP3EQ, CPlain3EQ>("Three-band equaliser",
                                    {{0, 3.0f}, {1, -4.0f}, {2, 2.0f}, {4, 3000.0f}}),
        subject<CDSPHiPass, CPlainHiPass>("Rumble filter", {{0, 40.0f}}),
        subject<CDSPHiPass, CPlainHiPass>("High-pass", {{0, 150.0f}}),
        subject<CDSPPresence, CPlainPresence>("Presence", {{0, 4000.0f}, {1, 4.0f}}),
        subject<CDSPParametric, CPlainParametric>("Parametric",
                                                  {{0, 400.0f}, {1, 0.7f}, {2, -5.0f}}),
        subject<CDSPWarmer, CPlainWarmer>("Warmer", {{0, 0.4f}}),
    };
}
