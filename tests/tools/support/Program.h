#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// How a run of the command-line host ended.
struct SProgramRun {
    int status;
    std::string out;     // standard output
    std::string errors;  // standard error
};

/// @param arguments    of corvel, without its name.
/// @param environment  shell words to stand before it, as "NAME=value" or "ulimit -f 10;".
SProgramRun corvel(const std::vector<std::string> &arguments, const std::string &environment = "");

/// The same for another copy of the program.
SProgramRun runProgram(const std::filesystem::path &program,
                       const std::vector<std::string> &arguments,
                       const std::string &environment = "");

/// One of the effects that the tests are built with.
std::string testEffect(const std::string &name);
