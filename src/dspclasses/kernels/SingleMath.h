#pragma once

/// The exponential, the logarithm and the power of the modules and of the parameter laws: every
/// result is the float nearest to the true value, so it is the same with every compiler, on every
/// system and in the form for four lanes (SingleMathLanes.h). The C library promises none of this.
/// [any thread] None of them can fail.

/// @return e to the power x; 0 and infinity where a float holds no better, NaN for NaN.
float expSingle(float x);

/// @param x  above 0 and finite; not checked.
/// @return the natural logarithm.
float logSingle(float x);

/// @param base  above 0 and finite; not checked.
/// @return base to the power of exponent; 0 and infinity where a float holds no better.
float powSingle(float base, float exponent);

/// The natural logarithm in double precision, within one unit in the last place of the true value.
/// @param x  above 0, finite and not denormal; not checked.
double logDouble(double x);
