#include "tools/support/CTemporaryFolder.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdlib.h>

namespace fs = std::filesystem;

CTemporaryFolder::CTemporaryFolder() {
    std::string name = testing::TempDir() + "corvelXXXXXX";
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    m_path = name;
}

CTemporaryFolder::~CTemporaryFolder() {
    fs::remove_all(m_path);
}

std::vector<std::string> CTemporaryFolder::names() const {
    std::vector<std::string> names;
    for (const fs::directory_entry &entry : fs::directory_iterator(m_path))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

std::string readFile(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const fs::path &file, const std::string &bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

void copyHead(const fs::path &from, const fs::path &to, std::size_t bytes) {
    writeFile(to, readFile(from).substr(0, bytes));
}
