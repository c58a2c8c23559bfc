#pragma once

#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowProperty.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

/// Runs openbox on the display.
class CWindowManager {
public:
    /// @param client  knows the display.
    explicit CWindowManager(CTestClient &client) {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        // It tells of menus that are not installed.
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        const char *const arguments[] = {"openbox", "--sm-disable", nullptr};
        const int failed = posix_spawnp(&m_manager, "openbox", &actions, nullptr,
                                        const_cast<char *const *>(arguments), environ);
        posix_spawn_file_actions_destroy(&actions);
        if (failed != 0)
            throw std::runtime_error("openbox is not installed");
        waitUntilItManages(client);
    }
    CWindowManager(const CWindowManager &) = delete;
    CWindowManager &operator=(const CWindowManager &) = delete;
    ~CWindowManager() { stop(); }

    /// Waits until it has handled all that has happened on the screen so far. Until then it keeps
    /// a press to itself, for example, since a press may also be meant for it.
    void synchronise(CTestClient &client) const {
        const xcb_window_t window = xcb_generate_id(client.get());
        xcb_create_window(client.get(), XCB_COPY_FROM_PARENT, window, client.getScreen().root, 0, 0,
                          1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        ask(client, window, "_NET_REQUEST_FRAME_EXTENTS");
        const auto isAnswered = [&] {
            return !numbersOf(client, window, "_NET_FRAME_EXTENTS").empty();
        };
        const bool hasAnswered = waitUntil(isAnswered, std::chrono::milliseconds(1));
        client.destroyWindow(window);
        if (!hasAnswered)
            throw std::runtime_error("openbox does not answer");
    }
    static void minimise(CTestClient &client, xcb_window_t window) {
        constexpr std::uint32_t iconicState = 3;
        ask(client, window, "WM_CHANGE_STATE", iconicState);
    }
    /// Makes it do nothing until it is resumed.
    void pause() const {
        kill(m_manager, SIGSTOP);
        waitpid(m_manager, nullptr, WUNTRACED);
    }
    void resume() const { kill(m_manager, SIGCONT); }

    /// @return whether the window manager has put the window on the screen.
    static bool waitFor(CTestClient &client, xcb_window_t window) {
        return pumpUntil([&] { return !numbersOf(client, window, "WM_STATE").empty(); });
    }

private:
    static void ask(CTestClient &client, xcb_window_t window, const char *type,
                    std::uint32_t argument = 0) {
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atomOf(client, type);
        message.data.data32[0] = argument;
        xcb_send_event(client.get(), 0, client.getScreen().root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&message));
    }
    /// It takes hold of the screen before it looks at windows, and some are lost between.
    void waitUntilItManages(CTestClient &client) {
        const xcb_window_t window = client.createWindow({0, 0, 10, 10}, 0, true);
        const auto isManaged = [&] {
            xcb_unmap_window(client.get(), window);
            xcb_map_window(client.get(), window);
            client.synchronise();
            return !numbersOf(client, window, "WM_STATE").empty();
        };
        if (!waitUntil(isManaged, std::chrono::milliseconds(20))) {
            stop();
            throw std::runtime_error("openbox did not start");
        }
        client.destroyWindow(window);
        synchronise(client);
    }
    /// @param interval  between two questions: each takes time from openbox.
    static bool waitUntil(const std::function<bool()> &isMet, std::chrono::milliseconds interval) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!isMet()) {
            if (std::chrono::steady_clock::now() > deadline)
                return false;
            std::this_thread::sleep_for(interval);
        }
        return true;
    }
    void stop() const {
        kill(m_manager, SIGTERM);
        waitpid(m_manager, nullptr, 0);
    }

    pid_t m_manager = 0;
};
