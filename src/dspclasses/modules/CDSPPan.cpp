#include "dspclasses/modules/CDSPPan.h"

#include "dspclasses/blocks/SquareRootLaw.h"
#include "dspclasses/kernels/FrameGroups.h"
#include "dspclasses/kernels/WideLoop.h"

// Kept: each half skips a spread that equals its last one, but has already set the gains of the
// other input by then. So the matrix depends on earlier positions: moving from 0.75 to 0.25 and
// back to 0.75 ends at the identity.
// Kept: the halves do not meet in the middle. Just below the middle the right input is spread, from
// the middle on the left one.
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

// A separate function: GCC honours __restrict only on parameters, and needs it to vectorise the
// loop.
template <typename Sample>
static void mix(const Sample *__restrict inL, const Sample *__restrict inR, Sample *__restrict outL,
                Sample *__restrict outR, int frames, Sample ll, Sample lr, Sample rl, Sample rr) {
    for (int i = 0; i < frames; ++i) {
        outL[i] = inL[i] * ll + inR[i] * rl;
        outR[i] = inL[i] * lr + inR[i] * rr;
    }
}

template <typename Sample>
void CDSPPan::run(const Sample *const *in, Sample *const *out, int frames) const {
    const Sample *inL = in[0], *inR = in[1];
    Sample *outL = out[0], *outR = out[1];
    runWide([=, this] {
        forEachVectorGroup(frames, [=, this](int first, int count) {
            const Sample ll = leftToLeft.load(), lr = leftToRight.load();
            const Sample rl = rightToLeft.load(), rr = rightToRight.load();
            mix(inL + first, inR + first, outL + first, outR + first, count, ll, lr, rl, rr);
        });
    });
}

void CDSPPan::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPPan::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
