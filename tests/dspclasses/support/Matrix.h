#pragma once

#include "dspclasses/support/Signals.h"

#include <iomanip>
#include <ostream>

/// The gains of a stateless module, measured with a sample of 1 in one input at a time.
struct SMatrix {
    double leftToLeft, leftToRight, rightToLeft, rightToRight;
    bool operator==(const SMatrix &) const = default;
};

inline void PrintTo(const SMatrix &matrix, std::ostream *stream) {
    *stream << std::hexfloat << "left to " << matrix.leftToLeft << ", " << matrix.leftToRight
            << "; right to " << matrix.rightToLeft << ", " << matrix.rightToRight;
}

template <typename Module>
SMatrix matrixOf(Module &module) {
    TStereo<double> input(2);
    input.left(0) = 1.0;
    input.right(1) = 1.0;
    TStereo<double> output = render(module, input, 2);
    return {output.left(0), output.right(0), output.left(1), output.right(1)};
}
