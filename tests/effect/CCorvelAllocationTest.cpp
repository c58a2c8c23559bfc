#include "Allocation.h"
#include "dspclasses/support/Signals.h"
#include "editor/CCorvelEditor.h"
#include "effect/CCorvel.h"
#include "hostlayer/FakeHost.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <gtest/gtest.h>
#include <thread>

using Tessitor::Corvel::CCorvel;

namespace {

constexpr int longest = 1024;

template <typename Sample>
class CCorvelAllocation : public testing::Test {
protected:
    FakeHost host;
    CCorvel effect{FakeHost::callback};
    TStereo<Sample> voice = makeSignal<Sample>(ESignal::Bursts, 1, longest);
    TStereo<Sample> result{longest};

    CCorvelAllocation() { host.logging = false; }

    void runBlock(int frames) {
        process(effect, voice.pointers().data(), result.pointers().data(), frames);
    }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(CCorvelAllocation, Precisions);

}  // namespace

// A de-esser grows its buffers only while it is in the chain, so each program first plays the
// longest block once.
TYPED_TEST(CCorvelAllocation, DoesNotHappenOnceTheLongestBlockHasBeenSeen) {
    for (int program = 0; program < 20; ++program) {
        this->effect.setProgram(program);
        this->runBlock(longest);
        const std::uint64_t before = allocationsOfThisThread();
        for (int frames : {longest, 1, 63, 512, longest})
            this->runBlock(frames);
        EXPECT_EQ(allocationsOfThisThread(), before) << "program " << program;
    }
}

TYPED_TEST(CCorvelAllocation, HappensForALongerBlock) {
    const std::uint64_t before = allocationsOfThisThread();
    this->runBlock(longest);
    EXPECT_GT(allocationsOfThisThread(), before);
}

// MusE 4.1 sets and reads parameters on the audio thread. The thread that created the effect also
// changes the texts of a closed editor.
TYPED_TEST(CCorvelAllocation, HappensForNoParameterExceptTheReverbsSpread) {
    const auto setAll = [this] {
        CRandom random(2);
        for (int id = 0; id < 64; ++id) {
            if (id == kRvSpread)
                continue;
            const std::uint64_t before = allocationsOfThisThread();
            for (int i = 0; i < 20; ++i)
                this->effect.setParameter(id, static_cast<float>(random.real(0.0, 1.0)));
            this->effect.getParameter(id);
            EXPECT_EQ(allocationsOfThisThread(), before) << "parameter " << id;
        }
    };
    std::thread(setAll).join();
    fakeNatives() = SFakeNatives();
    int parent = 0;
    this->effect.getEditor()->open(&parent);
    std::thread(setAll).join();
    this->effect.getEditor()->idle();
    std::thread(setAll).join();
    this->effect.getEditor()->close();
    std::thread(setAll).join();
}

TYPED_TEST(CCorvelAllocation, DoesNotHappenForTheHostsEvents) {
    VstMidiEvent note{};
    note.type = kVstMidiType;
    VstEvents events{};
    events.numEvents = 1;
    events.events[0] = reinterpret_cast<VstEvent *>(&note);
    const std::uint64_t before = allocationsOfThisThread();
    for (int i = 0; i < 200; ++i)
        this->effect.processEvents(&events);
    EXPECT_EQ(allocationsOfThisThread(), before);
}
