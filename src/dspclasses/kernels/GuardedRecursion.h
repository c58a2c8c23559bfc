#pragma once

#include "dspclasses/kernels/FrameGroups.h"
#include "dspclasses/kernels/StereoFrames.h"

#include <bit>
#include <cstdint>
#include <limits>

/// The loop of the recursive filters. A guard inside a recursion (a denormal becomes zero, a
/// runaway sample is replaced) nearly never acts, yet every next sample has to wait for it. So a
/// group of frames runs without guards while a watch notes, off the critical path, whether one
/// would have acted; only then the group runs again with the guards in place. The bits are those
/// of guarding every sample.

/// A sample beyond this is a recursion that has run away. Whole, so that it is the same as a float.
inline constexpr double runawayLimit = 5.0;

/// @return false for 0.0 alone, true for -0.0 as for every other value.
inline bool isAnyBitSet(double value) {
    return std::bit_cast<std::uint64_t>(value) != 0;
}

/// Guards in place.
struct SActingGuard {
    SDoubles2 flush(SDoubles2 value) { return flushDenormal(value); }

    /// A runaway value is replaced by 1 of its sign.
    SDoubles2 contain(SDoubles2 value) {
        const auto isRunaway = magnitude(value).values > runawayLimit;
        return {isRunaway ? signedOne(value).values : value.values};
    }
};

/// Lets every value pass as it is and remembers whether SActingGuard might have changed one. It
/// misses no change; a zero among other values it takes for one, nothing but zeros it does not.
class CWatchingGuard {
public:
    SDoubles2 flush(SDoubles2 value) {
        m_quietest = smaller(magnitude(value), m_quietest);
        m_bits = m_bits | value;
        return value;
    }
    SDoubles2 contain(SDoubles2 value) {
        m_loudest = larger(magnitude(value), m_loudest);
        return value;
    }
    bool mightHaveActed() const { return mightHaveActed(0) || mightHaveActed(1); }

private:
    bool mightHaveActed(int channel) const {
        const bool isQuiet = m_quietest.values[channel] < std::numeric_limits<double>::min();
        return (isQuiet && isAnyBitSet(m_bits.values[channel])) ||
               m_loudest.values[channel] > runawayLimit;
    }

    // A NaN stands in none of the first two: the guards let it pass as well.
    SDoubles2 m_quietest = inBothChannels(1.0);  // the smallest magnitude so far, at most 1
    SDoubles2 m_loudest = inBothChannels(0.0);   // the largest magnitude so far
    SDoubles2 m_bits = inBothChannels(0.0);      // every bit that was set in any value
};

enum class EInput {
    Read,   // the input is only read
    Flush,  // denormal input samples become 0.0, in the input buffer as well
};

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

/// Takes a filter over some frames with the guards in place. Out of line and by value, and the
/// result goes into a variable of its own: a filter whose address is taken would not stay in
/// registers elsewhere.
template <EInput input, typename Filter, typename Sample>
[[gnu::noinline]] Filter ranWithGuards(Filter filter, Sample *inL, Sample *inR, Sample *outL,
                                       Sample *outR, int count) {
    SActingGuard guard;
    runFrames<input>(filter, guard, inL, inR, outL, outR, count);
    return filter;
}

struct SNoGuard {
    SDoubles2 flush(SDoubles2 value) { return value; }
    SDoubles2 contain(SDoubles2 value) { return value; }
};

inline constexpr auto runawayFloat = static_cast<float>(runawayLimit);

/// @param history  every bit that is set anywhere in the state of the channel.
/// @return whether the guards might have acted in four frames of a channel, going by what came out.
/// Zeros are what a silent filter makes of silence, and else what became of the smallest values.
[[gnu::noinline]] inline bool mightNeedGuards(double history, const float *in,
                                              const SFloats4 &out) {
    const Floats4 magnitudes = magnitude(out).values;
    if (isAnySet(magnitudes >= runawayFloat))
        return true;
    const bool isSilent = !isAnyBitSet(history) && !isAnySet(loadFour(in).values != 0.0f) &&
                          !isAnySet(reinterpret_cast<Mask4>(out.values));  // no -0.0
    return isAnySet(magnitudes == 0.0f) && !isSilent;
}

/// Takes up to four frames through a filter whose guards see nothing but what it puts out, so that
/// its output tells whether one might have acted: as floats, what has run away is at least the
/// limit, and what is a denormal as a double is 0. For a loop that does more than filter.
/// @param filter  as in runGuarded; its history() is every bit that is set in the state.
template <EInput input, typename Filter>
[[gnu::always_inline]] inline void runUpToFour(Filter &filter, float *inL, float *inR, float *outL,
                                               float *outR, int count) {
    if (count == 4) [[likely]] {
        Filter next = filter;
        SNoGuard none;
        runFrames<input>(next, none, inL, inR, outL, outR, 4);
        const SFloats4 left = loadFour(outL), right = loadFour(outR);
        const Floats4 loudest = larger(magnitude(left), magnitude(right)).values;
        const Floats4 quietest = smaller(magnitude(left), magnitude(right)).values;
        // A NaN on the right stands in both, and is not calm: it may hide the left.
        const bool isCalm = areAllSet((quietest > 0.0f) & (loudest < runawayFloat));
        if (isCalm || !(mightNeedGuards(leftOf(filter.history()), inL, left) ||
                        mightNeedGuards(rightOf(filter.history()), inR, right))) [[likely]] {
            filter = next;
            return;
        }
    }
    const Filter guarded = ranWithGuards<input>(filter, inL, inR, outL, outR, count);
    filter = guarded;
}

/// Runs a filter over both channels of a block.
/// @param filter   coefficients and state in registers, with a template step(frame, guard) that
///                 takes one frame on. Ends in the state after the last frame.
/// @param refresh  called with the filter before each group, so that what another thread sets lands
///                 within the block.
template <EInput input, typename Filter, typename Sample, typename Refresh>
void runGuarded(Filter &filter, Sample *const *in, Sample *const *out, int frames,
                Refresh refresh) {
    Sample *inL = in[0], *inR = in[1], *outL = out[0], *outR = out[1];
    forEachGroup(frames, [&](int first, int count) {
        refresh(filter);
        Filter next = filter;
        CWatchingGuard watch;
        runFrames<input>(next, watch, inL + first, inR + first, outL + first, outR + first, count);
        if (watch.mightHaveActed()) [[unlikely]] {
            const Filter guarded = ranWithGuards<input>(filter, inL + first, inR + first,
                                                        outL + first, outR + first, count);
            next = guarded;
        }
        filter = next;
    });
}
