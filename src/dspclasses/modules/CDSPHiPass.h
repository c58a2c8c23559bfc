#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// First-order high-pass, for rumble or for the low end of a voice. The one parameter is set
/// whatever the index.
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
    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);

    struct SHistory {
        double x1 = 0.0;  // last input
        double y1 = 0.0;  // last output
    };
    SHistory left;
    SHistory right;
    TRelaxed<float> cutoff = 60.0f;       // Hz
    TRelaxed<float> pole = 0.991487861f;  // exp(-0.00854855), from cutoff
    CResetRequest resetRequest;
};
