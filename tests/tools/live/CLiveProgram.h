#pragma once

#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <string>
#include <sys/types.h>
#include <vector>

/// `corvel live`, running in the background.
class CLiveProgram {
public:
    /// @param arguments  after `live`.
    explicit CLiveProgram(const std::vector<std::string> &arguments);
    ~CLiveProgram();
    CLiveProgram(const CLiveProgram &) = delete;
    CLiveProgram &operator=(const CLiveProgram &) = delete;

    /// @return whether it prints a text to standard output before it ends.
    bool prints(const std::string &text);
    std::string printed() const { return readFile(m_folder / "out"); }
    void send(int signal) const;
    bool isRunning();
    /// Waits until it ends. @return the status is -1 if it does not, or is killed.
    SProgramRun wait();

private:
    CTemporaryFolder m_folder;
    pid_t m_process = 0;
    int m_status = 0;
};
