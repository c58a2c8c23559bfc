#include "corvel/audio/WavLengths.h"

#include <string_view>

namespace Tessitor::Tool {

namespace {

constexpr std::uint64_t unknown = 0xFFFFFFFF;

void putNumber(std::string &head, std::size_t place, std::uint64_t number) {
    for (std::size_t i = 0; i < 4; ++i)
        head[place + i] = static_cast<char>(number >> 8 * i & 0xFF);
}

std::uint64_t numberAt(std::string_view head, std::size_t place) {
    std::uint64_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(head[place + i]);
    return number;
}

}  // namespace

std::string withWavLengths(std::string head, std::optional<std::uint64_t> soundBytes,
                           std::uint64_t frameBytes) {
    constexpr std::size_t chunkHead = 8, fileHead = 12;
    if (!head.starts_with("RIFF") || head.size() < fileHead)
        return head;
    const std::uint64_t padding = soundBytes.value_or(0) % 2;
    const std::uint64_t fileBytes = head.size() - chunkHead + soundBytes.value_or(0) + padding;
    const bool isKnown = soundBytes && fileBytes < unknown;
    putNumber(head, 4, isKnown ? fileBytes : unknown);
    for (std::size_t place = fileHead; place + chunkHead <= head.size();) {
        const std::string name = head.substr(place, 4);
        const std::uint64_t size = numberAt(head, place + 4);
        if (name == "fact" && size >= 4)
            putNumber(head, place + chunkHead, isKnown ? *soundBytes / frameBytes : unknown);
        if (name == "data")
            putNumber(head, place + 4, isKnown ? *soundBytes : unknown);
        place += chunkHead + size + size % 2;
    }
    return head;
}

}  // namespace Tessitor::Tool
