#pragma once

#include "dspclasses/Plain3EQ.h"
#include "dspclasses/PlainComp.h"
#include "dspclasses/PlainDeEsser.h"
#include "dspclasses/PlainDelay.h"
#include "dspclasses/PlainGate.h"
#include "dspclasses/PlainHiPass.h"
#include "dspclasses/PlainLevels.h"
#include "dspclasses/PlainModulation.h"
#include "dspclasses/PlainParametric.h"
#include "dspclasses/PlainPresence.h"
#include "dspclasses/PlainReverb.h"
#include "dspclasses/PlainStrip.h"
#include "dspclasses/PlainWarmer.h"

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
