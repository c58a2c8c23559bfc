#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace Tessitor::Tool {

/// On standard output.
void print(const std::string &text);
void printJson(const nlohmann::ordered_json &json);

/// One line on standard error, with the program's name before it.
void printRemark(const std::string &line);

}  // namespace Tessitor::Tool
