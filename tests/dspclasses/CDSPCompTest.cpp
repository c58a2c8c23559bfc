#include "dspclasses/CDSPComp.h"

#include "dspclasses/ModuleContract.h"
#include "dspclasses/Oracle.h"
#include "dspclasses/PlainComp.h"

#include <memory>

TEST(CDSPComp, EqualsThePlainReadingBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPComp>(); },
                   [] { return std::make_unique<CPlainComp>(); },
                   {{0, -60.0f, 0.0f},
                    {1, 1.0f, 100.0f},
                    {2, 2.0f, 200.0f},
                    {3, 1.0f, 8.0f},
                    {4, -12.0f, 12.0f},
                    {5, 0.0f, 1.0f}});
}
