// The slots of the editor: what they show, and what their hot spots and the module menu do.
#include "CEditorFixture.h"

#include <algorithm>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class EditorChain : public CEditorFixture {
protected:
    EditorChain() {
        open();
        setChain({2, 3, 4});
    }

    /// Runs half a second of a constant input.
    /// @return whether the output is silent.
    bool isSilent(float input) const {
        constexpr int frames = 22050;
        std::vector<float> in(frames, input), left(frames), right(frames);
        float *inputs[] = {in.data(), in.data()}, *outputs[] = {left.data(), right.data()};
        effect->processReplacing(inputs, outputs, frames);
        return std::ranges::all_of(left, [](float sample) { return sample == 0.0f; });
    }
    /// Leaves sound in the lines of the delay, and takes it out of the chain.
    void fillDelay() const {
        effect->setParameter(47, 0.0f);  // the shortest time
        effect->setParameter(52, 1.0f);  // wet
        setChain({16});
        EXPECT_FALSE(isSilent(1.0f));
        setChain({4});
        EXPECT_TRUE(isSilent(0.0f));
    }
};

// Display

TEST_F(EditorChain, ShowsAModulePerSlot) {
    EXPECT_THAT(slotNames(),
                ElementsAre("Balance", "Pan", "Gain", "--No FX--", "--No FX--", "--No FX--"));
    EXPECT_EQ(slotName(2).getTextColour(), Tessitor::GUI::Basics::CAlphaColour(255, 255, 255));
    EXPECT_EQ(slotName(3).getTextColour(), Tessitor::GUI::Basics::CAlphaColour(208, 208, 208));
    EXPECT_EQ(panel(4).getArea().getLeft(), 257);
    EXPECT_EQ(panel(4).getArea().getTop(), 132);
}

TEST_F(EditorChain, NamesEveryModule) {
    const char *const names[] = {"Balance",       "Pan",        "Gain",     "3Band",
                                 "Rumble Filter", "HiPass",     "Presence", "Parametric",
                                 "Gate",          "Compressor", "DeEsser",  "Modulator 1",
                                 "Modulator 2",   "Warmer",     "Delay",    "Reverb"};
    for (int module = 2; module < 18; ++module) {
        setChain({module});
        EXPECT_EQ(slotNames()[0], names[module - 2]);
        EXPECT_THAT(shownPanels(), ElementsAre(module));
    }
}

TEST_F(EditorChain, ParksAndDisablesUnusedPanels) {
    setChain({3});
    EXPECT_THAT(shownPanels(), ElementsAre(3));
    for (int module = 2; module < 18; ++module) {
        EXPECT_EQ(panel(module).isEnabled(), module == 3) << module;
        EXPECT_EQ(panel(module).getArea().getLeft(), module == 3 ? 17 : -200) << module;
        EXPECT_EQ(controlsOf(panel(module))[2]->isEnabled(), module == 3) << module;
    }
}

TEST_F(EditorChain, EnablesAPanelThatComesBack) {
    setChain({});
    EXPECT_FALSE(panel(2).isEnabled());
    setChain({2});
    EXPECT_TRUE(panel(2).isEnabled());
}

TEST_F(EditorChain, RedrawsTheWindow) {
    fakeNatives().takeLog();
    editor->refreshChainDisplay();
    EXPECT_THAT(fakeNatives().takeLog(), testing::Contains("invalidate 0,0,748,370"));
}

TEST_F(EditorChain, LeavesTheSeventhModuleWhereItWas) {
    setChain({8});
    setChain({2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(slotNames()[5], "HiPass");
    EXPECT_EQ(panel(8).getArea().getLeft(), 17);
    EXPECT_TRUE(panel(8).isEnabled());
}

// Moving

TEST_F(EditorChain, MovesAModuleLeft) {
    click(MoveLeft, 2);
    EXPECT_THAT(chain(), ElementsAre(2, 4, 3));
    EXPECT_THAT(shownPanels(), ElementsAre(2, 4, 3));
    click(MoveLeft, 1);
    EXPECT_THAT(chain(), ElementsAre(4, 2, 3));
}

TEST_F(EditorChain, MovesAModuleRight) {
    click(MoveRight, 0);
    EXPECT_THAT(chain(), ElementsAre(3, 2, 4));
    EXPECT_THAT(shownPanels(), ElementsAre(3, 2, 4));
}

TEST_F(EditorChain, MovesBetweenTheLastSlots) {
    setChain({2, 3, 4, 5, 6, 7});
    click(MoveRight, 4);
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4, 5, 7, 6));
    click(MoveLeft, 5);
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4, 5, 6, 7));
}

