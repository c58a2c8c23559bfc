#include "corvel/audio/SoundChunk.h"

#include "corvel/audio/OtherSoundChunks.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>
#include <system_error>

namespace Tessitor::Tool {

namespace {

struct SChunkHead {
    std::array<char, 4> id;
    std::array<unsigned char, 4> size;
};
static_assert(sizeof(SChunkHead) == 8);

constexpr std::uint64_t fileHead = 12;  // bytes: the chunk around all others, and "WAVE" or "AIFF"

bool readHead(std::ifstream &file, SChunkHead &head) {
    file.read(reinterpret_cast<char *>(&head), sizeof(head));
    return file.gcount() == sizeof(head);
}

std::string_view idOf(const SChunkHead &head) {
    return {head.id.data(), head.id.size()};
}

// Samples are not taken for chunks, least of all silence.
bool isName(std::string_view id) {
    return std::all_of(id.begin(), id.end(),
                       [](char letter) { return letter >= ' ' && letter <= '~'; });
}

std::uint32_t sizeOf(const SChunkHead &head, bool bigEndian) {
    std::uint32_t size = 0;
    for (std::size_t i = 0; i < 4; ++i)
        size = size << 8 | head.size[bigEndian ? i : 3 - i];
    return size;
}

// The 64-bit length in the first chunk of an RF64 file, whose other lengths may be 0xFFFFFFFF.
std::uint64_t longLength(std::ifstream &file, std::uint64_t field) {
    std::array<unsigned char, 8> bytes{};
    file.seekg(static_cast<std::streamoff>(field));
    file.read(reinterpret_cast<char *>(bytes.data()), bytes.size());
    std::uint64_t length = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        length = length << 8 | bytes[i];
    return length;
}

// Such a length may be true: then other chunks follow up to the end of the file.
bool chunksFillTheRest(std::ifstream &file, std::uint64_t position, std::uint64_t end,
                       bool bigEndian) {
    SChunkHead head;
    while (position < end) {
        file.clear();
        file.seekg(static_cast<std::streamoff>(position));
        if (!readHead(file, head) || !isName(idOf(head)))
            return false;
        const std::uint64_t size = sizeOf(head, bigEndian);
        position += sizeof(head) + size + size % 2;
    }
    return position <= end + 1;  // a last byte of padding may be missing
}

}  // namespace

// A program that writes to a pipe cannot go back and fill in the length. It writes the most that a
// signed or an unsigned number can hold, rounded down to whole blocks, or leaves a 0.
bool isPlaceholder(std::uint64_t length) {
    constexpr std::uint64_t rounding = 8192;
    for (const std::uint64_t most : {std::uint64_t(1) << 31, (std::uint64_t(1) << 32) - 1})
        if (length <= most && length > most - rounding)
            return true;
    return length == 0 || length >= std::uint64_t(1) << 62;
}

std::optional<SSoundChunk> findSoundChunk(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    SChunkHead head;
    if (!readHead(file, head))
        return std::nullopt;
    const bool isLong = idOf(head) == "RF64";
    const bool isWav = isLong || idOf(head) == "RIFF" || idOf(head) == "RIFX";
    if (!isWav && idOf(head) != "FORM")
        return findOtherSoundChunk(path);
    const bool bigEndian = idOf(head) == "RIFX" || idOf(head) == "FORM";
    const std::string_view sound = isWav ? "data" : "SSND";
    std::error_code ignored;
    const std::uint64_t fileBytes = std::filesystem::file_size(path, ignored);

    std::uint64_t position = fileHead;
    file.seekg(static_cast<std::streamoff>(position));
    while (readHead(file, head)) {
        const std::uint64_t field = position + 4;
        position += sizeof(head);
        const std::uint64_t size = sizeOf(head, bigEndian);
        if (idOf(head) == sound) {
            SSoundChunk chunk{position, fileBytes - position, size, field, 4, bigEndian};
            if (isLong && (size == 0 || size == 0xFFFFFFFF)) {
                chunk.field = fileHead + sizeof(head) + 8;
                chunk.fieldBytes = 8;
                chunk.promised = longLength(file, chunk.field);
            }
            const bool unknown =
                isPlaceholder(*chunk.promised) &&
                (*chunk.promised > chunk.bytesThere ||
                 !chunksFillTheRest(file, position + *chunk.promised, fileBytes, bigEndian));
            if (unknown)
                chunk.promised.reset();
            return chunk;
        }
        position += size + size % 2;  // chunks start at even offsets
        file.seekg(static_cast<std::streamoff>(position));
    }
    return std::nullopt;
}

std::uint64_t bytesMissing(const SSoundChunk &chunk) {
    return chunk.promised && *chunk.promised > chunk.bytesThere ? *chunk.promised - chunk.bytesThere
                                                                : 0;
}

std::optional<std::string> correctedField(const SSoundChunk &chunk) {
    const auto bytes = static_cast<std::size_t>(chunk.fieldBytes);
    if (bytes == 4 && chunk.bytesThere > 0xFFFFFFFF)
        return std::nullopt;
    std::string field(bytes, '\0');
    for (std::size_t i = 0; i < bytes; ++i)
        field[chunk.bigEndian ? bytes - 1 - i : i] =
            static_cast<char>(chunk.bytesThere >> 8 * i & 0xFF);
    return field;
}

}  // namespace Tessitor::Tool
