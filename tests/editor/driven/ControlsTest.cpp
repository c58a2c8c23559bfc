// Users turn each knob and press each button. The screen, the host and the stored program follow.
#include "DrivenEditor.h"

namespace {

using Layout::centreOf;
using Layout::EControl;
using Layout::SControl;
using testing::ElementsAre;
using testing::IsEmpty;

/// All controls of the editor, six modules at a time.
class DrivenControls : public DrivenEditor {
protected:
    /// Calls `act` with each control of a kind in the whole editor, with six modules at a time.
    template <typename Act>
    void forEach(EControl kind, Act act) {
        actOn(Layout::topRow, kind, act);
        for (const std::vector<int> &modules :
             {std::vector{2, 3, 4, 5, 6, 7}, {8, 9, 10, 11, 12, 13}, {17, 16, 15, 14, 13, 12}}) {
            showChain(modules);
            for (int slot = 0; slot < Layout::slotCount; ++slot)
                actOn(Layout::controlsIn(slot, modules[static_cast<std::size_t>(slot)]), kind, act);
        }
    }

    /// The host sets a value, which no test has set before for that parameter.
    void begin(const SControl &control, float value) {
        driven.effect.setParameter(control.id, value);
        driven.moveTo(Layout::empty);
        host.forgetCalls();
        before = driven.picture();
        stored = driven.stored();
    }
    /// That it has reached the host, the effect, the stored program and the screen.
    void expectValue(const SControl &control, float value) {
        EXPECT_THAT(takeAutomation(), ElementsAre(SAutomation{control.id, value}));
        expectStored(control, value);
        expectShown(control);
    }
    void expectStored(const SControl &control, float value) {
        EXPECT_EQ(driven.effect.getParameter(control.id), value);
        stored.parameters.at(static_cast<std::size_t>(control.id)) = value;
        EXPECT_EQ(driven.stored(), stored);
    }
    /// That control and text look different, and nothing else does.
    void expectShown(const SControl &control) {
        const CPicture after = driven.picture();
        EXPECT_TRUE(differWithin(before, after, control.area)) << "the control looks the same";
        EXPECT_TRUE(differWithin(before, after, control.label)) << "the text looks the same";
        expectOnlyDifferent(after, {control.area, control.label});
    }
    void expectOnlyDifferent(const CPicture &after, const std::vector<SNativeRect> &areas) {
        const SNativeRect more = differenceOutside(before, after, areas);
        EXPECT_EQ(more.right, 0) << "something changed from " << more.left << ", " << more.top
                                 << " to " << more.right << ", " << more.bottom;
    }

