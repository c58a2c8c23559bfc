#include "tools/live/CLiveProgram.h"

#include "tools/live/WaitUntil.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

CLiveProgram::CLiveProgram(const std::vector<std::string> &arguments) {
    std::vector<std::string> words = {CORVEL_PROGRAM, "live"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> pointers;
    for (std::string &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, (m_folder / "out").c_str(), flags,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, (m_folder / "errors").c_str(), flags,
                                     0600);
    const int failed =
        posix_spawn(&m_process, CORVEL_PROGRAM, &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0)
        throw std::runtime_error("corvel does not start");
    waitUntil([this] { return std::filesystem::exists(m_folder / "errors"); });
}

CLiveProgram::~CLiveProgram() {
    if (!isRunning())
        return;
    // A server that waits for its clients would wait long for one that was killed.
    send(SIGTERM);
    wait();
    if (isRunning()) {
        send(SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
}

bool CLiveProgram::prints(const std::string &text) {
    const auto isPrinted = [&] { return printed().find(text) != std::string::npos; };
    waitUntil([&] { return isPrinted() || !isRunning(); });
    return isPrinted();
}

void CLiveProgram::send(int signal) const {
    kill(m_process, signal);
}

bool CLiveProgram::isRunning() {
    if (m_process > 0 && waitpid(m_process, &m_status, WNOHANG) == m_process)
        m_process = 0;
    return m_process > 0;
}

SProgramRun CLiveProgram::wait() {
    const bool hasEnded = waitUntil([this] { return !isRunning(); });
    return {hasEnded && WIFEXITED(m_status) ? WEXITSTATUS(m_status) : -1, printed(),
            readFile(m_folder / "errors")};
}
