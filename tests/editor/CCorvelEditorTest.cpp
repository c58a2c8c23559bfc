// The editor as a window: its life, its help page, and what it looks like.
#include "editor/CCorvelEditor.h"

#include "CEditorFixture.h"
#include "CMenuSpy.h"
#include "editor/EditorImages.h"
#include "platform/INativeSurface.h"
#include "toolkit/menus/FakeNativeShell.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr SNativeColour outside{9, 9, 9}, black{0, 0, 0}, white{255, 255, 255}, grey{208, 208, 208},
    purple{153, 116, 188}, green{102, 200, 85}, blue{85, 86, 200}, picture{1, 2, 3};

/// What a window has painted.
class CPainted {
public:
    explicit CPainted(CFakeNativeWindow &window)
        : m_width(window.options.bounds.right - window.options.bounds.left),
          m_height(window.options.bounds.bottom - window.options.bounds.top) {
        fakeNatives().screen = createNativeSurface(nullptr, m_width, m_height, outside);
        window.dirty = {0, 0, m_width, m_height};
        window.listener.handleMessage(NativePaint, 0, 0);
    }
    SNativeColour at(int x, int y) const { return fakeNatives().screen->getPixel({x, y}); }
    /// How many pixels of an area have a colour.
    int count(const SNativeRect &area, const SNativeColour &colour) const {
        int found = 0;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                found += at(x, y) == colour ? 1 : 0;
        return found;
    }
    /// The colour in an area that differs most from that of its corner. Small letters may not reach
    /// the colour of the text.
    SNativeColour ink(const SNativeRect &area) const {
        const SNativeColour ground = at(area.left, area.top);
        SNativeColour most = ground;
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (difference(at(x, y), ground) > difference(most, ground))
                    most = at(x, y);
        return most;
    }
    /// The ink of a menu's item.
    SNativeColour inkOf(int item, int numberOfItems) const {
        const int top = item * m_height / numberOfItems;
        return ink({1, top + 1, m_width - 1, top + m_height / numberOfItems - 1});
    }
    /// The colour of the first pixel inside the frame.
    SNativeColour corner() const { return at(1, 1); }

private:
    static int difference(const SNativeColour &one, const SNativeColour &other) {
        return std::abs(one.red - other.red) + std::abs(one.green - other.green) +
               std::abs(one.blue - other.blue);
    }

    int m_width, m_height;
};

}  // namespace

class CCorvelEditor : public CEditorFixture {
protected:
    using Colour = Tessitor::GUI::Basics::CAlphaColour;

    static CPainted paintMenu() { return CPainted(*fakeNatives().windows.back()); }
    static bool isDark(const SNativeColour &ink) { return ink.red < 120 && ink.red == ink.blue; }
    static bool isBluish(const SNativeColour &ink) { return ink.blue > ink.red + 30; }
    static void hoverFirstItem() { send(*fakeNatives().windows.back(), NativeMouseMove, 5, 5); }
    /// The menu of a modulator or of the delay.
    Tessitor::GUI::Windowing::CMenuWindow &menuOf(int module) const {
        if (auto *delay = dynamic_cast<Tessitor::Corvel::CDelayPanel *>(&panel(module)))
            return delay->getMenu().getWindow();
        return dynamic_cast<Tessitor::Corvel::CModPanel &>(panel(module)).getMenu().getWindow();
    }
};

TEST_F(CCorvelEditor, IsTheEditorOfItsEffect) {
    ASSERT_NE(editor, nullptr);
    EXPECT_STREQ(editor->getClass().getClassName(), "CCorvelEditor");
    EXPECT_TRUE(editor->getClass().isTypeOf(Tessitor::Basics::CClass("CVstWindow")));
    EXPECT_NE(effect->getAeffect()->flags & effFlagsHasEditor, 0);
}

TEST_F(CCorvelEditor, CountsItselfAndItsPanels) {
    auto &editors = editor->getClass();
    auto &panels = panel(13).getClass();
    const auto modulators = panels.getInstanceCount();
    EXPECT_EQ(editors.getInstanceCount(), 1);
    effect.reset();
    EXPECT_EQ(editors.getInstanceCount(), 0);
    EXPECT_EQ(panels.getInstanceCount(), modulators - 2);
}

TEST_F(CCorvelEditor, NeedsNoNativeWindowUntilItOpens) {
    EXPECT_THAT(fakeNatives().log, IsEmpty());
    open();
    EXPECT_EQ(fakeNatives().windows.size(), 1u);
    EXPECT_EQ(nativeOf(*editor).options.parent, &parent);
}

TEST_F(CCorvelEditor, NeedsNeitherDefaultFontNorPictures) {
    effect.reset();
    Tessitor::GUI::Fonts::CFont::releaseDefaultFont();
    Tessitor::Corvel::releaseEditorImages();
    std::filesystem::remove_all(folder / "Corvel");
    effect = std::make_unique<CSpyEffect>();
    editor = dynamic_cast<Tessitor::Corvel::CCorvelEditor *>(effect->getEditor());
    open();
    EXPECT_EQ(CPainted(nativeOf(*editor)).at(0, 0), black);
}

TEST_F(CCorvelEditor, CanBeOpenedAgain) {
    open();
    editor->close();
    EXPECT_THAT(fakeNatives().windows, IsEmpty());
    EXPECT_FALSE(editor->isOpen());
    open();
    EXPECT_TRUE(editor->isOpen());
    click(MoveRight, 0);
    EXPECT_THAT(shownPanels(), ElementsAre(11, 6, 5, 17));
}

