#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/CWindowManager.h"
#include "platform/linux/windowing/WindowProperty.h"
#include "tools/live/CJackBench.h"
#include "tools/live/CJackServer.h"
#include "tools/live/CLiveProgram.h"
#include "tools/live/WaitUntil.h"

#include <csignal>
#include <gmock/gmock.h>

// `corvel live --editor`

using testing::HasSubstr;

namespace {

class LiveEditor : public testing::Test {
protected:
    /// @return the window of the program; 0 if it does not appear.
    xcb_window_t findWindow() {
        xcb_window_t found = 0;
        waitUntil([&] {
            const auto tree = ownReply(xcb_query_tree_reply(
                user.get(), xcb_query_tree(user.get(), user.getScreen().root), nullptr));
            const xcb_window_t *children = xcb_query_tree_children(tree.get());
            for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
                if (textOf(user, children[i], "WM_CLASS").starts_with("corvel") &&
                    isViewable(children[i]))
                    found = children[i];
            return found != 0;
        });
        return found;
    }
    bool isViewable(xcb_window_t window) {
        const auto reply = ownReply(xcb_get_window_attributes_reply(
            user.get(), xcb_get_window_attributes(user.get(), window), nullptr));
        return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    }
    bool isTitled(xcb_window_t window, const std::string &title) {
        return waitUntil([&] { return textOf(user, window, "_NET_WM_NAME") == title; });
    }
    bool hasSize(xcb_window_t window, int width, int height) {
        return waitUntil([&] {
            const SNativeRect area = user.areaOf(window);
            return area.right - area.left == width && area.bottom - area.top == height;
        });
    }
    /// Sends what a window manager sends when the user closes a window.
    void close(xcb_window_t window) {
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atomOf(user, "WM_PROTOCOLS");
        message.data.data32[0] = atomOf(user, "WM_DELETE_WINDOW");
        xcb_send_event(user.get(), 0, window, 0, reinterpret_cast<const char *>(&message));
        xcb_flush(user.get());
    }
    /// @return whether the window shows more than one colour.
    bool isPainted(xcb_window_t window) {
        return waitUntil([&] {
            for (int x = 10; x < 700; x += 10)
                if (user.pixelOf(window, x, 100) != user.pixelOf(window, 5, 100))
                    return true;
            return false;
        });
    }

    CVirtualDisplay display{"1024x768x24"};
    CTestClient user;
    CJackServer server;
};

}  // namespace

TEST_F(LiveEditor, OpensInAWindowThatEndsTheProgram) {
    CLiveProgram live({"--editor", "--server", server.name()});
    const xcb_window_t window = findWindow();
    ASSERT_NE(window, 0u);
    EXPECT_TRUE(isTitled(window, "Corvel: Lead Vocal"));
    EXPECT_TRUE(hasSize(window, 748, 370));
    const SNativeRect area = user.areaOf(window);
    EXPECT_EQ(area.left, (1024 - 748) / 2);
    EXPECT_EQ(area.top, (768 - 370) / 2);
    EXPECT_TRUE(isPainted(window));
    ASSERT_TRUE(live.prints("plays"));
    close(window);
    const SProgramRun run = live.wait();
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_THAT(run.out, HasSubstr(" s played, "));
}

TEST_F(LiveEditor, TitleFollowsTheProgram) {
    CJackBench bench(server.name());
    CLiveProgram live(
        {"--editor", "--midi", "--plugin", testEffect("Lively"), "--server", server.name()});
    const xcb_window_t window = findWindow();
    EXPECT_TRUE(isTitled(window, "Test effect: Plain"));
    ASSERT_TRUE(live.prints("plays"));
    jack_connect(bench.client(), "source:midi", "corvel:midi_in");
    bench.sendMidi({0, 0xC0, 1, 0});
    EXPECT_TRUE(isTitled(window, "Test effect: Loud"));
}

TEST_F(LiveEditor, OfAnotherEffectIsCalledAsHostsDo) {
    const CTemporaryFolder folder;
    setenv("CORVEL_TEST_LOG", (folder / "log").c_str(), 1);
    CLiveProgram live(
        {"--editor", "--no-connect", "--plugin", testEffect("Lively"), "--server", server.name()});
    unsetenv("CORVEL_TEST_LOG");
    const xcb_window_t window = findWindow();
    EXPECT_TRUE(hasSize(window, 320, 240));
    live.send(SIGTERM);
    EXPECT_EQ(live.wait().status, 0);
    const std::string log = readFile(folder / "log");
    EXPECT_LT(log.find("edit open"), log.find("edit size 1"));
    EXPECT_LT(log.find("edit size 1"), log.find("edit close"));
    EXPECT_LT(log.find("edit close"), log.rfind("close"));
}

TEST_F(LiveEditor, EndsTheProgramWhenTheDisplayGoes) {
    CLiveProgram live({"--editor", "--server", server.name()});
    ASSERT_NE(findWindow(), 0u);
    ASSERT_TRUE(live.prints("plays"));
    display.crash();
    EXPECT_EQ(live.wait().status, 0);
}

TEST_F(LiveEditor, WorksUnderAWindowManager) {
    CWindowManager manager(user);
    CLiveProgram live({"--editor", "--server", server.name()});
    ASSERT_TRUE(live.prints("plays"));
    live.send(SIGTERM);
    EXPECT_EQ(live.wait().status, 0);
}

TEST(LiveEditorErrors, NoDisplayIsOneLine) {
    CJackServer server;
    const SProgramRun run =
        corvel({"live", "--editor", "--server", server.name()}, "unset DISPLAY;");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.errors, "corvel: the editor cannot be opened: No X server can be reached.\n");
}
