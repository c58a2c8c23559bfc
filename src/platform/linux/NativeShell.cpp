#include "platform/NativeShell.h"

#include <cerrno>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

int waitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0) {
        if (errno == ECHILD)  // the host reaps all children and got the status first
            return 0;
        if (errno != EINTR)
            return -1;
    }
    return status;
}

// Ardour 7.3 sets LD_LIBRARY_PATH to its own libraries, which may not suit other programs.
std::vector<char *> environmentWithoutLibraryPath() {
    std::vector<char *> kept;
    for (char **variable = environ; *variable != nullptr; ++variable)
        if (!std::string_view(*variable).starts_with("LD_LIBRARY_PATH="))
            kept.push_back(*variable);
    kept.push_back(nullptr);
    return kept;
}

}  // namespace

bool openNativeDocument(const std::string &document) {
    // The shell exits at once and we wait for it, so xdg-open is not a child of the host and leaves
    // it no zombie. Nor does xdg-open inherit the host's open files.
    const char *const arguments[] = {
        "sh", "-c", R"(xdg-open "$1" >/dev/null 2>&1 &)", "sh", document.c_str(), nullptr};
    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0)
        return false;
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    pid_t shell = 0;
    const int failed =
        posix_spawn(&shell, "/bin/sh", &actions, nullptr, const_cast<char *const *>(arguments),
                    environmentWithoutLibraryPath().data());
    posix_spawn_file_actions_destroy(&actions);
    return failed == 0 && waitFor(shell) == 0;
}
