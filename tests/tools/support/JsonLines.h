#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

/// @return one value for each line.
inline std::vector<nlohmann::json> jsonLines(const std::string &text) {
    std::vector<nlohmann::json> values;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        values.push_back(nlohmann::json::parse(line));
    return values;
}
