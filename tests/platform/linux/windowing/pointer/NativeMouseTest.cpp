#include "platform/NativeMouse.h"

#include "platform/linux/windowing/CHostFixture.h"
#include "platform/linux/windowing/pointer/CXcbPointer.h"

namespace {

TEST(NativeMouse, LoadsCursorsWithoutADisplay) {
    unsetenv("DISPLAY");
    void *cursor = loadNativeCursor(32512);
    EXPECT_NE(cursor, nullptr);
    setNativeCursor(cursor);
    destroyNativeCursor(cursor);
    destroyNativeCursor(nullptr);
}

TEST(NativeMouse, HasNoOtherCursorsThanThoseOfTheSystem) {
    EXPECT_EQ(loadNativeCursor(1), nullptr);
    EXPECT_EQ(loadNativeCursor(nullptr, 32512), nullptr);
    EXPECT_EQ(loadNativeAnimatedCursor(nullptr, 1), nullptr);
}

TEST(NativeMouse, IsNowhereWithoutADisplay) {
    unsetenv("DISPLAY");
    EXPECT_EQ(nativeMousePosition(), SNativePoint());
    EXPECT_EQ(nativeMouseCapture(), nullptr);
    captureNativeMouse(handleOf(1));
    captureNativeMouse(nullptr);
    releaseNativeMouse();
    EXPECT_EQ(nativeMouseCapture(), nullptr);
}

TEST(NativeMouse, IsNowhereWhenTheServerIsGone) {
    auto display = std::make_unique<CVirtualDisplay>("640x480x24");
    auto client = std::make_unique<CTestClient>();
    CWindowSpy window;
    window.options.parent = handleOf(client->createWindow({0, 0, 200, 200}));
    window.create();
    const auto connection = CXcbConnection::find(idOf(*window.window));
    client->movePointer(30, 40);
    EXPECT_EQ(nativeMousePosition(), (SNativePoint{30, 40}));
    captureNativeMouse(window.window->getHandle());
    client.reset();
    display.reset();
    EXPECT_EQ(nativeMousePosition(), SNativePoint());
    EXPECT_EQ(connection->pointer().getState(), 0);
    setNativeCursor(nullptr);
    releaseNativeMouse();
    EXPECT_EQ(nativeMouseCapture(), nullptr);
}

}  // namespace
