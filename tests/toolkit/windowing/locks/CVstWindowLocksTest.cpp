#include "Locks.h"
#include "hostlayer/ProbeEffect.h"
#include "toolkit/windowing/CTestEditor.h"

#include <thread>

namespace {

TEST(CVstWindowLocks, AreNotEvenTriedByThreadsThatMayNotShowValues) {
    fakeNatives() = SFakeNatives();
    ProbeEffect effect;
    auto *editor = new CTestEditor(&effect);  // owned by the effect
    const auto countElsewhere = [editor] {
        std::thread([editor] {
            const std::uint64_t before = locksOfThisThread();
            for (int i = 0; i < 100; ++i)
                editor->handleParameterChange(i % 2, i / 100.0);
            EXPECT_EQ(locksOfThisThread(), before);
        }).join();
    };
    int host = 0;
    countElsewhere();
    editor->open(&host);
    countElsewhere();
    editor->close();
    countElsewhere();

    const std::uint64_t before = locksOfThisThread();
    editor->handleParameterChange(1, 0.5);
    EXPECT_EQ(locksOfThisThread(), before + 1);
}

}  // namespace
