#pragma once

#include "dspclasses/modules/CDSPBase.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

/// Random numbers that are the same with every compiler and library (splitmix64).
class CRandom {
public:
    explicit CRandom(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t bits() {
        m_state += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }
    /// @return a value from low to high, excluding high.
    double real(double low, double high) {
        return low + (high - low) * static_cast<double>(bits() >> 11) * 0x1p-53;
    }
    /// @return a value from low to high, including both.
    int whole(int low, int high) {
        return low + static_cast<int>(bits() % static_cast<std::uint64_t>(high - low + 1));
    }
    bool chance(double probability) { return real(0.0, 1.0) < probability; }

private:
    std::uint64_t m_state;
};

enum class ESignal {
    Silence,
    Impulse,    // one full-scale sample
    Sine,       // -40 to 0 dBFS, 20 Hz to 20 kHz
    Noise,      // full scale
    Bursts,     // syllables of noise at -70 to 0 dBFS with pauses, so that thresholds are crossed
    Denormals,  // below the normal range of float or of double, and negative zeros
    Loud,       // noise up to +24 dBFS
    Mixed,      // any of the above, changing every few dozen frames
    Wild,       // noise with huge samples, infinities and NaNs
};
inline constexpr int signalCount = static_cast<int>(ESignal::Wild) + 1;

inline double linearFromDb(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

/// One sample that is denormal or zero in float, in double or in both.
inline double denormalSample(CRandom &random) {
    const double sign = random.chance(0.5) ? 1.0 : -1.0;
    switch (random.whole(0, 2)) {
    case 0:
        return sign * random.real(0.0, double{std::numeric_limits<float>::min()});
    case 1:
        return sign * random.real(0.0, 1.0) * std::numeric_limits<double>::min();
    default:
        return sign * 0.0;
    }
}

inline double wildSample(CRandom &random) {
    const double magnitudes[] = {5.0, 1e10, double{std::numeric_limits<float>::max()},
                                 std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()};
    const double sign = random.chance(0.5) ? 1.0 : -1.0;
    return sign * magnitudes[random.whole(0, 4)];
}

/// @return one channel; the same seed gives the same samples.
inline std::vector<double> makeChannel(ESignal kind, std::uint64_t seed, int frames) {
    CRandom random(seed);
    std::vector<double> samples(static_cast<std::size_t>(frames), 0.0);
    switch (kind) {
    case ESignal::Silence:
        break;
    case ESignal::Impulse:
        if (frames > 0)
            samples[static_cast<std::size_t>(random.whole(0, frames - 1))] = 1.0;
        break;
    case ESignal::Sine: {
        const double level = linearFromDb(random.real(-40.0, 0.0));
        const double step = 2.0 * 3.141592653589793 * random.real(20.0, 20000.0) / 44100.0;
        double phase = random.real(0.0, 6.0);
        for (double &sample : samples) {
            sample = level * std::sin(phase);
            phase += step;
        }
        break;
    }
    case ESignal::Noise:
        for (double &sample : samples)
            sample = random.real(-1.0, 1.0);
        break;
    case ESignal::Bursts: {
        double level = 0.0;
        int left = 0;
        for (double &sample : samples) {
            if (left-- == 0) {
                left = random.whole(10, 800);
                level = random.chance(0.3) ? 0.0 : linearFromDb(random.real(-70.0, 0.0));
            }
            sample = level * random.real(-1.0, 1.0);
        }
        break;
    }
    case ESignal::Denormals:
        for (double &sample : samples)
            sample = denormalSample(random);
        break;
    case ESignal::Loud:
        for (double &sample : samples)
            sample = linearFromDb(24.0) * random.real(-1.0, 1.0);
        break;
    case ESignal::Mixed:
        for (int done = 0; done < frames;) {
            const int count = std::min(frames - done, random.whole(1, 60));
            const auto other =
                static_cast<ESignal>(random.whole(0, static_cast<int>(ESignal::Mixed) - 1));
            const std::vector<double> piece = makeChannel(other, random.bits(), count);
            std::copy(piece.begin(), piece.end(), samples.begin() + done);
            done += count;
        }
        break;
    case ESignal::Wild:
        for (double &sample : samples)
            sample = random.chance(0.01) ? wildSample(random) : random.real(-1.0, 1.0);
        break;
    }
    return samples;
}

/// A stereo signal: channels[0] is left, channels[1] right, of equal length.
template <typename Sample>
struct TStereo {
    std::array<std::vector<Sample>, 2> channels;

    TStereo() = default;
    explicit TStereo(int frames, Sample fill = 0) {
        channels.fill(std::vector<Sample>(static_cast<std::size_t>(frames), fill));
    }
    int frames() const { return static_cast<int>(channels[0].size()); }
    std::array<Sample *, 2> pointers(int offset = 0) {
        return {channels[0].data() + offset, channels[1].data() + offset};
    }
    Sample &left(int frame) { return channels[0][static_cast<std::size_t>(frame)]; }
    Sample &right(int frame) { return channels[1][static_cast<std::size_t>(frame)]; }
};

/// Both channels of one kind, from different seeds. Denormals survive the rounding to float.
template <typename Sample>
TStereo<Sample> makeSignal(ESignal kind, std::uint64_t seed, int frames) {
    TStereo<Sample> stereo;
    for (std::size_t channel = 0; channel < 2; ++channel) {
        for (const double sample : makeChannel(kind, 2 * seed + channel, frames))
            stereo.channels[channel].push_back(static_cast<Sample>(sample));
    }
    return stereo;
}

/// A constant level in each channel.
template <typename Sample>
TStereo<Sample> steady(int frames, Sample left, Sample right) {
    TStereo<Sample> stereo(frames, left);
    stereo.channels[1].assign(stereo.channels[1].size(), right);
    return stereo;
}

/// Compares bits, so 0 and -0 differ. Any NaN equals any other, since the processor chooses which
/// of two NaNs an addition returns.
template <typename Sample>
bool sameBits(Sample a, Sample b) {
    using Bits = std::conditional_t<sizeof(Sample) == 4, std::uint32_t, std::uint64_t>;
    return std::bit_cast<Bits>(a) == std::bit_cast<Bits>(b) || (std::isnan(a) && std::isnan(b));
}

template <typename Sample>
bool operator==(const TStereo<Sample> &a, const TStereo<Sample> &b) {
    for (std::size_t channel = 0; channel < 2; ++channel) {
        if (!std::equal(a.channels[channel].begin(), a.channels[channel].end(),
                        b.channels[channel].begin(), b.channels[channel].end(), sameBits<Sample>))
            return false;
    }
    return true;
}

/// One call in the precision of the buffers.
template <typename Module>
void process(Module &module, float **in, float **out, int frames) {
    module.processReplacing(in, out, frames);
}
template <typename Module>
void process(Module &module, double **in, double **out, int frames) {
    module.processDoubleReplacing(in, out, frames);
}

/// Processes `frames` frames from `start` on, from one signal to another.
template <typename Module, typename Sample>
void renderPart(Module &module, TStereo<Sample> &input, TStereo<Sample> &output, int start,
                int frames) {
    std::array<Sample *, 2> in = input.pointers(start), out = output.pointers(start);
    process(module, in.data(), out.data(), frames);
}

/// @return the output for the whole input, in blocks of blockLength; the last may be shorter.
template <typename Module, typename Sample>
TStereo<Sample> render(Module &module, TStereo<Sample> input, int blockLength) {
    TStereo<Sample> output(input.frames());
    for (int done = 0; done < input.frames(); done += blockLength)
        renderPart(module, input, output, done, std::min(blockLength, input.frames() - done));
    return output;
}
