#include "corvel/plot/CCanvas.h"

#include "corvel/console/Printable.h"
#include "tools/support/CPixels.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;
using testing::Not;

namespace {

const SPictureOptions png{EPictureFormat::Png, ETheme::Light, 1.0};
const SPictureOptions svg{EPictureFormat::Svg, ETheme::Viewer, 1.0};

std::string smallPicture(const SPictureOptions &options) {
    CCanvas canvas(100.0, 60.0, options);
    canvas.fill(SRectangle{10.0, 10.0, 20.0, 20.0}, EInk::Blue);
    canvas.line({{50.0, 10.5}, {90.0, 10.5}}, {EInk::Orange, 3.0});
    canvas.text({10.0, 50.0}, "Grün & <so>", {});
    return canvas.finish("A & B", "Two \"lines\"");
}

}  // namespace

TEST(CCanvas, DrawsPixelsAtTheScaleAskedFor) {
    const CPixels single(smallPicture(png));
    EXPECT_EQ(single.width(), 100);
    EXPECT_EQ(single.height(), 60);
    EXPECT_EQ(single.at(20, 20), colourOf(EInk::Blue, ETheme::Light));
    EXPECT_EQ(single.at(70, 10), colourOf(EInk::Orange, ETheme::Light));
    EXPECT_EQ(single.at(99, 0), colourOf(EInk::Paper, ETheme::Light));
    const CPixels triple(smallPicture({EPictureFormat::Png, ETheme::Dark, 3.0}));
    EXPECT_EQ(triple.width(), 300);
    EXPECT_EQ(triple.at(60, 60), colourOf(EInk::Blue, ETheme::Dark));
    EXPECT_EQ(triple.at(299, 0), colourOf(EInk::Paper, ETheme::Dark));
}

TEST(CCanvas, TheSameDrawingGivesTheSameBytes) {
    EXPECT_EQ(smallPicture(svg), smallPicture(svg));
    EXPECT_EQ(smallPicture(png), smallPicture(png));
}

TEST(CCanvas, AnSvgHasAVectorForEverythingAndItsTitle) {
    const std::string text = smallPicture(svg);
    EXPECT_THAT(text, testing::StartsWith("<?xml"));
    EXPECT_THAT(text, HasSubstr("width=\"100px\" height=\"60px\""));
    EXPECT_THAT(text, HasSubstr(" role=\"img\">\n<title>A &amp; B</title>"));
    EXPECT_THAT(text, HasSubstr("<desc>Two \"lines\"</desc>"));
    EXPECT_THAT(text, Not(HasSubstr("<image")));
    EXPECT_THAT(text, testing::EndsWith("</svg>\n"));
}

TEST(CCanvas, AnSvgFollowsTheViewerOnlyIfAskedTo) {
    const std::string text = smallPicture(svg);
    EXPECT_THAT(text, HasSubstr("@media (prefers-color-scheme: dark) {\n"));
    for (const EInk ink : {EInk::Paper, EInk::Blue, EInk::Orange, EInk::Text}) {
        const auto [red, green, blue] = colourOf(ink, ETheme::Dark);
        EXPECT_THAT(text, HasSubstr(":rgb(" + std::to_string(red) + "%," + std::to_string(green) +
                                    "%," + std::to_string(blue) + "%)!important}"));
    }
    for (const ETheme theme : {ETheme::Light, ETheme::Dark})
        EXPECT_THAT(smallPicture({EPictureFormat::Svg, theme, 1.0}), Not(HasSubstr("<style>")));
}

TEST(CCanvas, PutsTextOnTheSideThatIsAskedFor) {
    const Colour paper = colourOf(EInk::Paper, ETheme::Light);
    for (const EAlign align : {EAlign::Left, EAlign::Middle, EAlign::Right}) {
        CCanvas canvas(200.0, 40.0, png);
        canvas.text({100.0, 25.0}, "mmmm", {EInk::Text, 13.0, false, align});
        const CPixels pixels(canvas.finish("", ""));
        EXPECT_EQ(pixels.hasOther(paper, 0, 98), align != EAlign::Left);
        EXPECT_EQ(pixels.hasOther(paper, 102, 200), align != EAlign::Right);
    }
}

TEST(CCanvas, BytesThatAreNoTextDoNotSpoilThePicture) {
    CCanvas canvas(200.0, 40.0, png);
    canvas.text({10.0, 25.0}, "a\xFF\xFE\nb", {});
    canvas.fill(SRectangle{100.0, 0.0, 50.0, 40.0}, EInk::Green);
    EXPECT_GT(canvas.textWidth("\xFF", {}), canvas.textWidth("F", {}));
    const CPixels pixels(canvas.finish("\xFF", ""));
    EXPECT_EQ(pixels.at(120, 20), colourOf(EInk::Green, ETheme::Light));
}

TEST(CCanvas, ShortensTextToAWidth) {
    CCanvas canvas(200.0, 40.0, png);
    const SLettering lettering;
    EXPECT_EQ(canvas.shortened("short", 190.0, lettering), "short");
    const std::string cut = canvas.shortened("äöüäöüäöüäöüäöüäöüäöü", 60.0, lettering);
    EXPECT_THAT(cut, testing::StartsWith("äöü"));
    EXPECT_THAT(cut, testing::EndsWith("…"));
    EXPECT_LE(canvas.textWidth(cut, lettering), 60.0);
    EXPECT_GT(canvas.textWidth(cut, lettering), 40.0);
    EXPECT_EQ(printable(cut), cut) << "cut within a letter";
    EXPECT_EQ(canvas.shortened("any", 1.0, lettering), "…");
}

TEST(CCanvas, DrawsNothingOutsideTheClip) {
    CCanvas canvas(100.0, 40.0, png);
    canvas.clip({20.0, 0.0, 20.0, 40.0});
    canvas.line({{0.0, 20.0}, {100.0, 20.0}}, {EInk::Blue, 4.0});
    canvas.unclip();
    canvas.line({{60.0, 20.0}, {100.0, 20.0}}, {EInk::Orange, 4.0, EDash::Dashed});
    const CPixels pixels(canvas.finish("", ""));
    const Colour paper = colourOf(EInk::Paper, ETheme::Light);
    EXPECT_FALSE(pixels.hasOther(paper, 0, 20));
    EXPECT_FALSE(pixels.hasOther(paper, 40, 60));
    EXPECT_EQ(pixels.at(30, 20), colourOf(EInk::Blue, ETheme::Light));
    EXPECT_EQ(pixels.at(62, 20), colourOf(EInk::Orange, ETheme::Light));
    EXPECT_EQ(pixels.at(70, 20), paper);  // between two dashes
}
