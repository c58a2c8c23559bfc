#include "corvel/audio/CPartOfFile.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace Tessitor::Tool {

CPartOfFile::CPartOfFile(const std::filesystem::path &file, SFilePart part)
    : m_file(file, std::ios::binary), m_part(std::move(part)) {}

SNDFILE *CPartOfFile::open(SF_INFO &info) {
    static SF_VIRTUAL_IO calls = {
        [](void *part) { return static_cast<CPartOfFile *>(part)->length(); },
        [](sf_count_t offset, int whence, void *part) {
            return static_cast<CPartOfFile *>(part)->seek(offset, whence);
        },
        [](void *bytes, sf_count_t count, void *part) {
            return static_cast<CPartOfFile *>(part)->read(static_cast<char *>(bytes), count);
        },
        [](const void *, sf_count_t, void *) { return sf_count_t(0); },
        [](void *part) { return static_cast<CPartOfFile *>(part)->m_position; }};
    return sf_open_virtual(&calls, SFM_READ, &info, this);
}

sf_count_t CPartOfFile::length() const {
    return static_cast<sf_count_t>(m_part.end - m_part.begin);
}

sf_count_t CPartOfFile::seek(sf_count_t offset, int whence) {
    const sf_count_t from = whence == SEEK_CUR ? m_position : whence == SEEK_END ? length() : 0;
    m_position = std::clamp(from + offset, sf_count_t(0), length());
    return m_position;
}

sf_count_t CPartOfFile::read(char *bytes, sf_count_t count) {
    const std::uint64_t begin = m_part.begin + static_cast<std::uint64_t>(m_position);
    m_file.clear();
    m_file.seekg(static_cast<std::streamoff>(begin));
    m_file.read(bytes, std::min(count, length() - m_position));
    const sf_count_t got = m_file.gcount();
    m_position += got;
    const std::uint64_t first = std::max(begin, m_part.patch);
    const std::uint64_t last =
        std::min(begin + static_cast<std::uint64_t>(got), m_part.patch + m_part.patched.size());
    for (std::uint64_t i = first; i < last; ++i)
        bytes[i - begin] = m_part.patched[i - m_part.patch];
    return got;
}

}  // namespace Tessitor::Tool
