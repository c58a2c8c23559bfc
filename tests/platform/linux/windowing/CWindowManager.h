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

    /// @return whether the window manager has put the window on the screen.
    static bool waitFor(CTestClient &client, xcb_window_t window) {
        return pumpUntil([&] { return !numbersOf(client, window, "WM_STATE").empty(); });
    }

private:
    /// It takes hold of the screen before it looks at windows, and some are lost between.
    void waitUntilItManages(CTestClient &client) {
        const xcb_window_t window = client.createWindow({0, 0, 10, 10}, 0, true);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (numbersOf(client, window, "WM_STATE").empty()) {
            if (std::chrono::steady_clock::now() > deadline) {
                stop();
                throw std::runtime_error("openbox did not start");
            }
            xcb_unmap_window(client.get(), window);
            xcb_map_window(client.get(), window);
            client.synchronise();
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        client.destroyWindow(window);
    }
    void stop() const {
        kill(m_manager, SIGTERM);
        waitpid(m_manager, nullptr, 0);
    }

    pid_t m_manager = 0;
};
