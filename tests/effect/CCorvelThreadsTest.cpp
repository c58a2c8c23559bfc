#include "dspclasses/support/Signals.h"
#include "effect/CCorvel.h"
#include "hostlayer/FakeHost.h"

#include <array>
#include <atomic>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <thread>

using Tessitor::Corvel::CCorvel;
using Tessitor::Corvel::SProgram;

namespace {

/// Does one thing that a host's or an editor's thread may do while the audio runs.
void changeSomething(CCorvel &effect, CRandom &random, const SProgram &full) {
    CDSPMultiFX &strip = effect.getStrip();
    char text[64];
    switch (random.whole(0, 6)) {
    case 0:
        effect.setProgram(random.whole(0, 19));
        break;
    case 1: {
        const int slot = random.whole(kFirstModuleSlot, kLastModuleSlot);
        if (strip.orderEntry(slot).prev == kNoSlot)
            strip.appendFX(slot);
        else
            strip.removeFX(slot);
        break;
    }
    case 2: {
        SProgram chunk = full;
        effect.setChunk(&chunk, sizeof chunk, true);
        break;
    }
    case 3: {
        void *data = nullptr;
        effect.getChunk(&data, random.chance(0.5));
        break;
    }
    case 4:
        effect.getParameterDisplay(random.whole(0, kParameterCount - 1), text);
        break;
    default:
        effect.setParameter(random.whole(0, kParameterCount - 1),
                            static_cast<float>(random.real(0.0, 1.0)));
    }
}

template <typename Sample>
void processBesideChanges(CCorvel &effect) {
    constexpr int steps = 2000;
    std::atomic<bool> changing = true;
    int blocks = 0;
    std::thread audio([&] {
        TStereo<Sample> voice = makeSignal<Sample>(ESignal::Bursts, 1, 256);
        TStereo<Sample> result(256);
        while (changing || blocks < 100) {
            process(effect, voice.pointers().data(), result.pointers().data(),
                    1 + 37 * blocks % 256);
            ++blocks;
        }
    });

    void *data = nullptr;
    effect.setProgram(5);
    effect.getChunk(&data, true);
    SProgram full;
    std::memcpy(&full, data, sizeof full);
    CRandom random(2);
    for (int i = 0; i < steps; ++i)
        changeSomething(effect, random, full);
    changing = false;
    audio.join();
    EXPECT_GE(blocks, 100);
}

}  // namespace

// Under ThreadSanitizer, these tests show that no plain field is shared by two threads.
TEST(CCorvelThreads, MayChangeEverythingWhileTheAudioRuns) {
    FakeHost host;
    host.logging = false;
    CCorvel effect(FakeHost::callback);
    processBesideChanges<float>(effect);
    processBesideChanges<double>(effect);
}

TEST(CCorvelThreads, MayRunTwoInstancesAtTheSameTime) {
    FakeHost host;
    host.logging = false;
    CCorvel first(FakeHost::callback), second(FakeHost::callback);
    const TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 3, 20000);
    first.setProgram(5);
    second.setProgram(5);

    TStereo<float> a, b;
    std::thread one([&] { a = render(first, voice, 333); });
    std::thread two([&] { b = render(second, voice, 512); });
    one.join();
    two.join();
    EXPECT_EQ(a, b);
}
