#include "corvel/audio/Mp3Length.h"

#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace Tessitor::Tool {

namespace {

std::string readPart(std::ifstream &file, std::uint64_t place, std::size_t length) {
    std::string bytes(length, '\0');
    file.clear();
    file.seekg(static_cast<std::streamoff>(place));
    file.read(bytes.data(), static_cast<std::streamsize>(length));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::uint64_t numberIn(std::string_view bytes, int bitsPerByte) {
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = number << bitsPerByte | static_cast<unsigned char>(byte);
    return number;
}

// Tags may stand in front: "ID3", three bytes, and their length in four times seven bits.
std::uint64_t firstFrame(std::ifstream &file) {
    constexpr std::size_t tagHead = 10;
    const std::string head = readPart(file, 0, tagHead);
    if (head.size() < tagHead || !head.starts_with("ID3"))
        return 0;
    return tagHead + numberIn(std::string_view(head).substr(6), 7);
}

// Frames begin with 11 set bits.
bool isFrame(std::string_view bytes) {
    return bytes.size() > 2 && numberIn(bytes.substr(0, 2), 8) >= 0xFFE0;
}

}  // namespace

// In the first frame: "Xing" or "Info", four bytes of flags, the number of frames if flag 1 is set,
// and the number of bytes if flag 2 is set.
std::uint64_t mp3BytesMissing(const std::filesystem::path &path) {
    constexpr std::size_t searched = 64;  // bytes of the frame
    constexpr std::uint64_t hasFrames = 1, hasBytes = 2;
    std::ifstream file(path, std::ios::binary);
    const std::uint64_t begin = firstFrame(file);
    const std::string frame = readPart(file, begin, searched);
    if (!isFrame(frame))
        return 0;
    std::size_t mark = frame.find("Xing");
    if (mark == std::string::npos)
        mark = frame.find("Info");
    if (mark == std::string::npos || mark + 16 > frame.size())
        return 0;
    const std::string_view fields = std::string_view(frame).substr(mark + 4);
    const std::uint64_t flags = numberIn(fields.substr(0, 4), 8);
    if ((flags & hasBytes) == 0)
        return 0;
    const std::size_t place = (flags & hasFrames) != 0 ? 8 : 4;
    const std::uint64_t promised = numberIn(fields.substr(place, 4), 8);
    std::error_code error;
    const std::uint64_t fileBytes = std::filesystem::file_size(path, error);
    const std::uint64_t there = fileBytes - begin;
    return !error && promised > there ? promised - there : 0;
}

}  // namespace Tessitor::Tool
