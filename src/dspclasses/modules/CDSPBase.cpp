#include "dspclasses/modules/CDSPBase.h"

#include <bit>
#include <cstdint>

// Coefficients are computed from it, and every bit of the output must stay the same.
static_assert(std::bit_cast<std::uint32_t>(1.0f / 44100.0f) == 0x37BE37C6);

CDSPBase::~CDSPBase() = default;

void CDSPBase::setParameter(int /*index*/, float /*value*/) {}

float CDSPBase::getParameter(int /*index*/) {
    return 0.0f;
}

void CDSPBase::processReplacing(float ** /*in*/, float ** /*out*/, int /*frames*/) {}

void CDSPBase::processDoubleReplacing(double ** /*in*/, double ** /*out*/, int /*frames*/) {}

void CDSPBase::reset() {}

void CDSPBase::setSampleRate(float rate) {
    if (rate == 0.0f || rate == sampleRate)
        return;
    rateRatio = rate / sampleRate;
    sampleRate = rate;
    invSampleRate = 1.0f / rate;
}
