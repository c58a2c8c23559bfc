#include "tools/support/AudioFiles.h"

#include <cmath>
#include <numbers>
#include <random>
#include <stdexcept>

SSound voice(unsigned seed, std::size_t frames, int channels) {
    SSound sound;
    sound.channels = channels;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> noise(-0.2, 0.2);
    for (std::size_t i = 0; i < frames; ++i) {
        const double time = static_cast<double>(i) / 44100.0;
        const double syllable = std::max(0.0, std::sin(2.0 * std::numbers::pi * 3.0 * time));
        for (int channel = 0; channel < channels; ++channel) {
            const double tone = std::sin(2.0 * std::numbers::pi * (180.0 + 35.0 * channel) * time);
            const double sample = syllable * (0.5 * tone + noise(random));
            sound.samples.push_back(std::round(sample * 32768.0) / 32768.0);
        }
    }
    return sound;
}

void writeSound(const std::filesystem::path &file, const SSound &sound) {
    SF_INFO info{};
    info.format = sound.format;
    info.samplerate = sound.sampleRate;
    info.channels = sound.channels;
    SNDFILE *handle = sf_open(file.c_str(), SFM_WRITE, &info);
    if (handle == nullptr)
        throw std::runtime_error(sf_strerror(nullptr));
    // Without this, libsndfile scales integers by 2^(bits - 1) - 1.
    sf_command(handle, SFC_SET_CLIPPING, nullptr, SF_TRUE);
    sf_writef_double(handle, sound.samples.data(), static_cast<sf_count_t>(sound.frames()));
    sf_close(handle);
}

SSound readSound(const std::filesystem::path &file) {
    SF_INFO info{};
    SNDFILE *handle = sf_open(file.c_str(), SFM_READ, &info);
    if (handle == nullptr)
        throw std::runtime_error(file.string() + ": " + sf_strerror(nullptr));
    SSound sound{info.format, info.samplerate, info.channels, {}};
    sound.samples.resize(static_cast<std::size_t>(info.frames * info.channels));
    sf_readf_double(handle, sound.samples.data(), info.frames);
    sf_close(handle);
    return sound;
}
