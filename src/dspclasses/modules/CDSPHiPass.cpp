#include "dspclasses/modules/CDSPHiPass.h"

#include "dspclasses/kernels/GuardedRecursion.h"
#include "dspclasses/kernels/SingleMath.h"

namespace {

struct SHiPassLanes {
    SDoubles2 pole, x1, y1;

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        y1 = guard.flush(pole * y1 + (x - x1));
        x1 = x;
        return y1;
    }
};

}  // namespace

void CDSPHiPass::setParameter(int /*index*/, float value) {
    if (value == cutoff)
        return;
    cutoff = value;
    pole = expSingle(value * -6.283185f * invSampleRate);
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
    SHiPassLanes lanes{inBothChannels(0.0), frameOf(left.x1, right.x1), frameOf(left.y1, right.y1)};
    runGuarded<EInput::Read>(lanes, in, out, frames, [this](SHiPassLanes &filter) {
        filter.pole = inBothChannels(pole);
        if (resetRequest.take())
            filter.x1 = filter.y1 = inBothChannels(0.0);
    });
    left = {leftOf(lanes.x1), leftOf(lanes.y1)};
    right = {rightOf(lanes.x1), rightOf(lanes.y1)};
}

void CDSPHiPass::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPHiPass::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
