#include "platform/NativeMessageLoop.h"

#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/windowing/CWindowSpy.h"

#include <thread>

namespace {

class NativeMessageLoop : public testing::Test {
protected:
    NativeMessageLoop() {
        spy.options.parent = handleOf(client.createWindow({0, 0, 300, 200}));
        spy.create();
    }

    CVirtualDisplay display = CVirtualDisplay("640x480x24");
    CTestClient client;
    CWindowSpy spy;
};

TEST_F(NativeMessageLoop, RunsTimers) {
    spy.window->startTimer(1, 1);
    spy.onTimer = [this](int) {
        if (spy.timers.size() == 3)
            quitNativeMessageLoop(4);
    };
    EXPECT_EQ(runNativeMessageLoop(), 4);
    EXPECT_EQ(spy.timers.size(), 3u);
}

TEST_F(NativeMessageLoop, WaitsForTheServer) {
    pumpAll(client);
    spy.painted.clear();
    spy.onPaint = [](INativeSurface &) { quitNativeMessageLoop(5); };
    std::thread covering([this] {
        const xcb_window_t cover = client.createWindow({0, 0, 300, 200});
        client.destroyWindow(cover);
    });
    EXPECT_EQ(runNativeMessageLoop(), 5);
    EXPECT_EQ(spy.painted.size(), 1u);
    covering.join();
}

TEST_F(NativeMessageLoop, PaintsWhatAPaintingInvalidates) {
    spy.onPaint = [this](INativeSurface &) {
        spy.window->invalidate({0, 0, 10, 10});
        if (spy.painted.size() == 3)
            quitNativeMessageLoop(6);
    };
    spy.window->invalidate({0, 0, 10, 10});
    EXPECT_EQ(runNativeMessageLoop(), 6);
}

TEST_F(NativeMessageLoop, IsQuitByAnotherThread) {
    std::thread quitting([] { quitNativeMessageLoop(7); });
    EXPECT_EQ(runNativeMessageLoop(), 7);
    quitting.join();
}

TEST_F(NativeMessageLoop, GoesOnWithoutTheServer) {
    CWindowSpy other;
    other.options.parent = spy.options.parent;
    other.create();
    spy.onEnd = [] { quitNativeMessageLoop(8); };
    pumpAll(client);
    display.crash();
    EXPECT_EQ(runNativeMessageLoop(), 8);
    quitNativeMessageLoop(9);
    EXPECT_EQ(runNativeMessageLoop(), 9);
}

}  // namespace