TEST_F(EditorChain, DoesNotMoveIntoAnEmptySlot) {
    click(MoveRight, 2);
    click(MoveRight, 3);
    click(MoveLeft, 3);
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4));
}

TEST_F(EditorChain, HasNoHotSpotsBeyondTheEnds) {
    setChain({2, 3, 4, 5, 6, 7});
    click(MoveLeft, 0);
    click(MoveRight, 5);
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4, 5, 6, 7));
    EXPECT_FALSE(isMenuOpen());
}

// The ids of hot spots are also those of In, Modulator 1 and Delay, which open menus.
TEST_F(EditorChain, TakesNoHotSpotForAParameter) {
    setChain({2, 3, 4, 5, 6, 7});
    host.forgetCalls();
    for (int slot = 1; slot < 6; ++slot) {
        click(MoveLeft, slot);
        click(MoveRight, slot - 1);
        EXPECT_FALSE(isMenuOpen()) << slot;
    }
    EXPECT_THAT(host.calls(audioMasterAutomate), IsEmpty());
}

// Inserting

TEST_F(EditorChain, InsertsBeforeTheModuleOfTheSlot) {
    insert(1, 9);
    EXPECT_THAT(chain(), ElementsAre(2, 9, 3, 4));
    EXPECT_THAT(links(9), Pair(2, 3));
    EXPECT_THAT(links(3), Pair(9, 4));
    EXPECT_EQ(strip().getFXCount(), 4);
    EXPECT_THAT(shownPanels(), ElementsAre(2, 9, 3, 4));
}

TEST_F(EditorChain, InsertsIntoSlotZero) {
    insert(0, 17);
    EXPECT_THAT(chain(), ElementsAre(17, 2, 3, 4));
}

TEST_F(EditorChain, AppendsInWhicheverEmptySlot) {
    insert(5, 9);
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4, 9));
    EXPECT_THAT(links(9), Pair(4, -1));
    EXPECT_EQ(strip().getFXCount(), 4);
    EXPECT_EQ(slotNames()[3], "Parametric");
}

TEST_F(EditorChain, ResetsAModuleThatIsInserted) {
    fillDelay();
    insert(0, 16);
    EXPECT_TRUE(isSilent(0.0f));
}

// Kept: the delay plays what was left in it.
TEST_F(EditorChain, DoesNotResetAModuleThatIsAppended) {
    fillDelay();
    insert(1, 16);
    EXPECT_FALSE(isSilent(0.0f));
}

TEST_F(EditorChain, DoesNotResetAModuleThatReplacesAnother) {
    fillDelay();
    replace(0, 16);
    EXPECT_FALSE(isSilent(0.0f));
}

TEST_F(EditorChain, RemovesInInsertModeToo) {
    click(Insert, 1);
    chooseNoModule();
    EXPECT_THAT(chain(), ElementsAre(2, 4));
    EXPECT_THAT(shownPanels(), ElementsAre(2, 4));
    EXPECT_EQ(strip().getFXCount(), 2);
}

TEST_F(EditorChain, RemovesNothingFromAnEmptySlot) {
    click(Insert, 4);
    fakeNatives().takeLog();
    chooseNoModule();
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4));
    EXPECT_THAT(fakeNatives().takeLog(), testing::Not(testing::Contains("invalidate 0,0,748,370")));
}

TEST_F(EditorChain, OnlyRemovesFromAFullChain) {
    setChain({2, 3, 4, 5, 6, 7});
    insert(2, 9);
    EXPECT_TRUE(isMenuOpen());
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4, 5, 6, 7));
    chooseNoModule();
    EXPECT_FALSE(isMenuOpen());
    EXPECT_THAT(chain(), ElementsAre(2, 3, 5, 6, 7));
}

TEST_F(EditorChain, OffersNoModuleTwice) {
    insert(1, 4);
    EXPECT_TRUE(isMenuOpen());
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4));
}

// Replacing

TEST_F(EditorChain, ReplacesAndLeavesLopsidedLinks) {
    replace(1, 9);
    EXPECT_THAT(chain(), ElementsAre(2, 9, 4));
    EXPECT_THAT(shownPanels(), ElementsAre(2, 9, 4));
    EXPECT_THAT(links(2), Pair(1, 9));
    EXPECT_THAT(links(9), Pair(2, 4));
    EXPECT_THAT(links(3), Pair(-1, 4));
    EXPECT_THAT(links(4), Pair(3, -1));  // the old module
    EXPECT_EQ(strip().getFXCount(), 3);
}

