// What hosts change while the editor is open.
#include "DrivenEditor.h"

#include <thread>

namespace {

using Layout::EHotSpot;
using testing::ElementsAre;

class DrivenHostChanges : public DrivenEditor {
protected:
    static constexpr int levelKnob = kInGain;

    /// Whether the editor shows what a new one of an effect with the same program shows.
    void expectUpToDate() {
        driven.moveTo(Layout::empty);
        const CPicture picture = driven.picture();
        CEffectInHost other(*desktop, file);
        other.restore(driven.stored());
        other.open(CEffectInHost::lowerPlace);
        other.moveTo(Layout::empty);
        const auto [left, top, right, bottom] = differenceOutside(picture, other.picture(), {});
        EXPECT_EQ(right, 0) << "the editor shows something else from " << left << ", " << top
                            << " to " << right << ", " << bottom;
        other.close();
    }
};

TEST_F(DrivenHostChanges, EachProgramIsShown) {
    for (int program = 0; program < driven.effect.record().numPrograms; ++program) {
        SCOPED_TRACE(program);
        driven.effect.send(effSetProgram, 0, program);
        driven.settle();
        expectUpToDate();
    }
}

TEST_F(DrivenHostChanges, ABankIsShown) {
    CEffectInHost other(*desktop, file);
    other.effect.setParameter(kInGain, 0.9f);
    other.effect.setParameter(kCmpLink, 0.0f);
    driven.effect.send(effSetProgram, 0, 3);
    driven.effect.setChunk(other.effect.chunk(false), false);
    driven.settle();
    EXPECT_EQ(driven.effect.getParameter(kInGain), 0.9f);
    expectUpToDate();
}

TEST_F(DrivenHostChanges, EachParameterIsShown) {
    showChain({8, 9, 10, 11, 12, 13});
    for (int id = 0; id < driven.effect.record().numParams; ++id)
        driven.effect.setParameter(id, id % 2 == 0 ? 1.0f : 0.125f);
    driven.settle();
    expectUpToDate();
    showChain({14, 15, 16, 17, 5, 2});
    expectUpToDate();
}

TEST_F(DrivenHostChanges, AnotherThreadIsShownAtTheNextIdle) {
    driven.moveTo(Layout::empty);
    const CPicture before = driven.picture();
    std::thread([this] { driven.effect.setParameter(levelKnob, 0.9f); }).join();
    EXPECT_EQ(driven.effect.getParameter(levelKnob), 0.9f);
    desktop->settle([] {});
    EXPECT_EQ(driven.picture(), before);
    driven.settle();
    EXPECT_TRUE(differWithin(before, driven.picture(), Layout::topRow[0].area));
    expectUpToDate();
}

TEST_F(DrivenHostChanges, TheLastValueOfAnotherThreadIsShownWhenOpenedAgain) {
    std::thread([this] { driven.effect.setParameter(levelKnob, 0.9f); }).join();
    driven.close();
    std::thread([this] { driven.effect.setParameter(levelKnob, 0.125f); }).join();
    driven.open();
    expectUpToDate();
}

TEST_F(DrivenHostChanges, AUserGoesOnWhereTheHostHasPutAKnob) {
    driven.drag({40, 40}, 10, 0);
    driven.effect.setParameter(levelKnob, 0.75f);
    takeAutomation();
    driven.drag({40, 40}, 20, 0);
    EXPECT_THAT(takeAutomation(),
                ElementsAre(SAutomation{levelKnob, static_cast<float>(0.75 + 20 * 0.005)}));
    std::thread([this] { driven.effect.setParameter(levelKnob, 0.5f); }).join();
    driven.settle();
    driven.drag({40, 40}, 20, 0);
    EXPECT_THAT(takeAutomation(),
                ElementsAre(SAutomation{levelKnob, static_cast<float>(0.5 + 20 * 0.005)}));
}

// A program that arrives while the menu is open, and has the module that the user then chooses
TEST_F(DrivenHostChanges, AModuleIsNotInsertedTwice) {
    showChain({2});
    driven.clickHotSpot(EHotSpot::Insert, 1);
    SStoredProgram program = driven.stored();
    program.links = chainOf({9, 17});
    driven.restore(program);
    driven.choose(17 - kFirstModuleSlot, 17);
    EXPECT_EQ(driven.stored().links, program.links);
    driven.settle();
    expectUpToDate();
}

}  // namespace
