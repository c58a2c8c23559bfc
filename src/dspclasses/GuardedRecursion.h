#pragma once

#include "dspclasses/FrameGroups.h"
#include "dspclasses/StereoFrames.h"

#include <limits>

/// The loop of the recursive filters. A guard inside a recursion (a denormal becomes zero, a
/// runaway sample is replaced) nearly never acts, yet every next sample has to wait for it. So a
/// group of frames runs without guards while a watch notes, off the critical path, whether one
/// would have acted; only then the group runs again with the guards in place. The bits are those
/// of guarding every sample.

/// A sample beyond this is a recursion that has run away.
inline constexpr double runawayLimit = 5.0;

/// Guards in place.
struct SActingGuard {
    SDoubles2 flush(SDoubles2 value) { return flushDenormal(value); }

    /// A runaway value is replaced by 1 of its sign.
    SDoubles2 contain(SDoubles2 value) {
        const __m128d sign = _mm_set1_pd(-0.0), one = _mm_set1_pd(1.0);
        const __m128d beyond = _mm_cmpgt_pd(magnitude(value).lanes, _mm_set1_pd(runawayLimit));
        const __m128d replaced = _mm_or_pd(_mm_and_pd(sign, value.lanes), one);
        return {_mm_or_pd(_mm_and_pd(beyond, replaced), _mm_andnot_pd(beyond, value.lanes))};
    }
};

/// Lets every value pass as it is and remembers whether SActingGuard might have changed one. It
/// misses no change; a zero among other values it takes for one, nothing but zeros it does not.
class CWatchingGuard {
public:
    SDoubles2 flush(SDoubles2 value) {
        m_quietest = _mm_min_pd(magnitude(value).lanes, m_quietest);
        m_bits = _mm_or_pd(m_bits, value.lanes);
        return value;
    }
    SDoubles2 contain(SDoubles2 value) {
        m_loudest = _mm_max_pd(magnitude(value).lanes, m_loudest);
        return value;
    }
    bool mightHaveActed() const {
        const __m128d smallest = _mm_set1_pd(std::numeric_limits<double>::min());
        const __m128d quiet = _mm_and_pd(m_bits, _mm_cmplt_pd(m_quietest, smallest));
        const __m128d loud = _mm_cmpgt_pd(m_loudest, _mm_set1_pd(runawayLimit));
        const __m128i changed = _mm_castpd_si128(_mm_or_pd(quiet, loud));
        return _mm_movemask_epi8(_mm_cmpeq_epi32(changed, _mm_setzero_si128())) != 0xffff;
    }

private:
    // A NaN passes the guards, and neither min nor max keeps one.
    __m128d m_quietest = _mm_set1_pd(1.0);  // the smallest magnitude so far, at most 1
    __m128d m_loudest = _mm_setzero_pd();   // the largest magnitude so far
    __m128d m_bits = _mm_setzero_pd();      // every bit that was set in any value
};

enum class EInput {
    Read,   // the input is only read
    Flush,  // denormal input samples become 0.0, in the input buffer as well
};

template <EInput input, typename Filter, typename Guard, typename Sample>
void runFrames(Filter &filter, Guard &guard, Sample *inL, Sample *inR, Sample *outL, Sample *outR,
               int count) {
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

/// @param filter   coefficients and state in registers, with a template step(frame, guard) that
///                 takes one frame on. Ends in the state after the last frame.
/// @param refresh  called with the filter before each group, so that what another thread sets lands
///                 within the block.
template <EInput input, typename Filter, typename Sample, typename Refresh>
void runGuarded(Filter &filter, Sample *const *in, Sample *const *out, int frames,
                Refresh refresh) {
    Sample *inL = in[0], *inR = in[1], *outL = out[0], *outR = out[1];
    forEachGroup(frames, [&](int first, int count) {
        const auto runGroup = [&](Filter &state, auto &guard) {
            runFrames<input>(state, guard, inL + first, inR + first, outL + first, outR + first,
                             count);
        };
        refresh(filter);
        Filter next = filter;
        CWatchingGuard watch;
        runGroup(next, watch);
        if (watch.mightHaveActed()) [[unlikely]] {
            next = filter;
            SActingGuard guard;
            runGroup(next, guard);
        }
        filter = next;
    });
}