TEST_F(CCorvelEditor, OpensItsHelpPage) {
    open();
    click(control(-1000));
    const std::string page =
        (folder / "Corvel" / "Resources" / "Corvel.htm").make_preferred().string();
    EXPECT_THAT(openedDocuments(), ElementsAre(page));
    EXPECT_THAT(host.calls(audioMasterAutomate), IsEmpty());
}

TEST_F(CCorvelEditor, DrawsItsBackground) {
    open();
    const CPainted painted(nativeOf(*editor));
    EXPECT_EQ(painted.at(0, 0), picture);
    EXPECT_EQ(painted.at(1, 1), black);
    EXPECT_EQ(painted.at(747, 369), black);
}

TEST_F(CCorvelEditor, DrawsTextsWithoutABackground) {
    open();
    const CPainted painted(nativeOf(*editor));
    const SNativeRect name{17, 80, 129, 93};
    EXPECT_GT(painted.count(name, white), 0);
    EXPECT_EQ(painted.count(name, blue), 0);
    EXPECT_EQ(painted.at(17, 80), black);
    const SNativeRect emptyName{497, 80, 609, 93};
    EXPECT_GT(painted.count(emptyName, grey), 0);
    EXPECT_EQ(painted.count(emptyName, white), 0);
}

TEST_F(CCorvelEditor, DrawsNoHotSpots) {
    open();
    EXPECT_EQ(CPainted(nativeOf(*editor)).count({0, 94, 748, 122}, black), 748 * 28);
}

TEST_F(CCorvelEditor, DrawsPanelsInTheirSlotsOnly) {
    open();
    setChain({2});
    const CPainted painted(nativeOf(*editor));
    EXPECT_LT(painted.count({17, 132, 129, 352}, black), 112 * 220);
    EXPECT_EQ(painted.count({130, 122, 748, 370}, black), 618 * 248);
    setChain({});
    EXPECT_EQ(CPainted(nativeOf(*editor)).count({0, 122, 748, 370}, black), 748 * 248);
}

// The colours of menus

TEST_F(CCorvelEditor, InsertsInGreenAndReplacesInPurple) {
    open();
    setChain({3});
    for (int round = 0; round < 2; ++round) {
        click(Insert, 0);
        hoverFirstItem();
        EXPECT_EQ(paintMenu().corner(), green);
        chooseNoModule();
        setChain({3});
        click(Replace, 0);
        hoverFirstItem();
        EXPECT_EQ(paintMenu().corner(), purple);
        chooseNoModule();
        setChain({3});
    }
}

TEST_F(CCorvelEditor, ModuleMenusAreGreyWithAPurpleFrame) {
    open();
    setChain({2});
    click(Insert, 0);
    const CPainted painted = paintMenu();
    EXPECT_EQ(painted.corner(), grey);
    EXPECT_EQ(painted.at(0, 0), purple);
    EXPECT_TRUE(isBluish(painted.inkOf(0, 17)));
    EXPECT_TRUE(isDark(painted.inkOf(1, 17)));
}

TEST_F(CCorvelEditor, OtherMenusLookTheSame) {
    open();
    setChain({13, 14, 16});
    for (const int id : {1, 61, 32, 39, 48}) {
        click(control(id));
        EXPECT_EQ(paintMenu().corner(), grey) << id;
        EXPECT_EQ(paintMenu().at(0, 0), purple) << id;
        const int items = id == 1 || id == 61 ? 4 : 3;
        EXPECT_TRUE(isDark(paintMenu().inkOf(0, items))) << id;
        hoverFirstItem();
        EXPECT_EQ(paintMenu().corner(), purple) << id;
        choose(0, items);
    }
}

TEST_F(CCorvelEditor, MenusOfPanelsHaveTheirColours) {
    for (const int module : {13, 14, 16}) {
        const Tessitor::GUI::Controls::SMenuColours &colours = menuOf(module).getMenuColours();
        EXPECT_EQ(colours.text, Colour(0, 0, 0));
        EXPECT_EQ(colours.disabledText, Colour(147, 147, 147));
        EXPECT_EQ(colours.separator, Colour(0, 0, 0));
        EXPECT_EQ(colours.pointer, Colour(0, 0, 0));
        EXPECT_EQ(colours.frame, Colour(153, 116, 188));
        EXPECT_EQ(colours.selectionFill, Colour(153, 116, 188));
    }
}

TEST_F(CCorvelEditor, MenusOfTheTopRowDisableInBlue) {
    CMenuSpy spy(effect.get(), CRect(0, 0, 748, 370),
                 Tessitor::GUI::Windowing::CWindowAttributes());
    editor = &spy;
    open();
    for (const int id : {1, 61}) {
        click(control(id));
        spy.lastMenu->getMenuItem(0)->setEnabled(false);
        EXPECT_TRUE(isBluish(paintMenu().inkOf(0, 4))) << id;
    }
}

TEST_F(CCorvelEditor, MenusOfPanelsHaveASizeBeforeTheyAreOpened) {
    for (const int module : {13, 14, 16}) {
        EXPECT_EQ(menuOf(module).getWindowSize().getWidth(), module == 16 ? 100 : 75);
        EXPECT_EQ(menuOf(module).getWindowSize().getHeight(), 36);
    }
}

TEST_F(CCorvelEditor, MenusOfPanelsDisableInGrey) {
    open();
    setChain({13, 14, 16});
    for (const auto &[module, id] : {std::pair(13, 32), std::pair(14, 39), std::pair(16, 48)}) {
        menuOf(module).getMenu()->getMenuItem(0)->setEnabled(false);
        click(control(id));
        const SNativeColour ink = paintMenu().inkOf(0, 3);
        EXPECT_EQ(ink.red, ink.blue) << id;
        EXPECT_GE(ink.red, 147) << id;
        EXPECT_LT(ink.red, 200) << id;
        choose(1, 3);
    }
}
