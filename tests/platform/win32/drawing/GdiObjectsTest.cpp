#include "platform/INativeSurface.h"
#include "platform/NativeIcon.h"
#include "platform/win32/drawing/CountObjects.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

// All that is created is also deleted.

namespace {

void expectNoLeak(const char *what, const std::function<void()> &operation) {
    operation();  // the first call also creates what the system keeps
    const int before = countObjects();
    for (int i = 0; i < 1000; ++i)
        operation();
    EXPECT_EQ(countObjects(), before) << what;
}

class GdiObjects : public testing::Test {
protected:
    void TearDown() override { drawing.reset(); }

    const SNativeColour red{255, 0, 0};
    const SNativeRect rect{2, 2, 30, 30};
    const std::vector<SNativePoint> corners = {{2, 2}, {20, 4}, {9, 30}};
    const std::vector<std::uint8_t> pixels = std::vector<std::uint8_t>(32 * 32 * 4, 128);

    CNativeSmoothSession session;
    std::unique_ptr<INativeFont> font = createNativeFont({.height = -11, .faceName = "Arial"});
    std::unique_ptr<INativeBitmap> bitmap = createNativeBitmap(32, 32, pixels);
    std::unique_ptr<INativeSurface> source = createNativeSurface(nullptr, 32, 32, red);
    std::unique_ptr<INativeSurface> surface = createNativeSurface(nullptr, 32, 32, red);
    std::unique_ptr<INativeSmoothDrawing> drawing = surface->startSmoothDrawing();
};

TEST_F(GdiObjects, AreCounted) {
    const int before = countObjects();
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    EXPECT_EQ(countObjects(), before + 1);
    DeleteObject(pen);
    EXPECT_EQ(countObjects(), before);
}

TEST_F(GdiObjects, AreDeletedWithWhatOwnsThem) {
    expectNoLeak("surface", [&] {
        const auto created = createNativeSurface(source.get(), 32, 32, red);
        created->setPen(red, 3);
        created->setBrush(red);
    });
    expectNoLeak("smooth drawing", [&] { surface->startSmoothDrawing(); });
    expectNoLeak("alpha surface", [&] {
        const auto created = createNativeAlphaSurface(32, 32);
        created->startSmoothDrawing()->fillRectangle(red, rect);
        created->makeBitmap();
    });
    expectNoLeak("font", [] { createNativeFont({.height = -11, .faceName = "Arial"}); });
    expectNoLeak("bitmap", [&] { createNativeBitmap(32, 32, pixels); });
    expectNoLeak("picture", [] { decodeNativeBitmap(FIXTURES "/red-and-blue.jpg"); });
    expectNoLeak("session", [] { const CNativeSmoothSession inner; });
    expectNoLeak("icon", [] { destroyNativeIcon(loadNativeIcon(FIXTURES "/square.ico", 0)); });
    expectNoLeak("size of a text", [&] { nativeTextSize("text", font.get()); });
    expectNoLeak("size of a smooth text", [&] { nativeSmoothTextSize("text", *font); });
}

TEST_F(GdiObjects, AreNotLeftByPlainOperations) {
    expectNoLeak("pens and brushes", [&] {
        surface->setNullPen();
        surface->setPen(red, 2);
        surface->setNullBrush();
        surface->setBrush(red);
    });
    expectNoLeak("setClip", [&] { surface->setClip(rect); });
    expectNoLeak("shapes", [&] {
        surface->setPixel({5, 5}, red);
        surface->getPixel({5, 5});
        surface->lineTo({20, 20});
        surface->drawArc(rect, {2, 2}, {9, 2}, true);
        surface->fillRectangle(rect);
        surface->drawRectangle(rect);
        surface->drawRoundedRectangle(rect, 5, 5);
        surface->drawEllipse(rect);
        surface->drawPolygon(corners);
    });
    expectNoLeak("pictures", [&] {
        surface->copyFrom(*source, rect);
        surface->blendFrom(*source, rect, rect, 128);
        surface->copyBitmap(*bitmap, rect, {0, 0});
        surface->stretchBitmap(*bitmap, rect, {0, 0, 5, 5});
        surface->blendBitmap(*bitmap, rect, {0, 0, 5, 5}, 128);
    });
    expectNoLeak("drawText", [&] { surface->drawText("text", rect, *font, red, 37); });
}

TEST_F(GdiObjects, AreNotLeftBySmoothOperations) {
    expectNoLeak("clips", [&] {
        drawing->setClip(rect);
        drawing->resetClip();
    });
    expectNoLeak("shapes", [&] {
        drawing->drawLine({red}, {2, 2}, {20, 20});
        drawing->drawRectangle({red}, rect);
        drawing->fillRectangle(red, rect);
        drawing->fillRoundedRectangle(red, rect, 5, 5);
        drawing->fillEllipse(red, rect);
        drawing->fillPolygon(red, corners);
    });
    expectNoLeak("drawText", [&] { drawing->drawText("text", rect, *font, red, 1, 1); });
}

}  // namespace
