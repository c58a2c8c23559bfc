// The values that the editor shows and sets.
#include "CEditorFixture.h"
#include "toolkit/menus/CMenuEvent.h"

#include <numeric>
#include <thread>

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

namespace {

std::vector<int> allParameters() {
    std::vector<int> ids(62);
    std::iota(ids.begin(), ids.end(), 0);
    return ids;
}

}  // namespace

class EditorValues : public CEditorFixture {
protected:
    EditorValues() { open(); }

    /// What the host has heard: parameter and value.
    std::vector<std::pair<int, float>> automation() const {
        std::vector<std::pair<int, float>> changes;
        for (const SHostCall &call : host.calls(audioMasterAutomate))
            changes.emplace_back(call.index, call.opt);
        return changes;
    }
    void drag(int id, int pixels) {
        const CRect &area = control(id).getAbsoluteRect();
        send(NativeLeftDown, area.getCentreX(), area.getCentreY());
        send(NativeMouseMove, area.getCentreX() + pixels, area.getCentreY());
        send(NativeLeftUp, area.getCentreX() + pixels, area.getCentreY());
    }
    void setElsewhere(int id, float value) {
        std::thread([=, this] { effect->setParameter(id, value); }).join();
    }
    void expectShown(int id) const {
        EXPECT_EQ(control(id).getValue(), effect->getParameter(id)) << id;
        EXPECT_EQ(valueText(id), expectedText(id)) << id;
    }
};

TEST_F(EditorValues, AllAreShownFromTheStart) {
    for (const int id : allParameters())
        expectShown(id);
    EXPECT_EQ(valueText(20), "-20.10dB");
    EXPECT_THROW(control(62), std::out_of_range);
    EXPECT_THROW(control(63), std::out_of_range);
}

TEST_F(EditorValues, FollowTheHostAtOnce) {
    for (const int id : allParameters())
        for (const float value : {0.25f, 1.0f}) {
            effect->setParameter(id, value);
            EXPECT_EQ(control(id).getValue(), value) << id;
            expectShown(id);
        }
    EXPECT_THAT(automation(), IsEmpty());
}

TEST_F(EditorValues, FollowTheHostWhileTheEditorIsClosed) {
    editor->close();
    effect->setParameter(5, 0.125f);
    EXPECT_EQ(control(5).getValue(), 0.125);
    expectShown(5);
}

TEST_F(EditorValues, FollowAProgramAtOnce) {
    effect->setProgram(4);
    for (const int id : allParameters())
        expectShown(id);
}

// Kept: the text of Time depends on Sync, which follows it in a program, and is not made anew.
TEST_F(EditorValues, ShowTheTimeOfADelayForTheSyncOfBefore) {
    const std::string before = valueText(47);
    effect->setParameter(48, 1.0f);
    EXPECT_EQ(valueText(47), before);
    EXPECT_NE(expectedText(47), before);
}

TEST_F(EditorValues, FollowAChunkAtOnce) {
    void *chunk = nullptr;
    effect->setProgram(4);
    const int size = effect->getChunk(&chunk, true);
    std::vector<char> bytes(static_cast<char *>(chunk), static_cast<char *>(chunk) + size);
    effect->setProgram(0);
    effect->setChunk(bytes.data(), size, true);
    EXPECT_EQ(control(11).getValue(), double{0.595f});
    for (const int id : allParameters())
        expectShown(id);
}

TEST_F(EditorValues, WaitForIdleIfAnotherThreadSetsThem) {
    const double before = control(5).getValue();
    const std::string textBefore = valueText(5);
    setElsewhere(5, 0.125f);
    EXPECT_EQ(control(5).getValue(), before);
    EXPECT_EQ(valueText(5), textBefore);
    editor->idle();
    EXPECT_EQ(control(5).getValue(), 0.125);
    expectShown(5);
}

TEST_F(EditorValues, AreRedrawnWhenTheyChange) {
    fakeNatives().takeLog();
    editor->setParameter(0, 0.25);
    EXPECT_THAT(fakeNatives().takeLog(),
                ElementsAre("invalidate 28,28,52,52", "invalidate 16,51,64,64"));
    EXPECT_EQ(control(0).getValue(), 0.25);
}

TEST_F(EditorValues, AreNotTouchedIfTheyAreShownAlready) {
    editor->setParameter(0, 0.25);
    control(0).setValue(0.75);
    fakeNatives().takeLog();
    editor->setParameter(0, 0.25);
    EXPECT_THAT(fakeNatives().takeLog(), IsEmpty());
    EXPECT_EQ(control(0).getValue(), 0.75);
}

// The comparison is with the value as a float.
TEST_F(EditorValues, AreShownAgainIfNoFloatEqualsThem) {
    editor->setParameter(0, 0.1);
    fakeNatives().takeLog();
    editor->setParameter(0, 0.1);
    EXPECT_THAT(fakeNatives().takeLog(), testing::Not(IsEmpty()));
}

