#pragma once

#include <filesystem>
#include <sndfile.h>
#include <vector>

/// An audio file as it is on disk: integers as n / 2^(bits - 1), exact in double.
struct SSound {
    int format = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
    int sampleRate = 44100;
    int channels = 2;
    std::vector<double> samples;  // interleaved

    std::size_t frames() const { return samples.size() / static_cast<std::size_t>(channels); }
};

/// Something like a voice: tones, noise and rests, below full scale. The same for the same seed,
/// and every sample a multiple of 2^-15, so that all formats but the lossy ones hold it.
SSound voice(unsigned seed, std::size_t frames, int channels = 2);

void writeSound(const std::filesystem::path &file, const SSound &sound);
SSound readSound(const std::filesystem::path &file);
