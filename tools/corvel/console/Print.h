#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace Tessitor::Tool {

/// Prints to standard output.
void print(const std::string &text);
void printJson(const nlohmann::ordered_json &json);

/// Prints JSON in one line.
void printJsonLine(const nlohmann::ordered_json &json);

/// @return false if standard output did not accept everything, for example on a full disk.
bool isAllPrinted();

/// Prints one line to standard error, with the program's name in front.
void printRemark(const std::string &line);

}  // namespace Tessitor::Tool
