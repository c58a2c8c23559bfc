#pragma once

#include <complex>
#include <vector>

namespace Tessitor::Tool {

/// Replaces values by their discrete Fourier transform, the sum over n of v[n] exp(-2 pi i k n /
/// N).
/// @param values  a power of two of them.
void transform(std::vector<std::complex<double>> &values);

}  // namespace Tessitor::Tool
