#include "dspclasses/CDSPWarmer.h"

#include "dspclasses/FrameGroups.h"

namespace {

template <typename Sample>
void bend(const Sample *__restrict from, Sample *__restrict to, int frames,
          const TRelaxed<float> &curve) {
    forEachGroup(frames, [from, to, &curve](int first, int count) {
        const Sample k = curve.load();
        for (int i = first; i < first + count; ++i)
            to[i] = from[i] / ((from[i] - Sample{1}) * k + from[i]);
    });
}

}  // namespace

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
