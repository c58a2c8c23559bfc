#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// A folder for one test, deleted when the test ends.
class CTemporaryFolder {
public:
    CTemporaryFolder();
    ~CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder &) = delete;
    CTemporaryFolder &operator=(const CTemporaryFolder &) = delete;

    std::filesystem::path path() const { return m_path; }
    std::filesystem::path operator/(const std::string &name) const { return m_path / name; }

    /// @return the names of all entries, also hidden ones, in alphabetical order.
    std::vector<std::string> names() const;

private:
    std::filesystem::path m_path;
};

std::string readFile(const std::filesystem::path &file);
void writeFile(const std::filesystem::path &file, const std::string &bytes);

/// Copies the first bytes of a file to a new file.
void copyHead(const std::filesystem::path &from, const std::filesystem::path &to,
              std::size_t bytes);
