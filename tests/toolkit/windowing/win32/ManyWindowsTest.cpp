// What opening and closing costs.
#include "CNativeWindowTest.h"
#include "abi/HeapInUse.h"
#include "foundation/CString.h"
#include "platform/win32/drawing/CountObjects.h"
#include "platform/win32/windowing/CountWindows.h"
#include "platform/win32/windowing/LowMemory.h"
#include "platform/win32/windowing/RemoveHooks.h"
#include "toolkit/controls/CKnob.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/graphics/TestImage.h"

namespace {

using namespace Tessitor::GUI;

/// Counts what it has been asked to draw.
class CDrawnLabel : public Controls::CTextLabel {
public:
    using CTextLabel::CTextLabel;
    void drawControl(Graphics::CGraphics &graphics) override {
        ++drawn;
        CTextLabel::drawControl(graphics);
    }
    static inline int drawn = 0;
};

class ManyWindows : public CNativeWindowTest {
protected:
    void openAndClose(int times) {
        for (int i = 0; i < times; ++i) {
            CWindow filled(CRect(10, 20, 200, 100));
            fill(filled);
            openInNative(filled, host);
            filled.destroyWindow();
        }
    }
    void fill(CWindow &filled) {
        Controls::IControlRoot *root = filled.getControlRoot();
        for (int i = 0; i < 100; i += 2) {
            const int left = i % 10 * 20, top = i / 10 * 10;
            auto *knob = new Controls::CKnob(root, i, CRect(left, top, 10, 10), nullptr);
            knob->setPrimaryImage(image, 10, 4, false);
            root->addControl(knob);
            root->addControl(new CDrawnLabel(root, i + 1, CRect(left + 20, top, 20, 10), "label"));
        }
    }
    ~ManyWindows() override { image->dereference(); }
    /// @return the first free piece of low memory.
    static void *firstLowMemory() {
        void *memory = allocateLowMemory(1);
        freeLowMemory(memory);
        return memory;
    }

    CTestImage *image = [] {
        auto *created = new CTestImage(10, 40, true);
        created->reference();
        return created;
    }();
};

TEST_F(ManyWindows, LeaveNothingBehind) {
    openAndClose(100);  // the first ones also create what the system keeps
    const int objects = countObjects(), windows = countWindows();
    const std::size_t heap = heapInUse();
    void *const lowMemory = firstLowMemory();
    CDrawnLabel::drawn = 0;
    constexpr int times = 1000;
    openAndClose(times);
    EXPECT_EQ(CDrawnLabel::drawn, times * 50);
    EXPECT_EQ(countObjects(), objects);
    EXPECT_EQ(countWindows(), windows);
    EXPECT_LT(heapInUse(), heap + times);  // not a byte for each
    EXPECT_EQ(firstLowMemory(), lowMemory);
    EXPECT_EQ(removeHooks(), 0);
}

}  // namespace
