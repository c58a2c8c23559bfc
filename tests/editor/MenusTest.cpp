// The menus of the editor: what they offer, where they open, and the values that they set.
#include "CEditorFixture.h"
#include "CMenuSpy.h"
#include "platform/INativeSurface.h"

using Tessitor::GUI::Controls::CMenuItem;
using Tessitor::GUI::Events::CMenuEvent;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class EditorMenus : public CEditorFixture {
protected:
    EditorMenus() {
        editor = &spy;
        open();
        setChain({2, 13, 14, 16});
    }

    using Items = std::vector<std::pair<std::string, int>>;
    /// The texts and ids of the menu that a click opens.
    Items itemsBehind(int id) {
        click(control(id));
        return items();
    }
    Items items() const {
        Items found;
        if (spy.lastMenu != nullptr)
            spy.lastMenu->forEachItem([&](const CMenuItem &item) {
                found.emplace_back(item.getText().getString(), item.getId());
            });
        return found;
    }
    std::vector<int> disabledIds() const {
        std::vector<int> ids;
        spy.lastMenu->forEachItem([&](const CMenuItem &item) {
            if (!item.isEnabled())
                ids.push_back(item.getId());
        });
        return ids;
    }
    std::string title() const { return spy.lastMenu->getMenuTitle().getString(); }

    CMenuSpy spy{effect.get(), CRect(0, 0, 748, 370),
                 Tessitor::GUI::Windowing::CWindowAttributes()};
};

// What they offer

TEST_F(EditorMenus, OfferTheModules) {
    click(Insert, 5);
    EXPECT_THAT(items(),
                ElementsAre(Pair("Balance", 2), Pair("Pan", 3), Pair("Gain", 4), Pair("3Band", 5),
                            Pair("Rumble Filter", 6), Pair("HiPass", 7), Pair("Presence", 8),
                            Pair("Parametric", 9), Pair("Gate", 10), Pair("Compressor", 11),
                            Pair("DeEsser", 12), Pair("Modulator 1", 13), Pair("Modulator 2", 14),
                            Pair("Warmer", 15), Pair("Delay", 16), Pair("Reverb", 17),
                            Pair("--No FX--", -1)));
}

TEST_F(EditorMenus, AreTitledByWhatTheyDo) {
    click(Insert, 0);
    EXPECT_EQ(title(), "Insert FX");
    click(Replace, 0);
    EXPECT_EQ(title(), "Replace FX");
}

TEST_F(EditorMenus, DisableTheModulesOfTheChain) {
    click(Insert, 0);
    EXPECT_THAT(disabledIds(), ElementsAre(2, 13, 14, 16));
    setChain({17});
    click(Replace, 0);
    EXPECT_THAT(disabledIds(), ElementsAre(17));
}

TEST_F(EditorMenus, DisableAllModulesToInsertIfTheChainIsFull) {
    setChain({2, 3, 4, 5, 6, 7});
    click(Insert, 0);
    EXPECT_THAT(disabledIds(), ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17));
    click(Replace, 0);
    EXPECT_THAT(disabledIds(), ElementsAre(2, 3, 4, 5, 6, 7));
}

TEST_F(EditorMenus, OfferTheStereoModes) {
    const Items modes = {{"Combine", -13}, {"All Left", -12}, {"All Right", -11}, {"Stereo", -10}};
    EXPECT_EQ(itemsBehind(1), modes);
    EXPECT_EQ(itemsBehind(61), modes);
}

TEST_F(EditorMenus, OfferTheChoicesOfAPanel) {
    EXPECT_THAT(itemsBehind(32),
                ElementsAre(Pair("Vibrato", -34), Pair("ADT", -33), Pair("Phaser", -32)));
    EXPECT_THAT(itemsBehind(39),
                ElementsAre(Pair("Vibrato", -41), Pair("ADT", -40), Pair("Phaser", -39)));
    EXPECT_THAT(itemsBehind(48), ElementsAre(Pair("Fixed Time", -50), Pair("4th / Crotchet", -48),
                                             Pair("8th / Quaver", -49)));
}

// How they open

