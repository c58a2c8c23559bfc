#include "BareCairo.h"
#include "toolkit/graphics/Painting.h"
#include "toolkit/graphics/TestImage.h"

#include <benchmark/benchmark.h>
#include <functional>

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::CGraphics;
using Tessitor::GUI::Graphics::paintWindow;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CPoint;
using Tessitor::MathTools::CRect;

namespace {

// The editor: its window, the frames of a knob, and the rectangle of one knob.
constexpr int windowWidth = 748, windowHeight = 370, knobSize = 24, knobFrames = 63;
constexpr int knobLeft = 130, knobTop = 100;

/// The pixels of an image of the class library, for cairo.
CBareImage bareCopy(int width, int height, bool hasAlpha) {
    const CTestImage image(width, height, hasAlpha);
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const SNativeColour colour = image.premultipliedColourAt(x, y);
            pixels.push_back(static_cast<std::uint32_t>(colour.alpha << 24 | colour.red << 16 |
                                                        colour.green << 8 | colour.blue));
        }
    return {width, height, std::move(pixels)};
}

/// Everything that is drawn with, made once.
struct SMaterials {
    CTestImage knobs{knobSize, knobSize *knobFrames, true};
    CTestImage background{windowWidth, windowHeight, false};
    CBareImage bareKnobs = bareCopy(knobSize, knobSize *knobFrames, true);
    CBareImage bareBackground = bareCopy(windowWidth, windowHeight, false);
    CFont font{"Arial", 11, false, false};
};

SMaterials &materials() {
    static SMaterials all;
    return all;
}

// Positions that change from call to call, all inside the small clip as well
int wander(int step, int range) {
    return step * 7 % range;
}

/// An operation, once through the class library and once by bare calls. The step makes each call a
/// little different.
struct SOperation {
    const char *name;
    void (*draw)(CGraphics &graphics, int step);
    void (*drawBare)(CBareCairo &cairo, int step);
};

constexpr SOperation operations[] = {
    {"fill 48 by 24",
     [](CGraphics &graphics, int step) {
         graphics.fillRectangle(CRect(knobLeft + wander(step, 5), knobTop, 48, 24));
     },
     [](CBareCairo &cairo, int step) { cairo.fill(knobLeft + wander(step, 5), knobTop, 48, 24); }},
    {"line of 60",
     [](CGraphics &graphics, int step) {
         graphics.drawLine(CPoint(knobLeft, knobTop),
                           CPoint(knobLeft + 60, knobTop + wander(step, 30)));
     },
     [](CBareCairo &cairo, int step) {
         cairo.line(knobLeft, knobTop, knobLeft + 60, knobTop + wander(step, 30));
     }},
    {"rounded rectangle 60 by 30",
     [](CGraphics &graphics, int step) {
         graphics.fillRoundedRectangle(CRect(knobLeft, knobTop + wander(step, 5), 60, 30),
                                       CDimension(8, 8));
     },
     [](CBareCairo &cairo, int step) {
         cairo.roundedRectangle(knobLeft, knobTop + wander(step, 5), 60, 30, 4);
     }},
    {"text of 10 letters",
     [](CGraphics &graphics, int step) {
         graphics.drawText("-12.5 dB/s", CRect(knobLeft + wander(step, 5), knobTop, 80, 13),
                           &materials().font, 0);
     },
     [](CBareCairo &cairo, int step) {
         cairo.text(knobLeft + wander(step, 5), knobTop, "-12.5 dB/s");
     }},
    {"knob frame 24 by 24",
     [](CGraphics &graphics, int step) {
         graphics.drawImage(&materials().knobs, CRect(knobLeft, knobTop, knobSize, knobSize),
                            CRect(0, knobSize * wander(step, knobFrames), knobSize, knobSize));
     },
     [](CBareCairo &cairo, int step) {
         cairo.image(materials().bareKnobs.get(), knobLeft, knobTop, knobSize, knobSize,
                     knobSize * wander(step, knobFrames));
     }},
};

const CRect wholeWindow(0, 0, windowWidth, windowHeight);
const CRect oneKnob(knobLeft, knobTop, knobSize, knobSize);

void measureOperation(benchmark::State &state, const SOperation &operation, const CRect &clip) {
    CGraphics graphics;
    graphics.initialise(nullptr, CDimension(windowWidth, windowHeight));
    graphics.getClip().setClipRegion(clip);
    int step = 0;
    for (auto _ : state)
        operation.draw(graphics, step++);
}

