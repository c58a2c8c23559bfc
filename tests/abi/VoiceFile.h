#pragma once

#include "dspclasses/support/Signals.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

/// @return the samples of a 16-bit mono WAV file, scaled to -1 to 1.
inline std::vector<double> readVoice(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const auto number = [&](std::size_t at) {
        std::uint32_t value = 0;
        std::memcpy(&value, &bytes.at(at + 3) - 3, sizeof value);
        return value;
    };
    constexpr std::size_t firstChunk = 12;
    for (std::size_t at = firstChunk; at + 8 <= bytes.size(); at += 8 + number(at + 4)) {
        if (std::string(&bytes[at], 4) != "data")
            continue;
        std::vector<double> samples;
        for (std::size_t i = 0; i + 1 < number(at + 4); i += 2) {
            std::int16_t sample = 0;
            std::memcpy(&sample, &bytes.at(at + 8 + i + 1) - 1, sizeof sample);
            samples.push_back(sample / 32768.0);
        }
        return samples;
    }
    throw std::runtime_error(path + ": no recorded voice");
}

/// The voice on the left; on the right it is delayed a little, softer and inverted.
template <typename Sample>
TStereo<Sample> voiceInStereo(const std::vector<double> &voice) {
    constexpr std::size_t lag = 400;
    TStereo<Sample> stereo;
    for (std::size_t i = 0; i < voice.size(); ++i) {
        stereo.channels[0].push_back(static_cast<Sample>(voice[i]));
        stereo.channels[1].push_back(static_cast<Sample>(i < lag ? 0.0 : -0.7 * voice[i - lag]));
    }
    return stereo;
}
