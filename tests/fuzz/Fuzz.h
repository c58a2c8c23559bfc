#pragma once

#include "CTemporaryFolder.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

/// The one operation of a fuzz target: does all it can with the input and aborts if something is
/// wrong. libFuzzer calls it, or Replay.cpp with the corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// What must hold whatever the input is.
inline void require(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

/// The input as the only file of a folder of its own, for code that reads files.
class CInputFile {
public:
    /// A new file each time: some file systems wait for the disk when an old one is emptied.
    const std::string &write(const std::string &bytes) {
        remove();
        std::ofstream(m_path, std::ios::binary) << bytes;
        return m_path;
    }
    void remove() const { std::filesystem::remove(m_path); }

private:
    CTemporaryFolder m_folder;
    std::string m_path = (m_folder / "input").string();
};

/// What a function that takes a pointer to characters sees of the bytes.
inline std::string untilZero(const std::string &bytes) {
    return bytes.substr(0, bytes.find('\0'));
}

/// Takes an input apart, from its start; zeros and "" once it is used up.
class CInput {
public:
    CInput(const std::uint8_t *data, std::size_t size)
        : m_bytes(reinterpret_cast<const char *>(data), size) {}

    bool isUsedUp() const { return m_position >= m_bytes.size(); }
    std::uint8_t byte() {
        return isUsedUp() ? 0 : static_cast<std::uint8_t>(m_bytes[m_position++]);
    }
    /// Up to the next zero byte, which is skipped.
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
