#pragma once

#include <filesystem>
#include <string>

namespace Tessitor::Tool {

/// "-" is standard input where an input is named, and standard output where an output is named. A
/// file of that name is "./-".
inline bool isStandardStream(const std::filesystem::path &name) {
    return name == "-";
}

/// @return the name of an input or an output for messages.
inline std::string nameOfInput(const std::filesystem::path &name) {
    return isStandardStream(name) ? "standard input" : name.string();
}

inline std::string nameOfOutput(const std::filesystem::path &name) {
    return isStandardStream(name) ? "standard output" : name.string();
}

}  // namespace Tessitor::Tool
