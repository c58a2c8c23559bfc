#include "Locks.h"
#include "editor/CCorvelEditor.h"
#include "effect/CCorvel.h"
#include "hostlayer/FakeHost.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <gtest/gtest.h>
#include <thread>

using Tessitor::Corvel::CCorvel;

namespace {

void expectNoLockExceptForTheReverbsSpread(CCorvel &effect) {
    std::thread([&effect] {
        for (int id = 0; id < kParameterCount; ++id) {
            const std::uint64_t before = locksOfThisThread();
            effect.setParameter(id, effect.getParameter(id) < 0.5f ? 0.75f : 0.25f);
            EXPECT_EQ(locksOfThisThread(), before + (id == kRvSpread ? 1 : 0)) << id;
        }
    }).join();
}

// MusE 4.1 sets parameters on the audio thread.
TEST(CCorvelLocks, AreTakenForNoParameterExceptTheReverbsSpread) {
    FakeHost host;
    host.logging = false;
    fakeNatives() = SFakeNatives();
    CCorvel effect(FakeHost::callback);
    int parent = 0;
    expectNoLockExceptForTheReverbsSpread(effect);
    effect.getEditor()->open(&parent);
    expectNoLockExceptForTheReverbsSpread(effect);
    effect.getEditor()->close();
    expectNoLockExceptForTheReverbsSpread(effect);
}

}  // namespace
