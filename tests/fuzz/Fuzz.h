#pragma once

#include "CTemporaryFolder.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

/// The body of a fuzz target: does everything possible with the input and aborts if a requirement
/// fails. libFuzzer calls it with inputs that it generates, Replay.cpp with the corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Aborts with the message unless the condition holds.
inline void require(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "Requirement failed: %s\n", what);
    std::abort();
}

/// Writes the input to a file in a folder of its own, for code that reads files.
class CInputFile {
public:
    explicit CInputFile(const char *name = "input") : m_path((m_folder / name).string()) {}
    /// Uses a new file each time: truncating an old one waits for the disk on some file systems.
    const std::string &write(const std::string &bytes) {
        remove();
        std::ofstream(m_path, std::ios::binary) << bytes;
        return m_path;
    }
    void remove() const { std::filesystem::remove(m_path); }

private:
    CTemporaryFolder m_folder;
    std::string m_path;
};

/// The bytes up to the first zero: what a function sees of them as a C string.
inline std::string untilZero(const std::string &bytes) {
    return bytes.substr(0, bytes.find('\0'));
}

/// Reads values from an input, from its start; returns zeros and "" after its end.
class CInput {
public:
    CInput(const std::uint8_t *data, std::size_t size)
        : m_bytes(reinterpret_cast<const char *>(data), size) {}

    bool isUsedUp() const { return m_position >= m_bytes.size(); }
    std::uint8_t byte() {
        return isUsedUp() ? 0 : static_cast<std::uint8_t>(m_bytes[m_position++]);
    }
    /// Reads up to the next zero byte and skips it.
    std::string text() {
        std::string found = untilZero(m_bytes.substr(m_position));
        m_position = std::min(m_position + found.size() + 1, m_bytes.size());
        return found;
    }
    std::string rest() { return m_bytes.substr(std::exchange(m_position, m_bytes.size())); }

private:
    std::string m_bytes;
    std::size_t m_position = 0;
};
