#pragma once

#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// Runs an X server without a monitor and points DISPLAY to it.
class CVirtualDisplay {
public:
    /// @param screen  width, height and depth in the server's notation, "640x480x24".
    explicit CVirtualDisplay(const char *screen) {
        int ready[2];
        if (pipe(ready) != 0)
            throw std::runtime_error("no pipe");
        const std::string descriptor = std::to_string(ready[1]);
        const char *const arguments[] = {"Xvfb",     "-displayfd", descriptor.c_str(), "-screen",
                                         "0",        screen,       "-nolisten",        "tcp",
                                         "-noreset", nullptr};
        const int failed = posix_spawnp(&m_server, "Xvfb", nullptr, nullptr,
                                        const_cast<char *const *>(arguments), environ);
        close(ready[1]);
        // The server writes its number when it is ready. If it dies instead, the pipe is closed.
        std::string number;
        for (char digit = 0; failed == 0 && read(ready[0], &digit, 1) == 1 && digit != '\n';)
            number += digit;
        close(ready[0]);
        if (failed != 0)
            throw std::runtime_error("Xvfb is not installed");
        if (number.empty()) {
            stop();
            throw std::runtime_error("Xvfb did not start");
        }
        setenv("DISPLAY", (":" + number).c_str(), 1);
    }
    CVirtualDisplay(const CVirtualDisplay &) = delete;
    CVirtualDisplay &operator=(const CVirtualDisplay &) = delete;
    ~CVirtualDisplay() {
        unsetenv("DISPLAY");
        stop();
    }

    /// Ends the server without giving it time to tell its clients.
    void crash() { stop(SIGKILL); }
    /// Makes the server do nothing until it is resumed.
    void pause() const {
        kill(m_server, SIGSTOP);
        waitpid(m_server, nullptr, WUNTRACED);
    }
    void resume() const { kill(m_server, SIGCONT); }

private:
    void stop(int signal = SIGTERM) {
        if (m_server == 0)
            return;
        kill(m_server, signal);
        waitpid(m_server, nullptr, 0);
        m_server = 0;
    }

    pid_t m_server = 0;
};
