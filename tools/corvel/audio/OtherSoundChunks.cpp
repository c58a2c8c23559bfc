#include "corvel/audio/OtherSoundChunks.h"

#include <array>
#include <fstream>
#include <string_view>
#include <system_error>

namespace Tessitor::Tool {

namespace {

/// A file as a row of big-endian or little-endian numbers.
class CNumbers {
public:
    explicit CNumbers(const std::filesystem::path &path) : m_file(path, std::ios::binary) {
        std::error_code ignored;
        m_bytes = std::filesystem::file_size(path, ignored);
    }

    std::uint64_t fileBytes() const { return m_bytes; }

    // @return empty beyond the end of the file.
    std::string text(std::uint64_t place, std::size_t length) {
        std::string bytes(length, '\0');
        m_file.clear();
        m_file.seekg(static_cast<std::streamoff>(place));
        m_file.read(bytes.data(), static_cast<std::streamsize>(length));
        return m_file.gcount() == static_cast<std::streamsize>(length) ? bytes : "";
    }

    std::uint64_t number(std::uint64_t place, std::size_t length, bool bigEndian) {
        const std::string bytes = text(place, length);
        std::uint64_t number = 0;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const char byte = bytes[bigEndian ? i : bytes.size() - 1 - i];
            number = number << 8 | static_cast<unsigned char>(byte);
        }
        return number;
    }

private:
    std::ifstream m_file;
    std::uint64_t m_bytes = 0;
};

SSoundChunk chunkAt(const CNumbers &file, std::uint64_t sound, std::uint64_t promised,
                    std::uint64_t field, int fieldBytes, bool bigEndian) {
    const std::uint64_t there = file.fileBytes() > sound ? file.fileBytes() - sound : 0;
    SSoundChunk chunk{sound, there, promised, field, fieldBytes, bigEndian};
    if (isPlaceholder(promised) && (promised == 0 || promised > there))
        chunk.promised.reset();
    return chunk;
}

// ".snd", the offset of the sound, its length, ...
std::optional<SSoundChunk> soundOfAu(CNumbers &file) {
    constexpr std::uint64_t offsetField = 4, lengthField = 8;
    return chunkAt(file, file.number(offsetField, 4, true), file.number(lengthField, 4, true),
                   lengthField, 4, true);
}

// A head of 8 bytes, then chunks with a name of 4 bytes and a length of 8
std::optional<SSoundChunk> soundOfCaf(CNumbers &file) {
    constexpr std::uint64_t chunkHead = 12;
    for (std::uint64_t place = 8; place < file.fileBytes();) {
        const std::uint64_t size = file.number(place + 4, 8, true);
        if (file.text(place, 4) == "data")
            return chunkAt(file, place + chunkHead, size, place + 4, 8, true);
        if (size > file.fileBytes())
            break;
        place += chunkHead + size;
    }
    return std::nullopt;
}

// A head of 40 bytes, then chunks with a name of 16 bytes and a length of 8, which counts both and
// is rounded up to 8 for the place of the next chunk
std::optional<SSoundChunk> soundOfW64(CNumbers &file) {
    constexpr std::uint64_t chunkHead = 24;
    for (std::uint64_t place = 40; place < file.fileBytes();) {
        const std::uint64_t size = file.number(place + 16, 8, false);
        if (size < chunkHead)
            break;
        if (file.text(place, 4) == "data") {
            SSoundChunk chunk =
                chunkAt(file, place + chunkHead, size - chunkHead, place + 16, 8, false);
            // libsndfile itself reads such a file to its end.
            if (!chunk.promised)
                chunk.promised = chunk.bytesThere;
            return chunk;
        }
        if (size > file.fileBytes())
            break;
        place += (size + 7) / 8 * 8;
    }
    return std::nullopt;
}

}  // namespace

std::optional<SSoundChunk> findOtherSoundChunk(const std::filesystem::path &path) {
    CNumbers file(path);
    const std::string mark = file.text(0, 4);
    if (mark == ".snd")
        return soundOfAu(file);
    if (mark == "caff")
        return soundOfCaf(file);
    if (mark == "riff")
        return soundOfW64(file);
    return std::nullopt;
}

}  // namespace Tessitor::Tool
