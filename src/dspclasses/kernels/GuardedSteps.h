#pragma once

#include "dspclasses/kernels/GuardedRecursion.h"

/// The guarded recursion inside a loop of four-frame steps that does more than filter. There the
/// watch costs time: on every step it would slow the de-esser by 2 to 6 %. So the outputs, which
/// the loop loads anyway, are tested first. The watch runs only if they leave a doubt.
///
///     four frames without guards --> outputs beyond doubt? -- yes --> done
///                                               |
///                                               no --> the same frames, watched

struct SNoGuard {
    SDoubles2 flush(SDoubles2 value) { return value; }
    SDoubles2 contain(SDoubles2 value) { return value; }
};

/// @return true only if no guard would have acted on the values that were rounded to these outputs:
///         a denormal double is 0 as a float, and a double beyond the limit is at least the limit.
///         Silence counts as a doubt.
inline bool areBeyondDoubt(const SFloats4 &left, const SFloats4 &right) {
    constexpr auto limit = static_cast<float>(runawayLimit);
    const SFloats4 l = magnitude(left), r = magnitude(right);
    // Both return r's lane if either value is a NaN. So a NaN in r fails the test, and a NaN in l
    // leaves r to be tested.
    const Floats4 smallest = smaller(l, r).values, largest = larger(l, r).values;
    return areAllSet((smallest > 0.0f) & (largest < limit));
}

/// @return the filter after up to four watched frames. Out of line and by value, see
///         filterAfterGuarding.
template <EInput input, typename Filter>
[[gnu::noinline]] Filter filterAfterWatching(Filter filter, float *inL, float *inR, float *outL,
                                             float *outR, int count) {
    runWatched<input>(filter, inL, inR, outL, outR, count);
    return filter;
}

/// Does the same as runWatched, for up to four frames of a filter that guards only its output.
template <EInput input, typename Filter>
[[gnu::always_inline]] inline void runGuardedStep(Filter &filter, float *inL, float *inR,
                                                  float *outL, float *outR, int count) {
    if (count == 4) [[likely]] {
        Filter next = filter;
        SNoGuard none;
        runFrames<input>(next, none, inL, inR, outL, outR, 4);
        if (areBeyondDoubt(loadFour(outL), loadFour(outR))) [[likely]] {
            filter = next;
            return;
        }
    }
    // A separate variable lets the compiler keep `filter` in registers.
    const Filter watched = filterAfterWatching<input>(filter, inL, inR, outL, outR, count);
    filter = watched;
}
