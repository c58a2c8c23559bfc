#pragma once

#include <filesystem>
#include <random>
#include <string>

/// An empty folder for one test, removed with its contents when the test ends.
class CTemporaryFolder {
public:
    CTemporaryFolder() {
        std::random_device random;
        do {
            m_path =
                std::filesystem::temp_directory_path() / ("corvel-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(m_path));
    }
    CTemporaryFolder(const CTemporaryFolder &) = delete;
    CTemporaryFolder &operator=(const CTemporaryFolder &) = delete;
    ~CTemporaryFolder() {
        std::error_code ignored;  // anything left over is in the system's temporary folder
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path &path() const { return m_path; }
    std::filesystem::path operator/(const char *name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};
