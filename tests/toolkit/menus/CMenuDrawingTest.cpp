// What menu windows look like: painted onto a surface in memory, and pixels compared.
#include "CMenuWindowFixture.h"
#include "platform/INativeSurface.h"
#include "toolkit/graphics/TestImage.h"

#include <set>

namespace {

constexpr SNativeColour background{255, 255, 255}, black{0, 0, 0}, frame{10, 20, 200},
    selected{20, 200, 30}, text{200, 0, 0}, disabled{0, 120, 120}, separator{90, 80, 70},
    pointer{130, 0, 130};

}  // namespace

class CMenuDrawing : public CMenuWindowFixture {
protected:
    /// Opens the menu with a large font and with colours that all differ.
    void openColoured() {
        open();
        const auto colour = [](const SNativeColour &native) {
            return Tessitor::GUI::Basics::CAlphaColour(native.red, native.green, native.blue);
        };
        window->closePopupWindow();
        window->setMenuColours({colour(text), colour(disabled), colour(separator), colour(pointer),
                                colour(frame), colour(selected)});
        window->setFont(new Tessitor::GUI::Fonts::CFont("Arial", 30, false, true));
        window->openPopupWindow(CPoint(0, 0));
    }
    void paint() { paint(CRect(0, 0, width(), height())); }
    void paint(const CRect &dirty) {
        fakeNatives().screen = createNativeSurface(nullptr, width() + 9, height() + 9, background);
        auto *native = static_cast<CFakeNativeWindow *>(window->getWindowHandle()->native);
        native->dirty = dirty.toNative();
        native->listener.handleMessage(NativePaint, 0, 0);
    }
    int width() const { return window->getWindowSize().getWidth(); }
    int height() const { return window->getWindowSize().getHeight(); }
    static SNativeColour at(int x, int y) { return fakeNatives().screen->getPixel({x, y}); }
    /// True if a pixel of an area has this colour.
    static bool contains(const CRect &area, const SNativeColour &colour) {
        for (int y = area.getTop(); y < area.getBottom(); ++y)
            for (int x = area.getLeft(); x < area.getRight(); ++x)
                if (at(x, y) == colour)
                    return true;
        return false;
    }
    /// The points of an area that are not the background, relative to its corner.
    static std::set<std::pair<int, int>> drawnIn(const CRect &area, const SNativeColour &colour) {
        std::set<std::pair<int, int>> points;
        for (int y = area.getTop(); y < area.getBottom(); ++y)
            for (int x = area.getLeft(); x < area.getRight(); ++x)
                if (at(x, y) != background) {
                    EXPECT_EQ(at(x, y), colour) << x << " " << y;
                    points.emplace(x - area.getLeft(), y - area.getTop());
                }
        return points;
    }
    /// The square left of an item's text, or the one right of it, without the frame.
    CRect lead(int index) const {
        const CRect &area = areaOf(index);
        return {4, area.getTop() + 1, area.getHeight(), area.getHeight() - 2};
    }
    CRect tail(int index) const {
        const CRect &area = areaOf(index);
        const int size = area.getHeight();
        return {area.getRight() - size, area.getTop() + 1, size - 1, size - 2};
    }
};

TEST_F(CMenuDrawing, HasAFrame) {
    add("a");
    add("b");
    openColoured();
    paint();
    for (int x = 0; x < width(); ++x) {
        EXPECT_EQ(at(x, 0), frame) << x;
        EXPECT_EQ(at(x, height() - 1), frame) << x;
    }
    for (int y = 0; y < height(); ++y) {
        EXPECT_EQ(at(0, y), frame) << y;
        EXPECT_EQ(at(width() - 1, y), frame) << y;
    }
    EXPECT_EQ(at(1, 1), background);
    EXPECT_FALSE(contains(CRect(1, 1, width() - 2, height() - 2), frame));
    EXPECT_EQ(at(width(), height()), background);
}

TEST_F(CMenuDrawing, FillsAndFramesTheSelection) {
    add("a");
    add("b");
    add("c");
    openColoured();
    moveTo(1);
    paint();
    const CRect &area = areaOf(1);
    for (int x = area.getLeft(); x < area.getRight(); ++x) {
        EXPECT_EQ(at(x, area.getTop()), frame) << x;
        EXPECT_EQ(at(x, area.getBottom() - 1), frame) << x;
    }
    EXPECT_EQ(at(1, area.getTop() + 1), selected);
    EXPECT_EQ(at(width() - 2, area.getBottom() - 2), selected);
    EXPECT_TRUE(contains(area, text));
    EXPECT_FALSE(contains(areaOf(0), selected));
    EXPECT_FALSE(contains(areaOf(2), selected));
}

TEST_F(CMenuDrawing, DrawsTextsInTheirColours) {
    add("M");
    add("M", EMenuItemType::Normal, false);
    add("M")->setTextColour({1, 2, 3});
    CMenuItem *both = add("M", EMenuItemType::Normal, false);
    both->setTextColour({1, 2, 3});
    openColoured();
    paint();
    const SNativeColour colours[] = {text, disabled, {1, 2, 3}, disabled};
    for (int item = 0; item < 4; ++item)
        for (const SNativeColour &colour : {text, disabled, SNativeColour{1, 2, 3}})
            EXPECT_EQ(contains(areaOf(item), colour), colour == colours[item]) << item;
}

TEST_F(CMenuDrawing, ShowsWhenAnItemIsDisabled) {
    CMenuItem *item = add("M");
    openColoured();
    item->setEnabled(false);
    paint();
    EXPECT_TRUE(contains(areaOf(0), disabled));
}

