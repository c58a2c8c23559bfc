#include "tools/support/Program.h"

#include "tools/support/CTemporaryFolder.h"

#include <cstdlib>
#include <sys/wait.h>

namespace {

std::string quoted(const std::string &word) {
    std::string result = "'";
    for (const char letter : word)
        result.append(letter == '\'' ? "'\\''" : std::string(1, letter));
    return result.append("'");
}

}  // namespace

SProgramRun corvel(const std::vector<std::string> &arguments, const std::string &environment) {
    return runProgram(CORVEL_PROGRAM, arguments, environment);
}

SProgramRun runProgram(const std::filesystem::path &program,
                       const std::vector<std::string> &arguments, const std::string &environment) {
    const CTemporaryFolder folder;
    std::string command = environment;
    command.append(" ").append(quoted(program));
    for (const std::string &argument : arguments)
        command.append(" ").append(quoted(argument));
    command.append(" >").append(quoted(folder / "out"));
    command.append(" 2>").append(quoted(folder / "errors"));
    command.append(" </dev/null");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(folder / "out"),
            readFile(folder / "errors")};
}

std::string testEffect(const std::string &name) {
    return std::string(CORVEL_TEST_EFFECTS "/").append(name).append(".so");
}
