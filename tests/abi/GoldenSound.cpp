#include "abi/GoldenSound.h"

#include "abi/LoadedPlugin.h"
#include "dspclasses/support/Signals.h"
#include "hostlayer/FakeHost.h"

#include <bit>
#include <cstdio>

namespace {

// Syllables of noise with pauses. No sine or exponential is used: their last bits differ between
// systems.
TStereo<float> makeSyllables() {
    constexpr int syllables = 24, longest = 6000;
    CRandom random(2026);
    TStereo<float> signal;
    for (int n = 0; n < syllables; ++n) {
        const int frames = random.whole(500, longest);
        const double level = n % 4 == 3 ? 0.0 : std::ldexp(1.0, -random.whole(0, 6));
        for (int i = 0; i < frames; ++i) {
            const double rise = std::min({i, frames - i, 256}) / 256.0;
            const double breath = level * rise * random.real(-1.0, 1.0);
            signal.channels[0].push_back(static_cast<float>(breath));
            signal.channels[1].push_back(
                static_cast<float>(0.5 * breath + 0.25 * level * rise * random.real(-1.0, 1.0)));
        }
    }
    return signal;
}

struct SFigures {
    double peak = 0.0, squares = 0.0;
    std::uint64_t hash = 0xCBF29CE484222325u;  // FNV-1a
    std::size_t samples = 0;

    void add(float sample) {
        peak = std::max(peak, std::fabs(double{sample}));
        squares += double{sample} * sample;
        ++samples;
        for (int bits = 0; bits < 32; bits += 8) {
            hash ^= std::bit_cast<std::uint32_t>(sample) >> bits & 0xFFu;
            hash *= 0x100000001B3u;
        }
    }
};

double decibels(double level) {
    return 20.0 * std::log10(level);
}

std::string lineOf(const std::string &name, const TStereo<float> &sound) {
    SFigures figures;
    for (const auto &channel : sound.channels)
        for (const float sample : channel)
            figures.add(sample);
    char line[128];
    const double mean = figures.squares / static_cast<double>(figures.samples);
    std::snprintf(line, sizeof line, "%-24s%8.3f%10.3f  %016llx", name.c_str(),
                  decibels(figures.peak), decibels(std::sqrt(mean)),
                  static_cast<unsigned long long>(figures.hash));
    return line;
}

}  // namespace

std::vector<std::string> goldenSound() {
    FakeHost host;
    host.logging = false;
    const CPluginFile file;
    const TStereo<float> signal = makeSyllables();
    std::vector<std::string> lines;
    for (int program = 0; program < 20; ++program) {
        const CLoadedEffect effect(file, FakeHost::callback);
        effect.send(effOpen);
        effect.send(effSetProgram, 0, program);
        effect.send(effMainsChanged, 0, 1);
        lines.push_back(lineOf(effect.text(effGetProgramName), render(effect, signal, 512)));
    }
    return lines;
}
