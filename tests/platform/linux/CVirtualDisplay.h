#pragma once

#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// An X server of the test's own, without a monitor, to which DISPLAY leads as long as it lives.
class CVirtualDisplay {
public:
    /// @param screen  width, height and depth as the server takes them: "640x480x24".
    explicit CVirtualDisplay(const char *screen) {
        int ready[2];
        if (pipe(ready) != 0)
            throw std::runtime_error("no pipe");
        const std::string descriptor = std::to_string(ready[1]);
        const char *const arguments[] = {"Xvfb",      "-displayfd", descriptor.c_str(),
                                         "-screen",   "0",          screen,
                                         "-nolisten", "tcp",        nullptr};
        const int failed = posix_spawnp(&m_server, "Xvfb", nullptr, nullptr,
                                        const_cast<char *const *>(arguments), environ);
        close(ready[1]);
        // The server writes its number once it listens; its end closes the pipe as well.
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

private:
    void stop() const {
        kill(m_server, SIGTERM);
        waitpid(m_server, nullptr, 0);
    }

    pid_t m_server = 0;
};
