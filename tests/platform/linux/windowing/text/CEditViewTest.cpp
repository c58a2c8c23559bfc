#include "platform/linux/windowing/text/CEditView.h"

#include "platform/drawing/Ink.h"
#include "platform/linux/drawing/TextLines.h"

#include <gtest/gtest.h>

namespace {

constexpr SNativeColour ink = {200, 0, 0}, paper = {0, 0, 80};
constexpr SNativeColour white = {255, 255, 255};

class CEditViewTest : public testing::Test {
protected:
    static CEditLine lineOf(const std::string &text, std::size_t caret) {
        CEditLine line(text, 0);
        line.moveTo(caret, false);
        return line;
    }
    std::int32_t widthOfText(const std::string &text) const {
        return static_cast<std::int32_t>(
            std::lround(widthOf(static_cast<const CLinuxFont &>(*font), text)));
    }
    std::unique_ptr<INativeSurface> draw(const CEditLine &line, bool isCaretShown) {
        return draw(line, isCaretShown, {0, 0, width, height});
    }
    std::unique_ptr<INativeSurface> draw(const CEditLine &line, bool isCaretShown,
                                         const SNativeRect &area) {
        auto surface = createNativeSurface(nullptr, width, height, white);
        view.draw(*surface, area, line, isCaretShown);
        surface->setClip({0, 0, width, height});
        return surface;
    }
    /// @return the number of pixels of a colour inside the frame.
    static int count(const INativeSurface &surface, SNativeColour colour,
                     const SNativeRect &area = {1, 1, width - 1, height - 1}) {
        int number = 0;
        for (std::int32_t y = area.top; y < area.bottom; ++y)
            for (std::int32_t x = area.left; x < area.right; ++x)
                number += surface.getPixel({x, y}) == colour ? 1 : 0;
        return number;
    }

    static constexpr std::int32_t width = 60, height = 20;

    const std::unique_ptr<INativeFont> font = [] {
        SNativeFontRecord record;
        record.height = -12;
        return createNativeFont(record);
    }();
    CEditView view{width, height, font.get(), {ink, paper}};
};

TEST_F(CEditViewTest, DrawsAFrameAndTheBackground) {
    const auto surface = draw(lineOf("", 0), false);
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const bool isFrame = x == 0 || y == 0 || x == width - 1 || y == height - 1;
            EXPECT_EQ(surface->getPixel({x, y}), isFrame ? ink : paper) << x << ", " << y;
        }
    }
}

TEST_F(CEditViewTest, DrawsTheTextInsideTheFrame) {
    const CEditLine line = lineOf(std::string(100, 'M'), 0);
    const auto surface = draw(line, false);
    EXPECT_LT(count(*surface, paper), (width - 2) * (height - 2) - 50);
    for (std::int32_t y = 1; y < height - 1; ++y) {
        EXPECT_EQ(surface->getPixel({1, y}), paper);
        EXPECT_EQ(surface->getPixel({width - 2, y}), paper);
    }
}

TEST_F(CEditViewTest, DrawsTheSelectionInExchangedColours) {
    CEditLine line = lineOf("MMM", 1);
    line.moveTo(2, true);
    const auto surface = draw(line, false);
    const std::int32_t letter = widthOfText("M");
    const SNativeRect selected = {2 + letter, 1, 2 + 2 * letter, height - 1};
    const int pixels = letter * (height - 2);
    EXPECT_GT(count(*surface, ink, selected), pixels / 2);
    EXPECT_LT(count(*surface, ink, selected), pixels - 10);  // the letter is not ink
    EXPECT_GT(count(*surface, paper, {2, 1, 2 + letter, height - 1}), pixels / 2);
    EXPECT_EQ(surface->getPixel({2 + letter, 2}), ink);
    EXPECT_EQ(surface->getPixel({1 + letter, 2}), paper);
    EXPECT_EQ(surface->getPixel({2 + 2 * letter, 2}), paper);
}

TEST_F(CEditViewTest, DrawsTheCaret) {
    const CEditLine line = lineOf("  ", 1);
    EXPECT_EQ(count(*draw(line, false), ink), 0);
    const auto surface = draw(line, true);
    const SNativeRect caret = view.getCaretArea(line);
    EXPECT_EQ(caret.left, 2 + widthOfText(" "));
    EXPECT_EQ(caret.right, caret.left + 1);
    EXPECT_GT(caret.bottom - caret.top, 10);
    EXPECT_EQ(count(*surface, ink), caret.bottom - caret.top);
    EXPECT_EQ(count(*surface, ink, caret), caret.bottom - caret.top);
}