TEST_F(CMenuDrawing, DrawsSeparatorsAsThinLines) {
    add("M");
    add("", EMenuItemType::Separator);
    add("M");
    openColoured();
    paint();
    const CRect &area = areaOf(1);
    const int y = area.getTop() + 2;
    for (int x = 1; x < width() - 1; ++x) {
        EXPECT_EQ(at(x, y), x >= 2 && x < width() - 2 ? separator : background) << x;
        for (const int other : {0, 1, 3})
            EXPECT_EQ(at(x, area.getTop() + other), background) << x;
    }
}

TEST_F(CMenuDrawing, DrawsATickOfSevenRectangles) {
    add("M");
    addSelectable("M")->setSelected(true);
    add("M");
    openColoured();
    paint();
    const int size = areaOf(1).getHeight();
    const int centreX = size / 2, centreY = size / 2 - 1;  // in the area that is looked at
    std::set<std::pair<int, int>> expected;
    const int tops[] = {-4, -3, -2, -3, -4, -5, -6};
    for (int column = 0; column < 7; ++column)
        for (int row = 0; row < 3; ++row)
            expected.emplace(centreX - 4 + column, centreY + tops[column] + row);
    EXPECT_EQ(drawnIn(lead(1), black), expected);
    EXPECT_TRUE(drawnIn(lead(0), black).empty());
}

TEST_F(CMenuDrawing, DrawsNoTickUnlessSelected) {
    CSelectableMenuItem *item = addSelectable("M");
    openColoured();
    paint();
    EXPECT_TRUE(drawnIn(lead(0), black).empty());
    item->setSelected(true);
    paint();
    EXPECT_FALSE(drawnIn(lead(0), black).empty());
}

TEST_F(CMenuDrawing, DrawsAnArrowForASubMenu) {
    add("M");
    addSubMenu("M");
    openColoured();
    window->setDrawAntiAliased(false);
    paint();
    EXPECT_TRUE(drawnIn(tail(0), pointer).empty());
    const auto points = drawnIn(tail(1), pointer);
    const int size = areaOf(1).getHeight();
    EXPECT_TRUE(points.contains({5, size / 2 - 1}));
    EXPECT_TRUE(points.contains({4, 6}));
    EXPECT_TRUE(points.contains({4, size - 8}));
    EXPECT_TRUE(points.contains({size - 8, size / 2 - 1}));
    for (const auto &[x, y] : points) {
        // Inside the triangle, which is as high as wide, give or take a pixel.
        EXPECT_GE(x, 4);
        EXPECT_LE(x - 4, size - 8 - 2 * std::abs(y + 1 - size / 2) + 2) << x << " " << y;
    }
}

TEST_F(CMenuDrawing, TheArrowOfADisabledItemIsPale) {
    addSubMenu("M")->setEnabled(false);
    openColoured();
    window->setDrawAntiAliased(false);
    paint();
    EXPECT_FALSE(drawnIn(tail(0), disabled).empty());
}

TEST_F(CMenuDrawing, TheArrowHasASmoothOutlineIfAskedFor) {
    addSubMenu("M");
    openColoured();
    const auto countDrawn = [&] {
        paint();
        int count = 0;
        const CRect area = tail(0);
        for (int y = area.getTop(); y < area.getBottom(); ++y)
            for (int x = area.getLeft(); x < area.getRight(); ++x)
                count += at(x, y) != background ? 1 : 0;
        return count;
    };
    const int smooth = countDrawn();
    window->setDrawAntiAliased(false);
    const int plain = countDrawn();
    EXPECT_GT(smooth, plain);
    window->setMenu(menu);
    EXPECT_EQ(countDrawn(), plain);
}

TEST_F(CMenuDrawing, ShowsTheIconOfTheItem) {
    auto *normal = new CTestImage(8, 8, false);
    auto *pale = new CTestImage(8, 4, false);
    CMenuItem *item = add("M");
    item->setImages(normal, pale);
    openColoured();
    paint();
    const int top = (areaOf(0).getHeight() - 8) / 2;
    EXPECT_EQ(at(4, top), CTestImage::opaqueColourAt(0, 0));
    EXPECT_EQ(at(11, top + 7), CTestImage::opaqueColourAt(7, 7));
    item->setEnabled(false);
    paint();
    EXPECT_EQ(at(4, top + 6), CTestImage::opaqueColourAt(0, 3));  // scaled to the same area
    item->setImages(normal, nullptr);
    paint();
    EXPECT_EQ(at(11, top + 7), CTestImage::opaqueColourAt(7, 7));
}

TEST_F(CMenuDrawing, PaintsOnlyWhatIsDirty) {
    add("M");
    add("M");
    openColoured();
    paint(areaOf(1));
    EXPECT_FALSE(contains(areaOf(0), text));
    EXPECT_TRUE(contains(areaOf(1), text));
}

TEST_F(CMenuDrawing, ForgetsTheSelectionWithItsMenu) {
    add("M");
    openColoured();
    moveTo(0);
    window->setMenu(menu);
    paint();
    EXPECT_FALSE(contains(areaOf(0), selected));
}

TEST_F(CMenuDrawing, ShowsAnotherMenuInstead) {
    add("M");
    openColoured();
    auto *another = new CMenu;
    another->addMenuItem(new CMenuItem("M", 0, EMenuItemType::Normal, false));
    window->setMenu(another);
    paint();
    EXPECT_TRUE(contains(areaOf(0), disabled));
}
