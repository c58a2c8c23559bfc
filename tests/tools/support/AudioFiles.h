#pragma once

#include <filesystem>
#include <sndfile.h>
#include <vector>

/// The contents of an audio file. Integers are n / 2^(bits - 1), which double represents exactly.
struct SSound {
    int format = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
    int sampleRate = 44100;
    int channels = 2;
    std::vector<double> samples;  // interleaved

    std::size_t frames() const { return samples.size() / static_cast<std::size_t>(channels); }
};

/// @return a signal like a voice: tones, noise and rests, below full scale. The same seed gives the
///         same samples. All are multiples of 2^-15, which every lossless format can hold.
SSound voice(unsigned seed, std::size_t frames, int channels = 2);

void writeSound(const std::filesystem::path &file, const SSound &sound);
SSound readSound(const std::filesystem::path &file);
