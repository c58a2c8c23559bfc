#include "dspclasses/modules/CDSP3EQ.h"
#include "dspclasses/modules/CDSPBalance.h"
#include "dspclasses/modules/CDSPComp.h"
#include "dspclasses/modules/CDSPDeEsser.h"
#include "dspclasses/modules/CDSPDelay.h"
#include "dspclasses/modules/CDSPGain.h"
#include "dspclasses/modules/CDSPGate.h"
#include "dspclasses/modules/CDSPHiPass.h"
#include "dspclasses/modules/CDSPModulation.h"
#include "dspclasses/modules/CDSPMono.h"
#include "dspclasses/modules/CDSPPan.h"
#include "dspclasses/modules/CDSPParametric.h"
#include "dspclasses/modules/CDSPPresence.h"
#include "dspclasses/modules/CDSPReverb.h"
#include "dspclasses/modules/CDSPWarmer.h"
#include "dspclasses/modules/Plain3EQ.h"
#include "dspclasses/modules/PlainComp.h"
#include "dspclasses/modules/PlainDeEsser.h"
#include "dspclasses/modules/PlainDelay.h"
#include "dspclasses/modules/PlainGate.h"
#include "dspclasses/modules/PlainHiPass.h"
#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/modules/PlainModulation.h"
#include "dspclasses/modules/PlainParametric.h"
#include "dspclasses/modules/PlainPresence.h"
#include "dspclasses/modules/PlainReverb.h"
#include "dspclasses/modules/PlainWarmer.h"
#include "dspclasses/support/SSubject.h"

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
        subject<CDSPGate, CPlainGate>("Gate", {{0, -20.0f}, {1, 10.0f}, {2, 100.0f}}),
        subject<CDSPComp, CPlainComp>("Compressor, linked", {{0, -24.0f}, {3, 3.0f}, {4, 3.0f}}),
        subject<CDSPComp, CPlainComp>("Compressor, separate",
                                      {{0, -24.0f}, {3, 3.0f}, {4, 3.0f}, {5, 0.0f}}),
        subject<CDSPDeEsser, CPlainDeEsser>("De-esser, wide",
                                            {{0, -40.0f}, {2, 4.0f}, {3, 4000.0f}}),
        subject<CDSPDeEsser, CPlainDeEsser>("De-esser, narrow",
                                            {{0, -40.0f}, {2, 4.0f}, {3, 4000.0f}, {4, 1.0f}}),
        subject<CDSPModulation, CPlainModulation>("Vibrato", {{0, 0.0f}, {1, 22.5f}, {2, 0.25f}}),
        subject<CDSPModulation, CPlainModulation>("Double tracking",
                                                  {{0, 0.5f}, {1, 22.5f}, {2, 0.25f}}),
        subject<CDSPModulation, CPlainModulation>("Phaser", {{0, 1.0f}, {1, 22.5f}, {2, 0.25f}}),
        subject<CDSPWarmer, CPlainWarmer>("Warmer", {{0, 0.4f}}),
        subject<CDSPDelay, CPlainDelay>("Delay", {{0, 775.0f}}),
        subject<CDSPDelay, CPlainDelay>("Ping-pong", {{0, 775.0f}, {3, 1.0f}}),
        subject<CDSPReverb, CPlainReverb>("Reverb", {{0, 75.0f}, {5, 1.0f}}),
        subject<CDSPReverb, CPlainReverb>("Reverb, least room", {{0, 1.0f}, {4, 0.5f}, {5, 1.0f}}),
    };
}
