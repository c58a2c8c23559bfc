#include "dspclasses/CDSPStandIn.h"

#include <algorithm>

void CDSPStandIn::setParameter(int index, float value) {
    values[static_cast<std::size_t>(index)] = value;
}

float CDSPStandIn::getParameter(int index) {
    return values[static_cast<std::size_t>(index)];
}

void CDSPStandIn::processReplacing(float **in, float **out, int frames) {
    std::copy_n(in[0], frames, out[0]);
    std::copy_n(in[1], frames, out[1]);
}

void CDSPStandIn::processDoubleReplacing(double **in, double **out, int frames) {
    std::copy_n(in[0], frames, out[0]);
    std::copy_n(in[1], frames, out[1]);
}
