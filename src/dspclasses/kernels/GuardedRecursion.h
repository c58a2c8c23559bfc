#pragma once

#include "dspclasses/kernels/FrameGroups.h"
#include "dspclasses/kernels/StereoFrames.h"

#include <bit>
#include <cstdint>
#include <limits>

/// The loop of the recursive filters. Each output is guarded before it goes back into the filter: a
/// denormal becomes zero, a runaway value is replaced. A guard nearly never changes anything, yet
/// the next sample has to wait for it. So some frames run without guards first, while a watch keeps
/// the smallest and the largest value, which nothing waits for:
///
///     filter --> frames without guards, watched --> might a guard have acted? -- no --> done
///        |                                                       |
///        |                                                      yes
///        +--------------> the same frames, guarded <-------------+
///
/// | value                      | flushed     | contained      | the watch            |
/// |----------------------------|-------------|----------------|----------------------|
/// | 0.0, nothing but zeros     | 0.0         | 0.0            | stays calm           |
/// | 0.0 among other values     | 0.0         | 0.0            | alarms for no reason |
/// | -0.0 or a denormal         | 0.0         | the same value | alarms on flush      |
/// | normal, magnitude up to 5  | the same    | the same       | stays calm           |
/// | magnitude above 5          | the same    | 1, same sign   | alarms on contain    |
/// | NaN                        | the NaN     | the NaN        | stays calm           |
///
/// The bits are those of guarding every sample, as docs/kernels.md explains.

/// A filter whose output exceeds this magnitude has run away.
inline constexpr double runawayLimit = 5.0;

/// Guards that change values.
struct SActingGuard {
    SDoubles2 flush(SDoubles2 value) { return flushDenormal(value); }

    SDoubles2 contain(SDoubles2 value) {
        const auto isRunaway = magnitude(value).values > runawayLimit;
        return {isRunaway ? signedOne(value).values : value.values};
    }
};

/// Guards that change nothing and remember whether SActingGuard might have.
class CWatchingGuard {
public:
    SDoubles2 flush(SDoubles2 value) {
        m_smallest = smaller(magnitude(value), m_smallest);
        m_allBits = m_allBits | value;
        return value;
    }
    SDoubles2 contain(SDoubles2 value) {
        m_largest = larger(magnitude(value), m_largest);
        return value;
    }

    bool mightHaveActed() const {
        const Mask2 isTiny = m_smallest.values < std::numeric_limits<double>::min();
        const Mask2 isRunaway = m_largest.values > runawayLimit;
        if (!isAnySet(isTiny | isRunaway)) [[likely]]
            return false;
        const Mask2 isZeroAlone{isPlusZero(leftOf(m_allBits)), isPlusZero(rightOf(m_allBits))};
        return isAnySet((isTiny & ~isZeroAlone) | isRunaway);
    }

private:
    /// @return all bits set for 0.0, none for -0.0 or any other value.
    static std::int64_t isPlusZero(double value) {
        return std::bit_cast<std::uint64_t>(value) == 0 ? -1 : 0;
    }

    SDoubles2 m_smallest = inBothChannels(1.0);  // magnitude so far, NaNs ignored
    SDoubles2 m_largest = inBothChannels(0.0);   // magnitude so far, NaNs ignored
    SDoubles2 m_allBits = inBothChannels(0.0);   // every bit set in any value so far
};

enum class EInput {
    Read,   // the input is only read
    Flush,  // denormal input samples become 0.0, in the input buffer as well
};

/// Runs a filter over some frames with the given guards.
template <EInput input, typename Filter, typename Guard, typename Sample>
[[gnu::always_inline]] inline void runFrames(Filter &filter, Guard &guard, Sample *inL, Sample *inR,
                                             Sample *outL, Sample *outR, int count) {
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        if constexpr (input == EInput::Flush) {
            flushFourInPlace(inL + i);
            flushFourInPlace(inR + i);
        }
        Frames4 frames = loadFrames(inL + i, inR + i);
        for (SDoubles2 &frame : frames)
            frame = filter.step(frame, guard);
        storeFrames(outL + i, outR + i, frames);
    }
    for (; i < count; ++i) {
        if constexpr (input == EInput::Flush) {
            inL[i] = flushDenormal(inL[i]);
            inR[i] = flushDenormal(inR[i]);
        }
        storeFrame(outL + i, outR + i, filter.step(loadFrame(inL + i, inR + i), guard));
    }
}

/// Runs some frames with acting guards. Out of line and by value: a filter whose address is taken
/// here would not stay in registers in the watched run.
/// @return the filter after the last frame.
template <EInput input, typename Filter, typename Sample>
[[gnu::noinline]] Filter filterAfterGuarding(Filter filter, Sample *inL, Sample *inR, Sample *outL,
                                             Sample *outR, int count) {
    SActingGuard guard;
    runFrames<input>(filter, guard, inL, inR, outL, outR, count);
    return filter;
}

/// Runs a filter over some frames: first watched, then again with guards if the watch alarms. An
/// alarm repeats all frames, so pass few at a time.
/// @param filter  coefficients and state of both channels, with a template step(frame, guard) that
///                returns the next output frame. Updated to the state after the last frame.
template <EInput input, typename Filter, typename Sample>
[[gnu::always_inline]] inline void runWatched(Filter &filter, Sample *inL, Sample *inR,
                                              Sample *outL, Sample *outR, int count) {
    Filter next = filter;
    CWatchingGuard watch;
    runFrames<input>(next, watch, inL, inR, outL, outR, count);
    if (watch.mightHaveActed()) [[unlikely]] {
        // A separate variable lets the compiler keep `next` in registers.
        const Filter guarded = filterAfterGuarding<input>(filter, inL, inR, outL, outR, count);
        next = guarded;
    }
    filter = next;
}

/// Runs a filter over a block, group by group.
/// @param filter   as in runWatched.
/// @param refresh  called with the filter before each group, so that changes from another thread
///                 take effect within the block.
template <EInput input, typename Filter, typename Sample, typename Refresh>
void runGuarded(Filter &filter, Sample *const *in, Sample *const *out, int frames,
                Refresh refresh) {
    forEachGroup(frames, [&](int first, int count) {
        refresh(filter);
        runWatched<input>(filter, in[0] + first, in[1] + first, out[0] + first, out[1] + first,
                          count);
    });
}
