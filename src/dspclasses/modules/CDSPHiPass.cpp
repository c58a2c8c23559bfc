#include "dspclasses/modules/CDSPHiPass.h"

#include "dspclasses/blocks/FilterCoefficients.h"
#include "dspclasses/kernels/GuardedRecursion.h"

void CDSPHiPass::setParameter(int /*index*/, float value) {
    if (value == cutoff)
        return;
    cutoff = value;
    pole = highPassPole(value, invSampleRate);
    reset();
}

float CDSPHiPass::getParameter(int /*index*/) {
    return cutoff;
}

void CDSPHiPass::reset() {
    resetRequest.ask();
}

template <typename Sample>
void CDSPHiPass::run(Sample *const *in, Sample *const *out, int frames) {
    runGuarded<EInput::Read>(filter, in, out, frames, [this](SFilter &now) {
        now.pole = inBothChannels(pole);
        if (resetRequest.take())
            now.x1 = now.y1 = inBothChannels(0.0);
    });
}

void CDSPHiPass::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPHiPass::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
