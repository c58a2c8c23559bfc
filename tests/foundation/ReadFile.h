#pragma once

#include <fstream>
#include <iterator>
#include <string>

/// @return all bytes of a file; "" if it cannot be read.
inline std::string readFile(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
