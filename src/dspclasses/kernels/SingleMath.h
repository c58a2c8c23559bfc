#pragma once

/// The exponential, the logarithm and the power for the modules and the parameter laws. Every
/// single-precision result is the float nearest to the true value. So it is the same with every
/// compiler, on every system and in four lanes (SingleMathLanes.h); the C library does not promise
/// that. docs/kernels.md explains how. [any thread] None of them can fail.

/// @return e to the power x; 0 or infinity where the true value underflows or overflows, NaN for
///         NaN.
float expSingle(float x);

/// @param x  above 0 and finite; not checked.
/// @return the natural logarithm.
float logSingle(float x);

/// @param base  above 0 and finite; not checked.
/// @return base to the power of exponent; 0 or infinity where the true value underflows or
///         overflows.
float powSingle(float base, float exponent);

/// The natural logarithm in double precision, within one unit in the last place of the true value.
/// @param x  above 0, finite and not denormal; not checked.
double logDouble(double x);
