#include "dspclasses/CDSPPan.h"

#include "dspclasses/FrameGroups.h"
#include "dspclasses/SquareRootLaw.h"

// Kept: each half remembers its own last spread and stops there, but by then two gains of the other
// half are overwritten, so the matrix depends on the road by which a position was reached. Kept as
// well: the halves don't meet in the middle.
void CDSPPan::setParameter(int /*index*/, float value) {
    if (value == pan)
        return;
    pan = value;
    if (value < 0.5f) {
        leftToLeft = 1.0f;
        leftToRight = 0.0f;
        spreadRightInput(1.0f - value * 2.0f);
    } else {
        rightToRight = 1.0f;
        rightToLeft = 0.0f;
        spreadLeftInput(value * 2.0f - 1.0f);
    }
}

void CDSPPan::spreadRightInput(float spread) {
    if (spread == leftHalfSpread)
        return;
    leftHalfSpread = spread;
    rightToLeft = squareRootLaw(spread * 0.5f + 0.5f);
    rightToRight = squareRootLaw(0.5f - spread * 0.5f);
}

void CDSPPan::spreadLeftInput(float spread) {
    if (spread == rightHalfSpread)
        return;
    rightHalfSpread = spread;
    leftToLeft = squareRootLaw(0.5f - spread * 0.5f);
    leftToRight = squareRootLaw(spread * 0.5f + 0.5f);
}

float CDSPPan::getParameter(int /*index*/) {
    return pan;
}

template <typename Sample>
void CDSPPan::run(const Sample *const *in, Sample *const *out, int frames) const {
    const Sample *__restrict inL = in[0], *__restrict inR = in[1];
    Sample *__restrict outL = out[0], *__restrict outR = out[1];
    forEachGroup(frames, [=, this](int first, int count) {
        const Sample ll = leftToLeft.load(), lr = leftToRight.load();
        const Sample rl = rightToLeft.load(), rr = rightToRight.load();
        for (int i = first; i < first + count; ++i) {
            outL[i] = inL[i] * ll + inR[i] * rl;
            outR[i] = inL[i] * lr + inR[i] * rr;
        }
    });
}

void CDSPPan::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPPan::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
