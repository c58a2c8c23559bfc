#include "dspclasses/CDSPDeEsser.h"

#include "dspclasses/ModuleContract.h"
#include "dspclasses/Oracle.h"
#include "dspclasses/PlainDeEsser.h"

#include <memory>

TEST(CDSPDeEsser, EqualsThePlainReadingBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPDeEsser>(); },
                   [] { return std::make_unique<CPlainDeEsser>(); },
                   {{0, -60.0f, 0.0f},
                    {1, 0.0f, 1.0f},
                    {2, 1.0f, 7.0f},
                    {3, 2000.0f, 8000.0f},
                    {4, 0.0f, 1.0f},
                    {5, 0.0f, 1.0f}});
}
