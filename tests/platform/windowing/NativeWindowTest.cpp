// What the windows of all systems have in common.
#include "CTestHost.h"
#include "CWindowSpy.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr std::intptr_t packed(int low, int high) {
    return low | high << 16;
}

class NativeWindow : public testing::Test {
protected:
    static void SetUpTestSuite() { host = std::make_unique<CTestHost>(); }
    static void TearDownTestSuite() { host.reset(); }

    NativeWindow() { spy.options.parent = parent; }
    ~NativeWindow() override {
        spy.window.reset();
        host->destroyWindow(parent);
    }

    /// Creates the window and waits until it is painted and nothing else is to be reported.
    void createPainted() {
        spy.create();
        EXPECT_TRUE(host->pumpUntil([this] { return !spy.painted.empty(); }));
        settle();
    }
    /// Waits until a timer has been reported that was started after all else.
    void settle() {
        spy.window->startTimer(999, 20);
        EXPECT_TRUE(host->pumpUntil([this] { return !spy.timers.empty(); }));
        spy.window->stopTimer(999);
        spy.timers.clear();
        spy.messages.clear();
        spy.painted.clear();
    }

    static inline std::unique_ptr<CTestHost> host;
    void *parent = host->createWindow();
    CWindowSpy spy;
};

TEST_F(NativeWindow, IsCreatedWithBoundsInItsParent) {
    spy.create();
    EXPECT_EQ(spy.reason, "");
    EXPECT_NE(spy.window->getHandle(), nullptr);
    const auto [left, top, right, bottom] = spy.window->getScreenArea();
    EXPECT_EQ(left, 50 + 10);
    EXPECT_EQ(top, 60 + 20);
    EXPECT_EQ(right, 50 + 110);
    EXPECT_EQ(bottom, 60 + 70);
}

TEST_F(NativeWindow, ReportsItsPositionAndSizeWhileItIsCreated) {
    spy.create();
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(packed(10, 20)));
    EXPECT_THAT(spy.all(NativeSize), ElementsAre(packed(100, 50)));
}

TEST_F(NativeWindow, IsRefusedInAParentThatDoesNotExist) {
    void *gone = host->createWindow();
    host->destroyWindow(gone);
    spy.options.parent = gone;
    EXPECT_EQ(createNativeWindow(spy.options, spy, spy.reason), nullptr);
    EXPECT_THAT(spy.reason, Not(IsEmpty()));
    EXPECT_NE(spy.reason, "untouched");
    EXPECT_EQ(spy.ends, 0);
}

TEST_F(NativeWindow, AChildIsRefusedWithoutAParent) {
    spy.options.parent = nullptr;
    EXPECT_EQ(createNativeWindow(spy.options, spy, spy.reason), nullptr);
    EXPECT_THAT(spy.reason, Not(IsEmpty()));
    EXPECT_NE(spy.reason, "untouched");
}

TEST_F(NativeWindow, PaintsAtOnceWhenItIsShown) {
    spy.options.style = 0x40000000;
    spy.create();
    spy.window->update();
    EXPECT_THAT(spy.painted, IsEmpty());
    spy.window->show();
    spy.window->update();
    ASSERT_EQ(spy.painted.size(), 1u);
    EXPECT_EQ(spy.painted[0].right, 100);
    EXPECT_EQ(spy.painted[0].bottom, 50);
}

TEST_F(NativeWindow, PaintsAllThatIsInvalidAtOnce) {
    createPainted();
    spy.window->invalidate({-5, 4, 20, 30});
    spy.window->invalidate({10, 10, 40, 20});
    spy.window->invalidate({30, 30, 20, 20});
    EXPECT_THAT(spy.painted, IsEmpty());
    EXPECT_TRUE(host->pumpUntil([this] { return !spy.painted.empty(); }));
    settle();
    spy.window->invalidate({-5, 4, 20, 30});
    spy.window->invalidate({10, 10, 400, 20});
    spy.window->update();
    ASSERT_EQ(spy.painted.size(), 1u);
    EXPECT_EQ(spy.painted[0].left, 0);
    EXPECT_EQ(spy.painted[0].top, 4);
    EXPECT_EQ(spy.painted[0].right, 100);
    EXPECT_EQ(spy.painted[0].bottom, 30);
    spy.window->update();
    EXPECT_EQ(spy.painted.size(), 1u);
}

