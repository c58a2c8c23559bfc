#pragma once

#include "dspclasses/support/Signals.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

/// A parameter and the range of its random values, which often are an end or the current value.
struct SParameterRange {
    int index;
    float low;
    float high;
};

/// Runs a module and its plain version side by side and compares every bit of the outputs, of the
/// inputs (which some modules write) and of getParameter.
///
/// A case is a series of blocks of 0 to 4096 frames, in one precision or alternating, with
/// parameter changes and an occasional reset in between. Two functions create the two sides, so
/// that both can be set up alike; each side has setParameter, getParameter, processReplacing,
/// processDoubleReplacing and reset.
///
///     expectSameBits([] { return std::make_unique<CDSPHiPass>(); },
///                    [] { return std::make_unique<PlainHiPass>(); }, {{0, 1.0f, 2000.0f}});
template <typename MakeModule, typename MakePlain>
class COracle {
public:
    COracle(MakeModule makeModule, MakePlain makePlain, std::vector<SParameterRange> ranges)
        : m_makeModule(makeModule), m_makePlain(makePlain), m_ranges(std::move(ranges)) {}

    /// Stops at the first case that differs. The message contains the seed that repeats it.
    void runCases(std::uint64_t firstSeed, int cases) {
        for (int number = 0; number < cases; ++number) {
            const std::uint64_t seed = firstSeed + static_cast<std::uint64_t>(number);
            const std::string difference = runCase(seed);
            if (!difference.empty()) {
                ADD_FAILURE() << "seed " << seed << ": " << difference;
                return;
            }
        }
    }

private:
    enum class EPrecision { Single, Double, Changing };

    static int drawBlockLength(CRandom &random) {
        if (random.chance(0.6))
            return random.whole(0, 64);
        return random.chance(0.75) ? random.whole(65, 600) : random.whole(601, 4096);
    }

    float drawValue(CRandom &random, const SParameterRange &range) {
        const double draw = random.real(0.0, 1.0);
        if (draw < 0.15)
            return range.low;
        if (draw < 0.3)
            return range.high;
        return static_cast<float>(random.real(double{range.low}, double{range.high}));
    }

    std::string runCase(std::uint64_t seed) {
        CRandom random(seed);
        auto module = m_makeModule();
        auto plain = m_makePlain();
        const auto precision = static_cast<EPrecision>(random.whole(0, 2));
        std::vector<int> lengths(static_cast<std::size_t>(random.whole(1, 6)));
        int total = 0;
        for (int &length : lengths)
            total += length = drawBlockLength(random);
        const std::array<std::vector<double>, 2> signal{drawSignal(random, total),
                                                        drawSignal(random, total)};
        int done = 0;
        for (const int length : lengths) {
            std::string difference = changeParameters(random, *module, *plain);
            if (!difference.empty())
                return difference;
            if (random.chance(0.05)) {
                module->reset();
                plain->reset();
            }
            const bool single = precision == EPrecision::Single ||
                                (precision == EPrecision::Changing && random.chance(0.5));
            // Deliberately misaligned: modules may not rely on alignment.
            const int offset = random.whole(0, 3);
            difference = single ? runBlock<float>(*module, *plain, signal, done, length, offset)
                                : runBlock<double>(*module, *plain, signal, done, length, offset);
            if (!difference.empty())
                return difference;
            done += length;
        }
        return {};
    }

    std::vector<double> drawSignal(CRandom &random, int frames) {
        const auto kind = static_cast<ESignal>(random.whole(0, signalCount - 1));
        return makeChannel(kind, random.bits(), frames);
    }

    template <typename Module, typename Plain>
    std::string changeParameters(CRandom &random, Module &module, Plain &plain) {
        for (const SParameterRange &range : m_ranges) {
            if (random.chance(0.4))
                continue;
            const float value =
                random.chance(0.15) ? plain.getParameter(range.index) : drawValue(random, range);
            module.setParameter(range.index, value);
            plain.setParameter(range.index, value);
            const float got = module.getParameter(range.index);
            const float expected = plain.getParameter(range.index);
            if (!sameBits(got, expected)) {
                std::ostringstream text;
                text << "parameter " << range.index << " set to " << value << " reads " << got
                     << ", expected " << expected;
                return text.str();
            }
        }
        return {};
    }

    template <typename Sample, typename Module, typename Plain>
    std::string runBlock(Module &module, Plain &plain,
                         const std::array<std::vector<double>, 2> &signal, int start, int length,
                         int offset) {
        TStereo<Sample> moduleIn(offset + length);
        for (std::size_t channel = 0; channel < 2; ++channel) {
            const auto first = signal[channel].begin() + start;
            std::transform(first, first + length, moduleIn.channels[channel].begin() + offset,
                           [](double sample) { return static_cast<Sample>(sample); });
        }
        TStereo<Sample> plainIn = moduleIn;
        // Filled differently, so that a sample that is never written differs as well.
        TStereo<Sample> moduleOut(offset + length, 77), plainOut(offset + length, 99);
        renderPart(module, moduleIn, moduleOut, offset, length);
        renderPart(plain, plainIn, plainOut, offset, length);

        const std::string difference = compare(moduleOut, plainOut, "output", offset, start);
        return difference.empty() ? compare(moduleIn, plainIn, "input", offset, start) : difference;
    }

    template <typename Sample>
    static std::string compare(const TStereo<Sample> &got, const TStereo<Sample> &expected,
                               const char *what, int offset, int start) {
        for (std::size_t i = static_cast<std::size_t>(offset); i < got.channels[0].size(); ++i) {
            for (std::size_t channel = 0; channel < 2; ++channel) {
                const Sample a = got.channels[channel][i], b = expected.channels[channel][i];
                if (sameBits(a, b))
                    continue;
                std::ostringstream text;
                const int inBlock = static_cast<int>(i) - offset;
                text << (sizeof(Sample) == 4 ? "float " : "double ") << what << ", frame "
                     << start + inBlock << " (" << inBlock << " of a block of "
                     << got.frames() - offset << "), channel " << channel
                     << std::setprecision(std::numeric_limits<Sample>::max_digits10) << ": got "
                     << a << ", expected " << b << std::hexfloat << " (" << a << ", " << b << ")";
                return text.str();
            }
        }
        return {};
    }

    MakeModule m_makeModule;
    MakePlain m_makePlain;
    std::vector<SParameterRange> m_ranges;
};

template <typename MakeModule, typename MakePlain>
void expectSameBits(MakeModule makeModule, MakePlain makePlain, std::vector<SParameterRange> ranges,
                    int cases = 2000) {
    COracle(makeModule, makePlain, std::move(ranges)).runCases(1, cases);
}
