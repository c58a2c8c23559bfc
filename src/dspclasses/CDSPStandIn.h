#pragma once

#include "dspclasses/CDSPBase.h"
#include "dspclasses/TRelaxed.h"

#include <array>

/// A place in the strip that is still empty: lets the signal through and keeps its parameters.
class CDSPStandIn : public CDSPBase {
public:
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

private:
    std::array<TRelaxed<float>, 8> values;
};
