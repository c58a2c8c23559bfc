#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

#include <cstdint>

/// Routing of two channels. It has one parameter and ignores the index.
class CDSPMono : public CDSPBase {
public:
    enum EParameter : int {
        kRouting,  ///< 0 to 1; three times that, truncated, is the EMode, so only 1 is stereo
    };

    /// A value outside 0 to 1 may set a mode that has no name here; no output is then written.
    enum EMode : std::int32_t {
        kCombine,   // both outputs carry the sum, 3 dB down
        kAllLeft,   // both carry the left input
        kAllRight,  // both carry the right input
        kStereo,
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;  ///< a third of the mode; sets the same mode again
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

    EOutput getOutput() const override;

    std::int32_t getMode() const { return mode; }  ///< an EMode or any other number

private:
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames) const;

    TRelaxed<std::int32_t> mode = kCombine;
};