TEST_F(NativeWindow, IsValidAfterAPaintMessageThatNobodyAnswers) {
    createPainted();
    std::unique_ptr<INativeWindow> window = std::move(spy.window);  // so that it paints nothing
    window->invalidate({0, 0, 10, 10});
    window->update();
    window->update();
    EXPECT_EQ(spy.all(NativePaint).size(), 1u);
}

TEST_F(NativeWindow, APaintingThatThrowsIsOver) {
    createPainted();
    spy.window->invalidate({0, 0, 10, 10});
    EXPECT_THROW(spy.window->paint([](INativePaintTarget &, const SNativeRect &) { throw 1; }),
                 int);
    spy.window->update();
    EXPECT_THAT(spy.painted, IsEmpty());
}

TEST_F(NativeWindow, MayEndInsideItsPainting) {
    createPainted();
    spy.onPaint = [this](INativeSurface &) { spy.window.reset(); };
    spy.window->invalidate({0, 0, 10, 10});
    EXPECT_TRUE(host->pumpUntil([this] { return spy.window == nullptr; }));
    EXPECT_EQ(spy.ends, 0);
}

TEST_F(NativeWindow, AHandlerMayInvalidateWhatItPaints) {
    createPainted();
    spy.onPaint = [this](INativeSurface &) {
        if (spy.painted.size() < 3)
            spy.window->invalidate({0, 0, 5, 5});
    };
    spy.window->invalidate({0, 0, 10, 10});
    EXPECT_TRUE(host->pumpUntil([this] { return spy.painted.size() == 3; }));
    EXPECT_EQ(spy.painted[2].right, 5);
}

TEST_F(NativeWindow, ReportsItsPositionAndSizeAsFarAsTheyChange) {
    createPainted();
    spy.window->move({30, 40});
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(packed(30, 40)));
    EXPECT_THAT(spy.all(NativeSize), IsEmpty());
    spy.messages.clear();
    spy.window->moveAndResize({30, 40, 110, 100});
    EXPECT_THAT(spy.all(NativeMove), IsEmpty());
    EXPECT_THAT(spy.all(NativeSize), ElementsAre(packed(80, 60)));
    spy.messages.clear();
    spy.window->moveAndResize({1, 2, 1 + 70, 2 + 60});
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(packed(1, 2)));
    EXPECT_THAT(spy.all(NativeSize), ElementsAre(packed(70, 60)));
    EXPECT_EQ(spy.window->getScreenArea().right, 50 + 71);
    settle();
    EXPECT_EQ(spy.window->getScreenArea().right, 50 + 71);
    EXPECT_THAT(spy.all(NativeMove), IsEmpty());
    EXPECT_THAT(spy.all(NativeSize), IsEmpty());
}

TEST_F(NativeWindow, PaintsNothingWhileItIsHidden) {
    createPainted();
    spy.window->hide();
    spy.window->invalidate({0, 0, 10, 10});
    spy.window->update();
    EXPECT_THAT(spy.painted, IsEmpty());
    settle();
    spy.window->show();
    EXPECT_TRUE(host->pumpUntil([this] { return !spy.painted.empty(); }));
}

TEST_F(NativeWindow, TimersReachTheListenerUntilTheyAreStopped) {
    createPainted();
    spy.onTimer = [this](int id) {
        if (spy.timers.size() == 3)
            spy.window->stopTimer(id);
    };
    EXPECT_TRUE(spy.window->startTimer(7, 10));
    EXPECT_TRUE(host->pumpUntil([this] { return spy.timers.size() == 3; }));
    spy.onTimer = nullptr;
    EXPECT_TRUE(spy.window->startTimer(8, 50));
    EXPECT_TRUE(host->pumpUntil([this] { return spy.timers.size() == 4; }));
    EXPECT_THAT(spy.timers, ElementsAre(7, 7, 7, 8));
    spy.window->stopTimer(8);
}

TEST_F(NativeWindow, RefusesTimersWithoutIdOrTime) {
    spy.create();
    EXPECT_FALSE(spy.window->startTimer(0, 10));
    EXPECT_FALSE(spy.window->startTimer(-1, 10));
    EXPECT_FALSE(spy.window->startTimer(1, 0));
    spy.window->stopTimer(1);
}

