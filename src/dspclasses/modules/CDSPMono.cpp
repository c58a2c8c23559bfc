#include "dspclasses/modules/CDSPMono.h"

#include "values/Truncation.h"

#include <algorithm>

// Kept: neither compared with the last value nor clamped.
void CDSPMono::setParameter(int /*index*/, float value) {
    mode = truncated(value * 3.0f);
}

float CDSPMono::getParameter(int /*index*/) {
    return static_cast<float>(mode.load()) / 3.0f;
}

CDSPBase::EOutput CDSPMono::getOutput() const {
    const std::int32_t present = mode;
    if (present == kStereo)
        return EOutput::Copied;
    return present >= kCombine && present < kStereo ? EOutput::Processed : EOutput::Unwritten;
}

template <typename Sample>
static void combine(const Sample *__restrict inL, const Sample *__restrict inR,
                    Sample *__restrict outL, Sample *__restrict outR, int frames) {
    // Kept: the root of one half rounded to single precision, for doubles too.
    constexpr Sample rootHalf = 0.70710677f;
    for (int i = 0; i < frames; ++i) {
        const Sample sum = (inL[i] + inR[i]) * rootHalf;
        outL[i] = sum;
        outR[i] = sum;
    }
}

template <typename Sample>
void CDSPMono::run(const Sample *const *in, Sample *const *out, int frames) const {
    const std::int32_t present = mode;
    if (present == kCombine) {
        combine(in[0], in[1], out[0], out[1], frames);
    } else if (present >= kAllLeft && present <= kStereo) {
        std::copy_n(in[present == kAllRight ? 1 : 0], frames, out[0]);
        std::copy_n(in[present == kAllLeft ? 0 : 1], frames, out[1]);
    }
}

void CDSPMono::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPMono::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