TEST_F(EditorChain, InsertsThroughTheReplacedModule) {
    replace(1, 9);
    insert(2, 10);
    EXPECT_THAT(chain(), ElementsAre(2, 9, 4));
    EXPECT_THAT(links(10), Pair(3, 4));
    EXPECT_THAT(links(3), Pair(-1, 10));
    EXPECT_EQ(strip().getFXCount(), 4);
}

TEST_F(EditorChain, ReplacesInAFullChain) {
    setChain({2, 3, 4, 5, 6, 7});
    replace(5, 9);
    EXPECT_THAT(chain(), ElementsAre(2, 3, 4, 5, 6, 9));
}

TEST_F(EditorChain, RemovesInReplaceMode) {
    click(Replace, 0);
    chooseNoModule();
    EXPECT_THAT(chain(), ElementsAre(3, 4));
}

TEST_F(EditorChain, ReplacesNothingInAnEmptySlot) {
    click(Replace, 3);
    EXPECT_FALSE(isMenuOpen());
    click(Insert, 3);
    EXPECT_TRUE(isMenuOpen());
}

// A host that replaces the chain

TEST_F(EditorChain, FollowsAProgramAtTheNextIdle) {
    effect->setProgram(18);
    EXPECT_THAT(shownPanels(), ElementsAre(2, 3, 4));
    editor->idle();
    EXPECT_THAT(shownPanels(), ElementsAre(12, 15));
    EXPECT_EQ(slotNames()[1], "Warmer");
    fakeNatives().takeLog();
    editor->idle();
    EXPECT_THAT(fakeNatives().takeLog(), ElementsAre("pump"));
}

TEST_F(EditorChain, StaysWithTheProgramThatIsChosenAgain) {
    strip().initOrder();
    effect->setProgram(0);
    editor->idle();
    EXPECT_THAT(shownPanels(), ElementsAre(2, 3, 4));
}

TEST_F(EditorChain, FollowsAChunkAtTheNextIdle) {
    void *chunk = nullptr;
    effect->setProgram(18);
    const int size = effect->getChunk(&chunk, true);
    std::vector<char> bytes(static_cast<char *>(chunk), static_cast<char *>(chunk) + size);
    effect->setProgram(19);
    editor->idle();
    EXPECT_THAT(shownPanels(), IsEmpty());
    effect->setChunk(bytes.data(), size, true);
    EXPECT_THAT(shownPanels(), IsEmpty());
    editor->idle();
    EXPECT_THAT(shownPanels(), ElementsAre(12, 15));
}

TEST_F(EditorChain, FollowsWhileClosed) {
    editor->close();
    effect->setProgram(18);
    editor->idle();
    EXPECT_THAT(shownPanels(), ElementsAre(12, 15));
}

TEST_F(EditorChain, DoesNotFollowOnAnotherThread) {
    effect->setProgram(18);
    std::thread([this] { editor->idle(); }).join();
    EXPECT_THAT(shownPanels(), ElementsAre(2, 3, 4));
    editor->idle();
    EXPECT_THAT(shownPanels(), ElementsAre(12, 15));
}

TEST_F(EditorChain, IsUpToDateBeforeTheUserEditsIt) {
    effect->setProgram(18);
    click(MoveRight, 0);
    EXPECT_THAT(chain(), ElementsAre(15, 12));
    EXPECT_THAT(shownPanels(), ElementsAre(15, 12));
}

TEST_F(EditorChain, KeepsAModuleThatEnteredItWhileTheMenuWasOpen) {
    click(Insert, 1);
    effect->setProgram(18);
    chooseModule(12);
    EXPECT_THAT(chain(), ElementsAre(12, 15));
    EXPECT_THAT(shownPanels(), ElementsAre(12, 15));
}

TEST_F(EditorChain, ReplacesNothingIfTheSlotIsEmptyByNow) {
    click(Replace, 2);
    effect->setProgram(18);
    chooseModule(9);
    EXPECT_THAT(chain(), ElementsAre(12, 15));
    EXPECT_EQ(links(9), std::pair(-1, -1));
}

TEST_F(EditorChain, MayBeDeletedWhileItIdles) {
    effect->setProgram(18);
    fakeNatives().onPump = [this](INativeWindowListener &) { effect.reset(); };
    editor->idle();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

class EditorStart : public CEditorFixture {};

TEST_F(EditorStart, ShowsTheFirstProgram) {
    EXPECT_THAT(slotNames(), ElementsAre("Rumble Filter", "Compressor", "3Band", "Reverb",
                                         "--No FX--", "--No FX--"));
    EXPECT_THAT(shownPanels(), ElementsAre(6, 11, 5, 17));
}