TEST_F(NativeWindow, MayEndInsideATimer) {
    createPainted();
    spy.onTimer = [this](int) { spy.window.reset(); };
    EXPECT_TRUE(spy.window->startTimer(1, 10));
    EXPECT_TRUE(spy.window->startTimer(2, 10));
    EXPECT_TRUE(host->pumpUntil([this] { return spy.window == nullptr; }));
    EXPECT_EQ(spy.timers.size(), 1u);
}

TEST_F(NativeWindow, ItsDestructorReportsDestroyOnly) {
    spy.create();
    spy.messages.clear();
    spy.window.reset();
    EXPECT_EQ(spy.all(NativeDestroy).size(), 1u);
    EXPECT_EQ(spy.ends, 0);
}

TEST_F(NativeWindow, ReportsThatItsParentTookItAway) {
    void *inner = host->createWindow();
    spy.options.parent = inner;
    spy.create();
    spy.window->startTimer(1, 10000);
    host->destroyWindow(inner);
    EXPECT_TRUE(host->pumpUntil([this] { return spy.ends == 1; }));
    EXPECT_EQ(spy.all(NativeDestroy).size(), 1u);
    EXPECT_EQ(spy.window->getHandle(), nullptr);
    spy.window->show();
    spy.window->hide();
    spy.window->enable(false);
    spy.window->bringToFront();
    spy.window->setTitle("late");
    spy.window->setAlpha(100);
    spy.window->move({1, 1});
    spy.window->moveAndResize({1, 1, 2, 2});
    spy.window->invalidate({0, 0, 1, 1});
    spy.window->update();
    spy.window->paint([](INativePaintTarget &, const SNativeRect &) { FAIL(); });
    EXPECT_FALSE(spy.window->startTimer(1, 10));
    spy.window->stopTimer(1);
    spy.window->pump();
    spy.window->trackMouseLeave();
    spy.window->hookWheel();
    spy.window->unhookWheel();
    EXPECT_EQ(spy.window->getScreenArea().right, 0);
    spy.window.reset();
    EXPECT_EQ(spy.ends, 1);
    EXPECT_EQ(spy.all(NativeDestroy).size(), 1u);
}

TEST_F(NativeWindow, MayBeDeletedWhenItsParentTakesItAway) {
    void *inner = host->createWindow();
    spy.options.parent = inner;
    spy.create();
    spy.onEnd = [this] { spy.window.reset(); };
    host->destroyWindow(inner);
    EXPECT_TRUE(host->pumpUntil([this] { return spy.window == nullptr; }));
    EXPECT_EQ(spy.ends, 1);
}

TEST_F(NativeWindow, TakesItsChildrenAlong) {
    spy.create();
    CWindowSpy child;
    child.options.parent = spy.window->getHandle();
    child.create();
    spy.window.reset();
    EXPECT_EQ(child.ends, 1);
    EXPECT_EQ(child.all(NativeDestroy).size(), 1u);
    EXPECT_EQ(child.window->getHandle(), nullptr);
}

TEST_F(NativeWindow, APopupTakesThoseAlongThatFloatAboveIt) {
    CWindowSpy child, upper, upmost;
    for (CWindowSpy *popup : {&spy, &upper, &upmost}) {
        popup->options.style = 0x80000000;
        popup->options.extendedStyle = 0x8080008;
    }
    spy.create();
    child.options.parent = spy.window->getHandle();
    child.create();
    upper.options.parent = child.window->getHandle();
    upper.create();
    upmost.options.parent = upper.window->getHandle();
    upmost.create();
    child.window.reset();
    EXPECT_EQ(upper.ends, 0) << "it floats above the popup, not its child";
    spy.window.reset();
    EXPECT_EQ(upper.ends, 1);
    EXPECT_EQ(upmost.ends, 1);
    EXPECT_EQ(upmost.window->getHandle(), nullptr);
}

TEST_F(NativeWindow, APopupIsPlacedOnTheScreen) {
    spy.options.style = 0x80000000;
    spy.options.extendedStyle = 0x8080008;
    spy.create();
    EXPECT_THAT(spy.all(NativeMove), ElementsAre(packed(10, 20)));
    EXPECT_EQ(spy.window->getScreenArea().left, 10);
    EXPECT_EQ(spy.window->getScreenArea().bottom, 70);
    spy.window->move({200, 100});
    EXPECT_EQ(spy.window->getScreenArea().left, 200);
    EXPECT_EQ(spy.window->getScreenArea().bottom, 150);
}

}  // namespace
