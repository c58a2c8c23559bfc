#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The outcome of a run of the command-line host.
struct SProgramRun {
    int status;
    std::string out;     // standard output
    std::string errors;  // standard error
};

/// @param arguments    of corvel, without the program's name.
/// @param environment  shell text before the command, such as "NAME=value" or "ulimit -f 10;".
SProgramRun corvel(const std::vector<std::string> &arguments, const std::string &environment = "");

/// The same for another copy of the program.
SProgramRun runProgram(const std::filesystem::path &program,
                       const std::vector<std::string> &arguments,
                       const std::string &environment = "");

/// @return the path of one of the test effects.
std::string testEffect(const std::string &name);