TEST_F(EditorValues, WithoutControlAreIgnored) {
    fakeNatives().takeLog();
    editor->setParameter(62, 0.5);
    editor->setParameter(63, 0.5);
    EXPECT_THAT(fakeNatives().takeLog(), IsEmpty());
}

TEST_F(EditorValues, CanBeReadAgainFromTheEffect) {
    for (const int id : {5, 61}) {
        control(id).setValue(0.0);
        valueLabel(id).setText("?");
    }
    editor->updateParameterControl(5);
    expectShown(5);
    EXPECT_EQ(valueText(61), "?");
    editor->updateParameterControls();
    expectShown(61);
}

TEST_F(EditorValues, AreRememberedWhenTheyAreRead) {
    editor->setParameter(5, 0.125);
    editor->updateParameterControl(5);
    control(5).setValue(0.875);
    editor->setParameter(5, double{effect->getParameter(5)});
    EXPECT_EQ(control(5).getValue(), 0.875);
}

// The user

TEST_F(EditorValues, GoToTheHostWhenAKnobIsDragged) {
    effect->setParameter(0, 0.5f);
    effect->wasEditing.clear();
    drag(0, 20);
    EXPECT_THAT(automation(), ElementsAre(std::pair(0, 0.6f)));
    EXPECT_EQ(effect->getParameter(0), 0.6f);
    EXPECT_EQ(valueText(0), expectedText(0));
    EXPECT_THAT(effect->wasEditing, ElementsAre(true));
    EXPECT_FALSE(editor->getIsEditing());
    EXPECT_EQ(control(0).getValue(), 0.6);  // not narrowed by a way through the effect
}

TEST_F(EditorValues, GoToTheHostFromEveryKnobOnAPanel) {
    for (int module = 2; module < 18; ++module) {
        setChain({module});
        for (const CControl *shown : controlsOf(panel(module))) {
            const auto *knob = dynamic_cast<const Tessitor::GUI::Controls::CAnimation *>(shown);
            const int id = shown->getUniqueId();
            if (knob == nullptr || id == 32 || id == 39 || id == 48)
                continue;
            effect->setParameter(id, 0.5f);
            host.forgetCalls();
            drag(id, -20);
            EXPECT_THAT(automation(), ElementsAre(std::pair(id, 0.4f)));
            EXPECT_EQ(valueText(id), expectedText(id)) << id;
        }
    }
}

TEST_F(EditorValues, GoToTheHostFromEveryButton) {
    const std::pair<int, int> buttons[] = {{11, 25}, {12, 30}, {12, 31}, {16, 50}};
    for (const auto &[module, id] : buttons) {
        setChain({module});
        effect->setParameter(id, 0.0f);
        host.forgetCalls();
        click(control(id));
        EXPECT_EQ(valueText(id), expectedText(id)) << id;
        click(control(id));
        EXPECT_THAT(automation(), ElementsAre(std::pair(id, 1.0f), std::pair(id, 0.0f)));
    }
}

// Kept: a drag does not count as shown, so a host that goes back to the value of before is ignored.
TEST_F(EditorValues, OfADragAreNotRemembered) {
    effect->setParameter(0, 0.5f);
    drag(0, 20);
    effect->setParameter(0, 0.5f);
    EXPECT_EQ(control(0).getValue(), 0.6);
    effect->setParameter(0, 0.25f);
    expectShown(0);
}

// A host that repeats the value of a drag narrows what the knob shows.
TEST_F(EditorValues, AreShownEvenIfTheEffectHasThemAlready) {
    effect->setParameter(0, 0.5f);
    drag(0, 20);
    EXPECT_EQ(control(0).getValue(), 0.6);
    effect->setParameter(0, effect->getParameter(0));
    EXPECT_EQ(control(0).getValue(), double{0.6f});
}

// Without an effect

TEST_F(EditorValues, NeedNoEffect) {
    CCorvelEditor alone(nullptr, CRect(0, 0, 748, 370),
                        Tessitor::GUI::Windowing::CWindowAttributes());
    editor = &alone;
    open();
    for (int id = 0; id < 64; ++id)
        editor->setParameter(id, 0.25);
    EXPECT_EQ(control(5).getValue(), 0.25);
    fakeNatives().takeLog();
    const std::size_t windows = fakeNatives().windows.size();
    click(Insert, 0);
    click(MoveRight, 0);
    click(control(1));
    drag(0, 20);
    Tessitor::GUI::Controls::CMenuItem *item =
        new Tessitor::GUI::Controls::CMenuItem("Combine", -13);
    Tessitor::GUI::Events::CMenuEvent event(item, nullptr, nullptr);
    editor->menuSelected(event);
    EXPECT_EQ(fakeNatives().windows.size(), windows);
    editor->updateParameterControls();
    editor->refreshChainDisplay();
    editor->handleChainChange();
    editor->idle();
}
