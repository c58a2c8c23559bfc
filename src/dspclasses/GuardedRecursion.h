#pragma once

#include "dspclasses/StereoFrames.h"

/// The loop of the recursive filters. A guard at the end of a recursion (a denormal becomes zero, a
/// runaway sample is replaced) nearly never acts, yet as a part of the recursion every next sample
/// would wait for it. So four frames run without the guards while a watch notes, off the critical
/// path, whether one would have acted; only then the four frames run again with the guards in
/// place. The bits are those of guarding every sample.

/// Guards in place.
struct SActingGuard {
    SDoubles2 flush(SDoubles2 value) { return flushDenormal(value); }

    /// Beyond -limit to limit a value is replaced by 1 of its sign.
    SDoubles2 contain(SDoubles2 value, double limit) {
        const __m128d sign = _mm_set1_pd(-0.0), one = _mm_set1_pd(1.0);
        const __m128d beyond = _mm_cmpgt_pd(magnitude(value).lanes, _mm_set1_pd(limit));
        const __m128d replaced = _mm_or_pd(_mm_and_pd(sign, value.lanes), one);
        return {_mm_or_pd(_mm_and_pd(beyond, replaced), _mm_andnot_pd(beyond, value.lanes))};
    }
};

/// Lets every value pass as it is and remembers whether SActingGuard would have changed one.
class CWatchingGuard {
public:
    SDoubles2 flush(SDoubles2 value) {
        note(_mm_xor_pd(value.lanes, flushDenormal(value).lanes));
        return value;
    }
    SDoubles2 contain(SDoubles2 value, double limit) {
        note(_mm_cmpgt_pd(magnitude(value).lanes, _mm_set1_pd(limit)));
        return value;
    }
    bool wouldHaveActed() const {
        const __m128i untouched = _mm_cmpeq_epi32(_mm_castpd_si128(m_changed), _mm_setzero_si128());
        return _mm_movemask_epi8(untouched) != 0xffff;
    }

private:
    void note(__m128d changed) { m_changed = _mm_or_pd(m_changed, changed); }

    __m128d m_changed = _mm_setzero_pd();  // a bit that any guard would have changed is set
};

enum class EInput {
    Read,   // the input is only read
    Flush,  // denormal input samples become 0.0, in the input buffer as well
};

/// @param filter   coefficients and state in registers, with a template step(x, guard) that takes
///                 one frame on. Left in the state after the last frame.
/// @param refresh  called with the filter before each group of up to four frames, so that what
///                 another thread sets lands within the block.
template <EInput input, typename Filter, typename Sample, typename Refresh>
void runGuarded(Filter &filter, Sample *const *in, Sample *const *out, int frames,
                Refresh refresh) {
    Sample *inL = in[0], *inR = in[1], *outL = out[0], *outR = out[1];
    int i = 0;
    for (; i + 4 <= frames; i += 4) {
        refresh(filter);
        if constexpr (input == EInput::Flush) {
            flushFourInPlace(inL + i);
            flushFourInPlace(inR + i);
        }
        const Frames4 x = loadFrames(inL + i, inR + i);
        Frames4 y;
        Filter next = filter;
        CWatchingGuard watch;
        for (std::size_t k = 0; k < 4; ++k)
            y[k] = next.step(x[k], watch);
        if (watch.wouldHaveActed()) [[unlikely]] {
            next = filter;
            SActingGuard guard;
            for (std::size_t k = 0; k < 4; ++k)
                y[k] = next.step(x[k], guard);
        }
        filter = next;
        storeFrames(outL + i, outR + i, y);
    }
    refresh(filter);
    SActingGuard guard;
    for (; i < frames; ++i) {
        if constexpr (input == EInput::Flush) {
            inL[i] = flushDenormal(inL[i]);
            inR[i] = flushDenormal(inR[i]);
        }
        storeFrame(outL + i, outR + i, filter.step(loadFrame(inL + i, inR + i), guard));
    }
}