void measureBareOperation(benchmark::State &state, const SOperation &operation, const CRect &clip) {
    CBareCairo cairo(windowWidth, windowHeight);
    cairo.clip(clip.getLeft(), clip.getTop(), clip.getWidth(), clip.getHeight());
    int step = 0;
    for (auto _ : state)
        operation.drawBare(cairo, step++);
}

// 40 knobs in 8 columns, each with a name above and a value below
template <typename Knob, typename Label>
void eachControl(const CRect &dirty, Knob knob, Label label) {
    const auto isSeen = [&](int left, int top, int width, int height) {
        return CRect::intersects(CRect(left, top, width, height), dirty);
    };
    for (int i = 0; i < 40; ++i) {
        const int left = 10 + i % 8 * 90, top = 10 + i / 8 * 70;
        if (isSeen(left - 12, top, 48, 13))
            label(left - 12, top, "Threshold");
        if (isSeen(left, top + 13, knobSize, knobSize))
            knob(left, top + 13, i);
        if (isSeen(left - 12, top + 37, 48, 13))
            label(left - 12, top + 37, "-12.5 dB");
    }
}

void measurePainting(benchmark::State &state, const CRect &dirty) {
    const auto window = createNativeSurface(nullptr, windowWidth, windowHeight, {});
    CGraphics graphics;
    for (auto _ : state)
        paintWindow(graphics, *window, CDimension(windowWidth, windowHeight), dirty,
                    [&](CGraphics &inside) {
                        SMaterials &all = materials();
                        inside.drawImage(&all.background, wholeWindow, wholeWindow);
                        eachControl(
                            dirty,
                            [&](int left, int top, int frame) {
                                inside.drawImage(&all.knobs, CRect(left, top, knobSize, knobSize),
                                                 CRect(0, frame * knobSize, knobSize, knobSize));
                            },
                            [&](int left, int top, const char *text) {
                                inside.drawText(text, CRect(left, top, 48, 13), &all.font, 1);
                            });
                    });
}

void measureBarePainting(benchmark::State &state, const CRect &dirty) {
    CBareCairo window(windowWidth, windowHeight);
    for (auto _ : state) {
        CBareCairo picture(windowWidth, windowHeight);
        picture.clip(dirty.getLeft(), dirty.getTop(), dirty.getWidth(), dirty.getHeight());
        picture.fillBackground();
        picture.image(materials().bareBackground.get(), 0, 0, windowWidth, windowHeight, 0);
        eachControl(
            dirty,
            [&](int left, int top, int frame) {
                picture.image(materials().bareKnobs.get(), left, top, knobSize, knobSize,
                              frame * knobSize);
            },
            [&](int left, int top, const char *text) { picture.text(left, top, text); });
        picture.copyTo(window, dirty.getLeft(), dirty.getTop(), dirty.getWidth(),
                       dirty.getHeight());
    }
}

void add(const std::string &name, const CRect &area, const char *suffix,
         const std::function<void(benchmark::State &, const CRect &)> &measure) {
    benchmark::RegisterBenchmark((name + suffix).c_str(),
                                 [=](benchmark::State &state) { measure(state, area); });
}

}  // namespace

// Names end with "/ours" or "/cairo".
int main(int argc, char **argv) {
    for (const SOperation &operation : operations)
        for (const bool isWhole : {true, false}) {
            const std::string name =
                std::string(operation.name) + (isWhole ? ", whole window" : ", clip of a knob");
            const CRect &clip = isWhole ? wholeWindow : oneKnob;
            add(name, clip, "/ours", [&](benchmark::State &state, const CRect &area) {
                measureOperation(state, operation, area);
            });
            add(name, clip, "/cairo", [&](benchmark::State &state, const CRect &area) {
                measureBareOperation(state, operation, area);
            });
        }
    for (const bool isWhole : {true, false}) {
        const std::string name = isWhole ? "painting of the whole window" : "painting of one knob";
        const CRect &dirty = isWhole ? wholeWindow : CRect(10, 23, knobSize, knobSize);
        add(name, dirty, "/ours", measurePainting);
        add(name, dirty, "/cairo", measureBarePainting);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
