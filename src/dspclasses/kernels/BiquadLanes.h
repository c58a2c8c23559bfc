#pragma once

#include "dspclasses/kernels/StereoFrames.h"

/// A biquad for both channels at once, in direct form I, for the loops of GuardedRecursion.h.
///
///     x --+--- b0 --> + ------ guards ----+--> y
///         |           ^                   |
///        z^-1         |                  z^-1
///         |           |                   |
///      x1 +--- b1 --> + <------- -a1 -----+ y1
///         |           ^                   |
///        z^-1         |                  z^-1
///         |           |                   |
///      x2 +--- b2 --> + <------- -a2 -----+ y2
struct SBiquadLanes {
    SDoubles2 b0{}, b1{}, b2{}, a1{}, a2{};
    SDoubles2 x1{}, x2{}, y1{}, y2{};

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        SDoubles2 y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2;
        x2 = x1;
        x1 = x;
        y = guard.contain(guard.flush(y));
        y2 = y1;
        y1 = y;
        return y;
    }
};
