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

/// The plain reading of every module of the strip, by slot.
inline CPlainStrip::Modules makePlainModules() {
    return {
        std::make_unique<CPlainGain>(),        // 0, fixed head
        std::make_unique<CPlainMono>(),        // 1, fixed head
        std::make_unique<CPlainBalance>(),     // 2
        std::make_unique<CPlainPan>(),         // 3
        std::make_unique<CPlainGain>(),        // 4
        std::make_unique<CPlain3EQ>(),         // 5
        std::make_unique<CPlainHiPass>(),      // 6, rumble filter
        std::make_unique<CPlainHiPass>(),      // 7, high-pass
        std::make_unique<CPlainPresence>(),    // 8
        std::make_unique<CPlainParametric>(),  // 9
        std::make_unique<CPlainGate>(),        // 10
        std::make_unique<CPlainComp>(),        // 11
        std::make_unique<CPlainDeEsser>(),     // 12
        std::make_unique<CPlainModulation>(),  // 13
        std::make_unique<CPlainModulation>(),  // 14
        std::make_unique<CPlainWarmer>(),      // 15
        std::make_unique<CPlainDelay>(),       // 16
        std::make_unique<CPlainReverb>(),      // 17
    };
}
