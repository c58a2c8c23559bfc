#pragma once

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
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
        m_server = fork();
        if (m_server == 0)
            run(arguments);
        close(ready[1]);
        // The server writes its number when it is ready. If it dies instead, the pipe is closed.
        std::string number;
        for (char digit = 0; read(ready[0], &digit, 1) == 1 && digit != '\n';)
            number += digit;
        close(ready[0]);
        if (number.empty()) {
            stop();
            throw std::runtime_error("Xvfb is not installed or did not start");
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
    /// Becomes the server. It ends with the thread that has started it, however that one ends.
    [[noreturn]] static void run(const char *const *arguments) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        execvp(arguments[0], const_cast<char *const *>(arguments));
        _exit(127);
    }
    void stop(int signal = SIGTERM) {
        if (m_server <= 0)
            return;
        kill(m_server, signal);
        waitpid(m_server, nullptr, 0);
        m_server = 0;
    }

    pid_t m_server = 0;
};
