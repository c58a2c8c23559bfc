#include "dspclasses/strip/CDSPMultiFX.h"
#include "dspclasses/support/Signals.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

// For ThreadSanitizer: the audio runs while another thread does everything that an editor and a
// host do without a lock. kRvSpread is left out, since the effect sets it under its lock.

/// Makes a random edit that keeps the list consistent, or loads another chain.
static void editOrder(CDSPMultiFX &strip, CRandom &random, std::vector<int> &chain) {
    const auto place = [&] {
        return chain.begin() + random.whole(0, static_cast<int>(chain.size()) - 1);
    };
    int slot = random.whole(kFirstModuleSlot, kLastModuleSlot);
    while (std::find(chain.begin(), chain.end(), slot) != chain.end())
        slot = random.whole(kFirstModuleSlot, kLastModuleSlot);
    const int kind = chain.size() < 2 ? 0 : chain.size() > 5 ? 1 : random.whole(0, 4);
    if (kind == 0) {
        strip.appendFX(slot);
        chain.push_back(slot);
    } else if (kind == 1) {
        const auto removed = place();
        strip.removeFX(*removed);
        chain.erase(removed);
    } else if (kind == 2) {
        const auto target = place();
        strip.insertFX(*target, slot, true, true);
        chain.insert(target, slot);
    } else if (kind == 3) {
        strip.moveFXBefore(chain[0], chain[1]);
        std::swap(chain[0], chain[1]);
    } else {
        strip.initOrder();
        chain.clear();
        strip.setOrderEntry(kInMonoSlot, kInGainSlot, slot);
        strip.setOrderEntry(slot, kInMonoSlot, kNoSlot);
        strip.recountFX();
        chain.push_back(slot);
    }
}

template <typename Sample>
static void runBeside(std::uint64_t seed) {
    constexpr int blocks = 600, edits = 6000, blockFrames = 48;
    CDSPMultiFX strip;
    std::atomic<bool> started = false;

    std::jthread audio([&] {
        TStereo<Sample> input = makeSignal<Sample>(ESignal::Noise, seed, blockFrames);
        TStereo<Sample> output(blockFrames);
        std::array<Sample *, 2> in = input.pointers(), out = output.pointers();
        started = true;
        for (int block = 0; block < blocks; ++block) {
            strip.setTempo(static_cast<float>(60 + block % 100));
            process(strip, in.data(), out.data(), blockFrames);
        }
    });

    CRandom random(seed);
    std::vector<int> chain;
    char text[32];
    // Not a std::latch: with the MinGW-w64 run-time of g++ 12 its waiter may never wake up.
    while (!started)
        std::this_thread::yield();
    for (int edit = 0; edit < edits; ++edit) {
        const int id = random.whole(0, kParameterCount - 1);
        if (id != kRvSpread)
            strip.setStripParameter(id, static_cast<float>(random.real(0.0, 1.0)));
        strip.getParameterDisplay(random.whole(0, kParameterCount - 1), text);
        if (edit % 10 == 0)
            editOrder(strip, random, chain);
        if (edit % 1000 == 0) {
            strip.setMonoInput(edit % 2000 == 0);
            strip.resetAllModules();
        }
    }
    audio.join();

    // The list is still consistent, and an empty chain passes the signal.
    EXPECT_EQ(strip.getFXCount(), static_cast<int>(chain.size()));
    strip.recountFX();
    EXPECT_EQ(strip.getFXCount(), static_cast<int>(chain.size()));
    strip.initOrder();
    strip.setMonoInput(false);
    for (const int routing : {kInMono, kOutMono})
        strip.setStripParameter(routing, 1.0f);
    strip.setStripParameter(kInGain, 0.3f);
    strip.setStripParameter(kInGain, 0.5f);
    const TStereo<Sample> input = makeSignal<Sample>(ESignal::Noise, 99, 64);
    EXPECT_EQ(render(strip, input, 64), input);
}

TEST(CDSPMultiFXThreads, MayEditTheStripWhileItRunsInSinglePrecision) {
    runBeside<float>(21);
}

TEST(CDSPMultiFXThreads, MayEditTheStripWhileItRunsInDoublePrecision) {
    runBeside<double>(22);
}
