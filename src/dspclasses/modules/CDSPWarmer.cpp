#include "dspclasses/modules/CDSPWarmer.h"

#include "dspclasses/kernels/FrameGroups.h"
#include "dspclasses/kernels/WideLoop.h"

template <typename Sample>
static void bend(const Sample *__restrict from, Sample *__restrict to, int count, Sample k) {
    for (int i = 0; i < count; ++i)
        to[i] = from[i] / ((from[i] - Sample{1}) * k + from[i]);
}

/// One channel of a block.
template <typename Sample>
static void bend(const Sample *from, Sample *to, int frames, const TRelaxed<float> &curve) {
    runWide([from, to, frames, &curve] {
        forEachGroup(frames, [from, to, &curve](int first, int count) {
            bend<Sample>(from + first, to + first, count, static_cast<Sample>(curve.load()));
        });
    });
}

void CDSPWarmer::setParameter(int /*index*/, float value) {
    if (value == warmth)
        return;
    warmth = value;
    bias = value * 0.2f + 0.5f;
    curve = 1.0f - 1.0f / bias;
}

float CDSPWarmer::getParameter(int /*index*/) {
    return warmth;
}

void CDSPWarmer::processReplacing(float **in, float **out, int frames) {
    bend(in[0], out[0], frames, curve);
    bend(in[1], out[1], frames, curve);
}

void CDSPWarmer::processDoubleReplacing(double **in, double **out, int frames) {
    bend(in[0], out[0], frames, curve);
    bend(in[1], out[1], frames, curve);
}