TEST_F(CEditViewTest, DrawsACaretThatIsSeenOnTheSelection) {
    CEditLine line = lineOf("  ", 2);
    line.moveTo(0, true);
    const SNativeRect start = view.getCaretArea(line);
    EXPECT_EQ(count(*draw(line, true), paper, start), start.bottom - start.top);
    line.moveTo(0, false);
    line.moveTo(2, true);
    const SNativeRect end = view.getCaretArea(line);
    EXPECT_EQ(count(*draw(line, true), ink, end), end.bottom - end.top);
}

TEST_F(CEditViewTest, KeepsTheCaretInsideTheFrame) {
    const CEditView low(width, 8, font.get(), {ink, paper});
    const SNativeRect caret = low.getCaretArea(lineOf("", 0));
    EXPECT_EQ(caret.top, 1);
    EXPECT_EQ(caret.bottom, 7);
}

TEST_F(CEditViewTest, DrawsOnlyTheAreaThatIsNeeded) {
    CEditLine line("MMMMMMMMMM", 0);
    const SNativeRect needed = {10, 5, 20, 12};
    EXPECT_EQ(inkOf(*draw(line, true, needed), white), needed);
}

TEST_F(CEditViewTest, ScrollsUntilTheCaretIsSeen) {
    const std::string text = "iiiiiiMMMMMMMMMMiiiiii";
    CEditLine line = lineOf(text, 0);
    const auto expectCaretInside = [&] {
        view.scrollToCaret(line);
        const SNativeRect caret = view.getCaretArea(line);
        EXPECT_GE(caret.left, 2);
        EXPECT_LE(caret.right, width - 2);
    };
    for (std::size_t i = 0; i <= text.size(); ++i) {
        line.moveTo(i, false);
        expectCaretInside();
    }
    EXPECT_EQ(view.getCaretArea(line).right, width - 2);
    for (std::size_t i = text.size() + 1; i-- > 0;) {
        line.moveTo(i, false);
        expectCaretInside();
    }
    EXPECT_EQ(view.getCaretArea(line).left, 2);
}

TEST_F(CEditViewTest, LeavesNoRoomAtTheEndWhileTheStartIsHidden) {
    CEditLine line = lineOf(std::string(20, 'M'), 20);
    view.scrollToCaret(line);
    for (int i = 0; i < 10; ++i)
        line.eraseBefore(EEditReach::Character);
    view.scrollToCaret(line);
    EXPECT_EQ(view.getCaretArea(line).right, width - 2);
    line.selectAll();
    line.eraseSelection();
    view.scrollToCaret(line);
    EXPECT_EQ(view.getCaretArea(line).left, 2);
}

TEST_F(CEditViewTest, FindsTheNearestPosition) {
    const CEditLine line = lineOf("MöM", 0);
    const std::int32_t first = 2 + widthOfText("M"), second = 2 + widthOfText("Mö");
    EXPECT_EQ(view.positionAt(line, -1000), 0u);
    EXPECT_EQ(view.positionAt(line, 3), 0u);
    EXPECT_EQ(view.positionAt(line, first - 1), 1u);
    EXPECT_EQ(view.positionAt(line, first + 1), 1u);
    EXPECT_EQ(view.positionAt(line, second - 1), 3u);
    EXPECT_EQ(view.positionAt(line, second + 1), 3u);
    EXPECT_EQ(view.positionAt(line, 1000), 4u);
}

TEST_F(CEditViewTest, FindsPositionsInAScrolledLine) {
    const std::string text(30, 'M');
    CEditLine line = lineOf(text, text.size());
    view.scrollToCaret(line);
    EXPECT_EQ(view.positionAt(line, width), text.size());
    EXPECT_EQ(view.positionAt(line, view.getCaretArea(line).left - widthOfText("M")),
              text.size() - 1);
}

TEST_F(CEditViewTest, FitsIntoAnyRectangle) {
    for (std::int32_t size = 2; size < 6; ++size) {
        CEditView small(size, size, nullptr, {ink, paper});
        CEditLine line("text", 0);
        small.scrollToCaret(line);
        auto surface = createNativeSurface(nullptr, size, size, white);
        small.draw(*surface, {0, 0, size, size}, line, true);
        EXPECT_EQ(surface->getPixel({0, 0}), ink);
    }
}

}  // namespace
