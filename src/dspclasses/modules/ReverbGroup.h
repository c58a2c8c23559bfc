#pragma once

#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/WideLoop.h"
#include "dspclasses/modules/ReverbGeometry.h"

/// The signals of a group of frames between the stages of the reverb, and the loops that compute
/// one of them from others without any state.
struct SReverbGroup {
    static constexpr int longest = 256;  // frames
    using Lines = float[reverbLines][longest];

    float left[longest];  // filtered, then diffused; at the end the wet signal
    float right[longest];
    Lines early;  // from the taps
    Lines tail;   // from the lines, damped
};

/// The mean of the channels, without denormals.
inline void mixToMono(const float *left, const float *right, float *mono, int frames) {
    runWide([=] {
        for (int i = 0; i < frames; ++i)
            mono[i] = flushDenormal((left[i] + right[i]) * 0.5f);
    });
}

/// A tap between two neighbours, `fraction` of the way towards the older one.
inline void readTap(const float *newer, const float *older, float fraction, float gain, float *tap,
                    int frames) {
    runWide([=] {
        for (int i = 0; i < frames; ++i)
            tap[i] = ((older[i] - newer[i]) * fraction + newer[i]) * gain;
    });
}

/// Sums taps and lines into the wet signal, every second one inverted.
inline void mixWet(SReverbGroup &group, float earlyLevel, float tailLevel, int frames) {
    runWide([=, &group] {
        for (int i = 0; i < frames; ++i) {
            const auto line = [&](int k) {
                return earlyLevel * group.early[k][i] + tailLevel * group.tail[k][i];
            };
            group.left[i] = group.right[i] = line(0) - line(1) + line(2) - line(3);
        }
    });
}

/// What the lines are fed: the taps, and the tails through a Hadamard matrix, which keeps their
/// energy:
///
///     fed[0]         |  1  1 -1 -1 |   tail[0]     early[0]
///     fed[1]  =  0.5 |  1 -1 -1  1 | * tail[1]  +  early[1]
///     fed[2]         | -1  1 -1  1 |   tail[2]     early[2]
///     fed[3]         |  1  1  1  1 |   tail[3]     early[3]
inline void scatter(const SReverbGroup &group, SReverbGroup::Lines &fed, int frames) {
    runWide([=, &group, &fed] {
        for (int i = 0; i < frames; ++i) {
            const float a = group.tail[0][i], b = group.tail[1][i];
            const float c = group.tail[2][i], d = group.tail[3][i];
            fed[0][i] = (a + b - c - d) * 0.5f + group.early[0][i];
            fed[1][i] = (a - b - c + d) * 0.5f + group.early[1][i];
            fed[2][i] = (b - a - c + d) * 0.5f + group.early[2][i];
            fed[3][i] = (a + b + c + d) * 0.5f + group.early[3][i];
        }
    });
}
