#include "corvel/console/Columns.h"

#include <algorithm>
#include <iterator>

namespace Tessitor::Tool {

namespace {

struct SRange {
    char32_t first, last;
};

// Blocks of the Unicode character database, rounded to whole blocks where that does no harm
constexpr SRange without[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A}, {0x064B, 0x065F},
    {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x2064},
    {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}, {0xE0100, 0xE01EF},
};
constexpr SRange wide[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23F3},
    {0x25FD, 0x25FE},   {0x2614, 0x27BF},   {0x2B1B, 0x2B55},   {0x2E80, 0xA4CF},
    {0xA960, 0xA97F},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},
    {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},   {0x16FE0, 0x18DFF}, {0x1AFF0, 0x1B2FF},
    {0x1F000, 0x1FAFF}, {0x20000, 0x3FFFD},
};

template <std::size_t count>
bool isIn(const SRange (&ranges)[count], char32_t character) {
    return std::any_of(std::begin(ranges), std::end(ranges), [&](const SRange &range) {
        return character >= range.first && character <= range.last;
    });
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::size_t columnsOfFirst(std::string_view text, std::size_t bytes) {
    const auto lead = static_cast<unsigned char>(text.front());
    char32_t character = bytes == 1 ? lead : lead & (0x7Fu >> bytes);
    for (const char byte : text.substr(1, bytes - 1))
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3Fu);
    return isIn(without, character) ? 0 : isIn(wide, character) ? 2 : 1;
}

// Removes the first character and returns its columns.
std::size_t takeFirst(std::string_view &text) {
    std::size_t bytes = 1;
    while (bytes < text.size() && continuesCharacter(text[bytes]))
        ++bytes;
    const std::size_t columns = columnsOfFirst(text, bytes);
    text.remove_prefix(bytes);
    return columns;
}

}  // namespace

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty())
        columns += takeFirst(text);
    return columns;
}

std::string endWithin(const std::string &text, std::size_t columns) {
    constexpr std::string_view cut = "...";
    std::size_t width = columnsOf(text);
    if (width <= columns)
        return text;
    const std::size_t room = columns - std::min(columns, cut.size());
    std::string_view end = text;
    while (width > room)
        width -= takeFirst(end);
    // An accent needs the letter before it.
    for (std::string_view next = end; !next.empty() && takeFirst(next) == 0;)
        end = next;
    return std::string(cut.substr(0, columns)).append(end);
}

}  // namespace Tessitor::Tool
