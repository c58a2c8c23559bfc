#pragma once

#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>

/// The rules for every module with a running state. `make` returns a new module, already set up.

/// The output depends on the samples alone, not on how they are cut into blocks.
template <typename Make>
void expectBlocksOfAnyLength(Make make) {
    constexpr int frames = 1000;
    const auto check = [&make](const auto &input) {
        auto whole = make();
        const auto expected = render(*whole, input, frames);
        for (const int length : {1, 2, 3, 4, 5, 7, 8, 15, 16, 17, 63, 64, 65, 999}) {
            auto split = make();
            EXPECT_TRUE(render(*split, input, length) == expected) << "blocks of " << length;
        }
    };
    check(makeSignal<float>(ESignal::Noise, 7, frames));
    check(makeSignal<double>(ESignal::Noise, 7, frames));
}

/// A block without frames writes nothing, and the next block continues as if there had been no
/// call.
template <typename Make>
void expectEmptyBlocksDoNothing(Make make) {
    const auto input = makeSignal<float>(ESignal::Noise, 3, 100);
    auto usual = make(), interrupted = make();
    render(*usual, input, 100);
    render(*interrupted, input, 100);
    float *none[2] = {nullptr, nullptr};
    double *noneDouble[2] = {nullptr, nullptr};
    interrupted->processReplacing(none, none, 0);
    interrupted->processDoubleReplacing(noneDouble, noneDouble, 0);
    EXPECT_TRUE(render(*interrupted, input, 100) == render(*usual, input, 100));
}

/// Two modules that run in turns behave as each does alone: there is no state outside a module.
template <typename Make>
void expectInstancesApart(Make make) {
    auto inputA = makeSignal<float>(ESignal::Noise, 11, 300);
    auto inputB = makeSignal<float>(ESignal::Noise, 12, 300);
    auto alone = make(), a = make(), b = make();
    const auto expected = render(*alone, inputA, 300);
    TStereo<float> got(300), other(300);
    for (int done = 0; done < 300; done += 20) {
        renderPart(*a, inputA, got, done, 20);
        renderPart(*b, inputB, other, done, 20);
    }
    EXPECT_TRUE(got == expected);
}

/// After a burst, the recursion does not linger among the denormals: the output ends at zero.
template <typename Sample, typename Make>
void expectSilenceAfterABurst(Make make, int silentFrames) {
    auto module = make();
    TStereo<Sample> input = makeSignal<Sample>(ESignal::Noise, 5, 200 + silentFrames);
    for (auto &channel : input.channels)
        std::fill(channel.begin() + 200, channel.end(), Sample{0});
    TStereo<Sample> output = render(*module, input, 512);
    EXPECT_EQ(output.left(output.frames() - 1), Sample{0});
    EXPECT_EQ(output.right(output.frames() - 1), Sample{0});
}

/// Each parameter reads as it was set, at both ends of its range, and no other index has an effect.
/// `ranges` contains every index from 0 up.
template <typename Make, typename Ranges>
void expectParametersReadAsSet(Make make, const Ranges &ranges) {
    auto module = make(), untouched = make();
    const int count = static_cast<int>(ranges.size());
    module->setParameter(-1, 5.0f);
    module->setParameter(count, 5.0f);
    for (int index = -1; index <= count; ++index)
        EXPECT_EQ(module->getParameter(index), untouched->getParameter(index)) << index;
    for (const auto &range : ranges) {
        for (const float value : {range.low, range.high}) {
            module->setParameter(range.index, value);
            EXPECT_EQ(module->getParameter(range.index), value) << range.index;
        }
    }
}
