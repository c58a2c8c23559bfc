#include "platform/linux/windowing/connection/CXcbConnection.h"

#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/CNoPipeSignal.h"
#include "platform/windowing/CWindowSpy.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <thread>

namespace {

using testing::IsEmpty;

/// A child window of a parent of its own.
struct SEditor {
    explicit SEditor(CTestClient &host) { open(host); }
    void open(CTestClient &host) {
        spy.options.parent = handleOf(host.createWindow({0, 0, 300, 200}));
        spy.create();
    }
    std::shared_ptr<CXcbConnection> connection() const {
        return CXcbConnection::find(idOf(*spy.window));
    }

    CWindowSpy spy;
};

/// For a host whose server is gone.
void endHost(std::unique_ptr<CTestClient> host) {
    const CNoPipeSignal guard;
    host.reset();
}

TEST(CXcbConnection, IsNotOpenedWithoutAServer) {
    unsetenv("DISPLAY");
    CWindowSpy spy;
    spy.options.parent = handleOf(1);
    EXPECT_EQ(createNativeWindow(spy.options, spy, spy.reason), nullptr);
    EXPECT_EQ(spy.reason, "No X server can be reached.");
}

TEST(CXcbConnection, EachEditorHasItsOwn) {
    const CVirtualDisplay display("640x480x24");
    CTestClient host;
    SEditor first(host), second(host);
    EXPECT_NE(first.connection(), second.connection());
    EXPECT_EQ(CXcbConnection::getAll().size(), 2u);
    first.spy.painted.clear();
    second.spy.painted.clear();
    first.spy.window->invalidate({0, 0, 10, 10});
    second.spy.window->invalidate({0, 0, 10, 10});
    first.spy.window->pump();
    EXPECT_EQ(first.spy.painted.size(), 1u);
    EXPECT_THAT(second.spy.painted, IsEmpty());
    first.spy.window.reset();
    second.spy.window->pump();
    EXPECT_EQ(second.spy.painted.size(), 1u);
    EXPECT_EQ(CXcbConnection::current(), second.connection());
}

TEST(CXcbConnection, KnowsTheTimeBeforeTheUserDoesAnything) {
    const CVirtualDisplay display("640x480x24");
    CTestClient host;
    const SEditor editor(host);
    pumpAll(host);
    EXPECT_NE(editor.connection()->getTime(), xcb_timestamp_t{XCB_CURRENT_TIME});
}

TEST(CXcbConnection, IsSharedByWindowsThatBelongTogether) {
    const CVirtualDisplay display("640x480x24");
    CTestClient host;
    SEditor editor(host);
    CWindowSpy popup, child;
    popup.options.parent = child.options.parent = editor.spy.window->getHandle();
    popup.options.style = 0x80000000;
    popup.create();
    child.create();
    EXPECT_EQ(CXcbConnection::getAll().size(), 1u);
    EXPECT_EQ(CXcbConnection::find(idOf(*popup.window)), editor.connection());
    EXPECT_EQ(CXcbConnection::find(idOf(*child.window)), editor.connection());
}

TEST(CXcbConnection, IsClosedWithItsLastWindow) {
    const CVirtualDisplay display("640x480x24");
    CTestClient host;
    SEditor editor(host);
    for (int i = 0; i < 3; ++i) {
        editor.spy.painted.clear();
        pumpAll(host);
        EXPECT_EQ(host.pixelOf(idOf(*editor.spy.window), 0, 0), CWindowSpy::colour);
        editor.spy.window.reset();
        EXPECT_THAT(CXcbConnection::getAll(), IsEmpty());
        EXPECT_EQ(CXcbConnection::current(), nullptr);
        editor.open(host);
    }
}

TEST(CXcbConnection, BelongsToTheThreadThatHasOpenedIt) {
    const CVirtualDisplay display("640x480x24");
    CTestClient host;
    SEditor editor(host);
    std::thread([&] {
        EXPECT_THAT(CXcbConnection::getAll(), IsEmpty());
        EXPECT_EQ(editor.connection(), nullptr);
        // A host that idles on another thread all the same
        editor.spy.painted.clear();
        editor.spy.onPaint = [&](INativeSurface &) {
            EXPECT_NE(editor.connection(), nullptr);
            EXPECT_EQ(CXcbConnection::current(), editor.connection());
        };
        editor.spy.window->invalidate({0, 0, 10, 10});
        editor.spy.window->pump();
        EXPECT_EQ(editor.spy.painted.size(), 1u);
    }).join();
}

TEST(CXcbConnection, LosesItsWindowsWithTheServer) {
    CVirtualDisplay display("640x480x24");
    auto host = std::make_unique<CTestClient>();
    SEditor editor(*host);
    CWindowSpy popup, deleted;
    for (CWindowSpy *spy : {&popup, &deleted}) {
        spy->options.parent = editor.spy.window->getHandle();
        spy->options.style = 0x90000000;
        spy->create();
        spy->messages.clear();
    }
    deleted.onEnd = [&] { deleted.window.reset(); };
    pumpAll(*host);
    editor.spy.messages.clear();
    editor.spy.window->invalidate({0, 0, 100, 50});
    display.crash();
    EXPECT_TRUE(pumpUntil([&] { return editor.spy.ends > 0; }));
    editor.spy.window->pump();
    EXPECT_EQ(editor.spy.ends, 1);
    EXPECT_EQ(popup.ends, 1);
    EXPECT_EQ(deleted.ends, 1);
    EXPECT_THAT(editor.spy.all(NativeDestroy), IsEmpty());
    EXPECT_EQ(editor.spy.window->getHandle(), nullptr);
    editor.spy.window->show();
    editor.spy.window->invalidate({0, 0, 1, 1});
    editor.spy.window->update();
    editor.spy.window->paint([](INativePaintTarget &, const SNativeRect &) { FAIL(); });
    EXPECT_FALSE(editor.spy.window->startTimer(1, 1));
    endHost(std::move(host));
}

TEST(CXcbConnection, IsHarmlessBetweenTheServersEndAndTheNextPump) {
    CVirtualDisplay display("640x480x24");
    auto host = std::make_unique<CTestClient>();
    SEditor editor(*host);
    pumpAll(*host);
    display.crash();
    INativeWindow &window = *editor.spy.window;
    for (int i = 0; i < 3; ++i) {
        window.moveAndResize({i, i, i + 50, i + 60});
        window.invalidate({0, 0, 50, 50});
        window.update();
        window.hide();
        window.show();
        window.getScreenArea();
    }
    CWindowSpy child;
    child.options.parent = window.getHandle();
    EXPECT_EQ(createNativeWindow(child.options, child, child.reason), nullptr);
    EXPECT_NE(child.reason, "");
    EXPECT_EQ(editor.spy.ends, 0);
    editor.spy.window.reset();
    EXPECT_EQ(editor.spy.ends, 0);
    endHost(std::move(host));
}

}  // namespace
