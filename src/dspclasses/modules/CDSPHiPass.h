#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/kernels/StereoFrames.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// First-order high-pass, for rumble or for the low end of a voice. It has one parameter and
/// ignores the index.
///
///     x --+----------------> + ---------------+--> y
///         |                  ^                |
///         +--> -1 * z^-1 ----+--- pole * z^-1 <
class CDSPHiPass : public CDSPBase {
public:
    enum EParameter : int {
        kCutoff,  ///< Hz
    };

    /// A new cutoff also clears the history, which can be heard as a tick.
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    /// Both channels, for runGuarded.
    struct SFilter {
        SDoubles2 pole{};
        SDoubles2 x1{}, y1{};  // last input and output

        template <typename Guard>
        SDoubles2 step(SDoubles2 x, Guard &guard) {
            y1 = guard.flush(pole * y1 + (x - x1));
            x1 = x;
            return y1;
        }
    };

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);

    SFilter filter;                       // receives the pole before each group of frames
    TRelaxed<float> cutoff = 60.0f;       // Hz
    TRelaxed<float> pole = 0.991487861f;  // exp(-0.00854855), from cutoff
    CResetRequest resetRequest;
};
