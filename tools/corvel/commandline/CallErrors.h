#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// @return the arguments in the reversed order that the parser expects. It would take some file
///         names for something else, so they get a "./" in front; and "corvel help" asks for help.
std::vector<std::string> argumentsForParser(int argc, char **argv);

/// @return the file names as they were typed, without what argumentsForParser() added.
std::vector<std::string> namesAsTyped(std::vector<std::string> names);

/// @param app  the parser that threw the error.
/// @return what is wrong with the call, in our words.
std::string describe(const CLI::ParseError &error, const CLI::App &app);

}  // namespace Tessitor::Tool