    CPicture before = driven.picture();
    SStoredProgram stored{};

private:
    template <typename Act>
    static void actOn(std::span<const SControl> controls, EControl kind, Act act) {
        for (const SControl &control : controls) {
            SCOPED_TRACE("parameter " + std::to_string(control.id));
            if (control.kind == kind)
                act(control);
        }
    }
};

// Draggable knobs

TEST_F(DrivenControls, ADragRightTurnsAKnobUp) {
    forEach(EControl::Knob, [this](const SControl &knob) {
        begin(knob, 0.25f);
        driven.drag(centreOf(knob.area), 60, 0);
        expectValue(knob, static_cast<float>(0.25 + 60 * 0.005));
    });
}

TEST_F(DrivenControls, ADragDownTurnsAKnobDown) {
    forEach(EControl::Knob, [this](const SControl &knob) {
        begin(knob, 0.75f);
        driven.drag(centreOf(knob.area), 0, 70);
        expectValue(knob, static_cast<float>(0.75 + -70 * 0.005));
    });
}

TEST_F(DrivenControls, ANotchOfTheWheelTurnsAKnob) {
    forEach(EControl::Knob, [this](const SControl &knob) {
        begin(knob, 0.25f);
        driven.turnWheelAt(centreOf(knob.area), 1);
        expectValue(knob, static_cast<float>(0.25 + 0.025));
        begin(knob, 0.6875f);
        driven.turnWheelAt(centreOf(knob.area), -1);
        expectValue(knob, static_cast<float>(0.6875 - 0.025));
    });
}

TEST_F(DrivenControls, ADoubleClickSetsAKnobToTheMiddle) {
    forEach(EControl::Knob, [this](const SControl &knob) {
        begin(knob, 0.125f);
        driven.doubleClickAt(centreOf(knob.area));
        expectValue(knob, 0.5f);
    });
}

TEST_F(DrivenControls, AKnobChangesDuringTheDrag) {
    const SControl &knob = Layout::topRow[0];
    begin(knob, 0.25f);
    driven.pressAt(centreOf(knob.area));
    EXPECT_THAT(takeAutomation(), IsEmpty());
    driven.moveTo({90, 40});  // 50 to the right
    expectValue(knob, 0.5f);
    driven.moveTo({740, 40});
    EXPECT_THAT(takeAutomation(), ElementsAre(SAutomation{knob.id, 1.0f}));
    driven.moveTo({745, 40});
    EXPECT_THAT(takeAutomation(), IsEmpty()) << "the end is reached";
    desktop->release();
    driven.moveTo({40, 40});
    EXPECT_THAT(takeAutomation(), IsEmpty());
}

TEST_F(DrivenControls, ADragGoesOnOutsideTheWindow) {
    const SControl &knob = Layout::topRow[0];
    begin(knob, 0.5f);
    driven.drag(centreOf(knob.area), 0, -75);
    expectValue(knob, static_cast<float>(0.5 + 75 * 0.005));
}

// Buttons

TEST_F(DrivenControls, AClickLatchesAButton) {
    forEach(EControl::Button, [this](const SControl &button) {
        begin(button, 0.0f);
        driven.clickAt(centreOf(button.area));
        expectValue(button, 1.0f);
        before = driven.picture();
        driven.clickAt(centreOf(button.area));
        expectValue(button, 0.0f);
    });
}

// Knobs that open a menu

TEST_F(DrivenControls, EachItemOfAMenuSetsItsValue) {
    forEach(EControl::MenuKnob, [this](const SControl &knob) {
        const std::span<const double> values = Layout::menuValues(knob.id);
        begin(knob, static_cast<float>(values.back()));
        for (std::size_t item = 0; item < values.size(); ++item) {
            SCOPED_TRACE("item " + std::to_string(item));
            before = driven.picture();
            driven.clickAt(centreOf(knob.area));
            EXPECT_EQ(desktop->countMenus(), 1);
            EXPECT_THAT(takeAutomation(), IsEmpty());
            driven.choose(static_cast<int>(item), static_cast<int>(values.size()));
            EXPECT_EQ(desktop->countMenus(), 0);
            expectValue(knob, static_cast<float>(values[item]));
        }
    });
}

TEST_F(DrivenControls, AMenuOpensAtTheMouse) {
    forEach(EControl::MenuKnob, [this](const SControl &knob) {
        const SNativePoint position = {centreOf(knob.area).x + 3, centreOf(knob.area).y - 2};
        driven.clickAt(position);
        const auto menu = desktop->openMenu();
        ASSERT_TRUE(menu.has_value());
        EXPECT_EQ(menu->left, driven.onScreen(position).x);
        EXPECT_EQ(menu->top, driven.onScreen(position).y);
        driven.clickAt(Layout::empty);
        EXPECT_EQ(desktop->countMenus(), 0);
    });
}

TEST_F(DrivenControls, ADragOfAMenuKnobChangesNothing) {
    forEach(EControl::MenuKnob, [this](const SControl &knob) {
        begin(knob, 0.0f);
        driven.drag(centreOf(knob.area), -60, -60);
        driven.clickAt(Layout::empty);
        EXPECT_THAT(takeAutomation(), IsEmpty());
        EXPECT_EQ(driven.stored(), stored);
        EXPECT_EQ(desktop->countMenus(), 0);
        driven.settle();
        expectOnlyDifferent(driven.picture(), {});
    });
}

// Kept: the knob turns, but the parameter does not follow.
TEST_F(DrivenControls, TheWheelOpensTheMenuOfAMenuKnob) {
    forEach(EControl::MenuKnob, [this](const SControl &knob) {
        begin(knob, 0.0f);
        driven.turnWheelAt(centreOf(knob.area), 1);
        EXPECT_EQ(desktop->countMenus(), 1);
        driven.clickAt(Layout::empty);
        EXPECT_THAT(takeAutomation(), IsEmpty());
        EXPECT_EQ(driven.stored(), stored);
        expectOnlyDifferent(driven.picture(), {knob.area});
    });
}

TEST_F(DrivenControls, TheWheelDoesNotOpenASecondMenu) {
    showChain({2, 3, 4, 5, 13});
    const SControl &input = Layout::topRow[1];
    const SControl modulation = Layout::controlsIn(4, 13)[0];
    driven.clickAt(centreOf(input.area));
    ASSERT_EQ(desktop->countMenus(), 1);
    driven.turnWheelAt(centreOf(modulation.area), 1);
    EXPECT_LE(desktop->countMenus(), 1);
    driven.clickAt(Layout::empty);
    EXPECT_EQ(desktop->countMenus(), 0);
}

}  // namespace
