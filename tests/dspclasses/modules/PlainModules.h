#pragma once

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
#include "dspclasses/strip/PlainStrip.h"

/// The plain version of every module of the strip, by slot.
inline CPlainStrip::Modules makePlainModules() {
    CPlainStrip::Modules modules;
    modules[kInGainSlot] = std::make_unique<CPlainGain>();
    modules[kInMonoSlot] = std::make_unique<CPlainMono>();
    modules[kBalanceSlot] = std::make_unique<CPlainBalance>();
    modules[kPanSlot] = std::make_unique<CPlainPan>();
    modules[kGainSlot] = std::make_unique<CPlainGain>();
    modules[k3BandSlot] = std::make_unique<CPlain3EQ>();
    modules[kRumbleFilterSlot] = std::make_unique<CPlainHiPass>();
    modules[kHiPassSlot] = std::make_unique<CPlainHiPass>();
    modules[kPresenceSlot] = std::make_unique<CPlainPresence>();
    modules[kParametricSlot] = std::make_unique<CPlainParametric>();
    modules[kGateSlot] = std::make_unique<CPlainGate>();
    modules[kCompressorSlot] = std::make_unique<CPlainComp>();
    modules[kDeEsserSlot] = std::make_unique<CPlainDeEsser>();
    modules[kModulator1Slot] = std::make_unique<CPlainModulation>();
    modules[kModulator2Slot] = std::make_unique<CPlainModulation>();
    modules[kWarmerSlot] = std::make_unique<CPlainWarmer>();
    modules[kDelaySlot] = std::make_unique<CPlainDelay>();
    modules[kReverbSlot] = std::make_unique<CPlainReverb>();
    return modules;
}