TEST_F(EditorMenus, OpenAtTheMouse) {
    for (const int id : {1, 61, 32, 39, 48}) {
        fakeNativeMouse().position = {100 + id, 500 - id};
        click(control(id));
        ASSERT_TRUE(isMenuOpen()) << id;
        const SNativeWindowOptions &menu = fakeNatives().windows.back()->options;
        EXPECT_EQ(menu.bounds.left, 100 + id);
        EXPECT_EQ(menu.bounds.top, 500 - id);
        EXPECT_EQ(menu.parent, &nativeOf(*editor)) << id;
        choose(0, id == 1 || id == 61 ? 4 : 3);
        EXPECT_FALSE(isMenuOpen()) << id;
    }
}

TEST_F(EditorMenus, ForModulesOpenAtTheMouse) {
    for (const EHotSpot hotSpot : {Insert, Replace}) {
        fakeNativeMouse().position = {100 + hotSpot, 500 - hotSpot};
        click(hotSpot, 0);
        ASSERT_TRUE(isMenuOpen());
        EXPECT_EQ(fakeNatives().windows.back()->options.bounds.left, 100 + hotSpot);
        EXPECT_EQ(fakeNatives().windows.back()->options.bounds.top, 500 - hotSpot);
        EXPECT_EQ(fakeNatives().windows.back()->options.parent, &nativeOf(*editor));
        chooseNoModule();
        EXPECT_FALSE(isMenuOpen());
    }
}

TEST_F(EditorMenus, AreATouchTranslucent) {
    for (const int id : {1, 32, 48}) {
        fakeNatives().takeLog();
        click(control(id));
        EXPECT_THAT(fakeNatives().takeLog(), testing::Contains("alpha 216")) << id;
    }
}

