#include "dspclasses/CDSPGate.h"

#include "dspclasses/ModuleContract.h"
#include "dspclasses/Oracle.h"
#include "dspclasses/PlainGate.h"

#include <memory>

TEST(CDSPGate, EqualsThePlainReadingBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPGate>(); },
                   [] { return std::make_unique<CPlainGate>(); },
                   {{0, -60.0f, 0.0f}, {1, 1.0f, 500.0f}, {2, 50.0f, 1000.0f}});
}