TEST_F(EditorMenus, CloseWithTheEditor) {
    for (const int id : {1, 32, 39, 48}) {
        click(control(id));
        EXPECT_TRUE(isMenuOpen()) << id;
        editor->close();
        EXPECT_THAT(fakeNatives().windows, IsEmpty()) << id;
        open();
        EXPECT_FALSE(isMenuOpen()) << id;
    }
    click(Insert, 0);
    editor->close();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(EditorMenus, CloseWhenTheHostDestroysTheWindow) {
    click(Insert, 0);
    CFakeNativeWindow &native = nativeOf(*editor);
    native.listener.handleNativeDestroyed();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
}

TEST_F(EditorMenus, CloseWhenTheEditorMovesToAnotherParent) {
    click(Insert, 0);
    int another = 0;
    editor->open(&another);
    EXPECT_FALSE(isMenuOpen());
}

TEST_F(EditorMenus, CloseWhenAnotherOneOpens) {
    for (const int id : {1, 32, 39, 48, 61}) {
        click(control(id));
        EXPECT_EQ(fakeNatives().windows.size(), 2u) << id;
    }
    click(Insert, 0);
    EXPECT_EQ(fakeNatives().windows.size(), 2u);
    click(control(1));
    EXPECT_EQ(fakeNatives().windows.size(), 2u);
}

TEST_F(EditorMenus, MayBeOpenWhenTheEditorIsDeleted) {
    constexpr int noId = -1;  // the menu of a hot spot
    for (const int id : {1, 61, 32, 39, 48, noId}) {
        SCOPED_TRACE(id);
        auto *deleted = new CMenuSpy(effect.get(), CRect(0, 0, 748, 370),
                                     Tessitor::GUI::Windowing::CWindowAttributes());
        editor = deleted;
        open();
        if (id == noId)
            click(Insert, 0);
        else
            click(control(id));
        const INativeWindowListener *const parentOfMenu = &nativeOf(*editor).listener;
        const INativeWindowListener *last = nullptr;
        fakeNatives().onDestroy = [&](INativeWindowListener &listener) { last = &listener; };
        delete deleted;
        fakeNatives().onDestroy = nullptr;
        EXPECT_EQ(fakeNatives().windows.size(), 1u);
        EXPECT_EQ(last, parentOfMenu);
    }
}

// The values that they set

class EditorMenuValues : public CEditorFixture {
protected:
    EditorMenuValues() {
        open();
        setChain({13, 14, 16});
        host.forgetCalls();
        effect->wasEditing.clear();
    }

    /// Chooses an item from the menu of a parameter.
    void chooseFor(int id, int item, int numberOfItems) {
        host.forgetCalls();
        click(control(id));
        EXPECT_THAT(host.calls(audioMasterAutomate), IsEmpty()) << id;
        choose(item, numberOfItems);
    }
    void turnWheelOver(const CControl &knob) const {
        const CRect &area = knob.getAbsoluteRect();
        fakeNativeMouse().position = {area.getCentreX(), area.getCentreY()};
        constexpr std::uintptr_t oneNotch = 120u << 16;
        nativeOf(*editor).listener.handleMessage(NativeMouseWheel, oneNotch, 0);
    }
    /// The frame that the knob of a parameter shows.
    int frameOf(int id) const {
        CFakeNativeWindow &window = nativeOf(*editor);
        fakeNatives().screen = createNativeSurface(nullptr, 748, 370, {0, 0, 0});
        window.dirty = {0, 0, 748, 370};
        window.listener.handleMessage(NativePaint, 0, 0);
        const auto &knob = dynamic_cast<const Tessitor::GUI::Controls::CAnimation &>(control(id));
        return knob.getFrameArea().getTop() / knob.getFrameHeight();
    }
    void expectSet(int id, double value) const {
        const auto calls = host.calls(audioMasterAutomate);
        ASSERT_EQ(calls.size(), 1u);
        EXPECT_EQ(calls[0].index, id);
        EXPECT_EQ(calls[0].opt, static_cast<float>(value));
        EXPECT_EQ(effect->getParameter(id), static_cast<float>(value));
        EXPECT_EQ(control(id).getValue(), value);
        EXPECT_EQ(valueText(id), expectedText(id));
        EXPECT_FALSE(editor->getIsEditing());
    }
};

TEST_F(EditorMenuValues, FollowTheStereoModes) {
    for (const int id : {1, 61})
        for (const int mode : {0, 1, 2, 3}) {
            SCOPED_TRACE(mode);
            chooseFor(id, mode, 4);
            expectSet(id, mode / 3.0);
        }
}

TEST_F(EditorMenuValues, FollowTheKindsOfModulation) {
    for (const int id : {32, 39})
        for (const int kind : {2, 0, 1}) {
            chooseFor(id, kind, 3);
            expectSet(id, kind * 0.5);
        }
}

TEST_F(EditorMenuValues, FollowTheKindsOfDelay) {
    const double values[] = {0.0, 1.0, 0.5};  // not in order
    for (const int kind : {1, 2, 0}) {
        chooseFor(48, kind, 3);
        expectSet(48, values[kind]);
    }
}

// The other frames of Modulation.png are for values that no menu sets.
TEST_F(EditorMenuValues, AreShownByTheirFrames) {
    const std::pair<int, std::vector<int>> expected[] = {
        {1, {0, 1, 2, 3}}, {61, {0, 1, 2, 3}}, {32, {0, 5, 10}}, {39, {0, 5, 10}}, {48, {0, 2, 1}}};
    for (const auto &[id, frames] : expected)
        for (std::size_t item = 0; item < frames.size(); ++item) {
            chooseFor(id, static_cast<int>(item), static_cast<int>(frames.size()));
            EXPECT_EQ(frameOf(id), frames[item]) << id;
        }
}

// Kept: the knob turns, but its parameter does not follow.
TEST_F(EditorMenuValues, AreLeftAloneByWheelAndDoubleClick) {
    for (const int id : {1, 61, 32, 39, 48}) {
        SCOPED_TRACE(id);
        const float before = effect->getParameter(id);
        const CRect &area = control(id).getAbsoluteRect();
        send(NativeDoubleClick, area.getCentreX(), area.getCentreY());
        EXPECT_TRUE(isMenuOpen());
        EXPECT_EQ(control(id).getValue(), 0.5);
        editor->close();
        open();
        turnWheelOver(control(id));
        EXPECT_TRUE(isMenuOpen());
        EXPECT_EQ(control(id).getValue(), 0.525);
        EXPECT_EQ(effect->getParameter(id), before);
        editor->close();
        open();
    }
    EXPECT_THAT(host.calls(audioMasterAutomate), IsEmpty());
}

TEST_F(EditorMenuValues, AreChangesOfTheEditorItself) {
    chooseFor(1, 1, 4);
    EXPECT_THAT(effect->wasEditing, ElementsAre(true));
}

TEST_F(EditorMenuValues, HaveNoMeaningForOtherIds) {
    for (const int id : {-9, -14, -31, -35, -38, -42, -47, -51, -1000}) {
        CMenuEvent event(new CMenuItem("", id), nullptr, nullptr);
        editor->menuSelected(event);
    }
    EXPECT_THAT(effect->wasEditing, IsEmpty());
    EXPECT_THAT(host.calls(audioMasterAutomate), IsEmpty());
    EXPECT_THAT(chain(), ElementsAre(13, 14, 16));
}
