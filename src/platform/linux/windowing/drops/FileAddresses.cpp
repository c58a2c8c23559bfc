#include "platform/linux/windowing/drops/FileAddresses.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace {

constexpr std::size_t longestName = 2047;  // as Windows cuts it

char lowerOf(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                                : character;
}

bool isSame(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lowerOf(a) == lowerOf(b); });
}

/// Takes a text off the beginning.
bool skip(std::string_view &text, std::string_view beginning) {
    if (!isSame(text.substr(0, beginning.size()), beginning))
        return false;
    text.remove_prefix(beginning.size());
    return true;
}

/// @return what is encoded at the beginning; nothing if it is no code.
std::optional<char> decodeByte(std::string_view text) {
    if (text.size() < 3 || text[0] != '%')
        return std::nullopt;
    unsigned value = 0;
    const auto result = std::from_chars(text.data() + 1, text.data() + 3, value, 16);
    if (result.ptr != text.data() + 3)
        return std::nullopt;
    return static_cast<char>(value);
}

/// A percent sign that begins no code counts as itself: some programs encode nothing.
std::string decode(std::string_view encoded) {
    std::string path;
    while (!encoded.empty()) {
        const std::optional<char> byte = decodeByte(encoded);
        path += byte.value_or(encoded.front());
        encoded.remove_prefix(byte ? 3 : 1);
    }
    return path;
}

/// @return the path; "" if the address is no file of this computer.
std::string fileOf(std::string_view address, std::string_view hostName) {
    if (!skip(address, "file:"))
        return "";
    if (skip(address, "//")) {
        const std::string_view host = address.substr(0, address.find('/'));
        if (!host.empty() && !isSame(host, "localhost") && !isSame(host, hostName))
            return "";
        address.remove_prefix(host.size());
    }
    if (!address.starts_with('/'))
        return "";
    std::string path = decode(address);
    if (path.find('\0') != path.npos)
        return "";  // not the file that its beginning names
    path.resize(std::min(path.size(), longestName));
    return path;
}

}  // namespace

std::vector<std::string> filesOfAddresses(std::string_view list, std::string_view hostName) {
    constexpr std::string_view lineEnds("\r\n\0", 3);
    std::vector<std::string> files;
    while (!list.empty()) {
        const std::string_view line = list.substr(0, list.find_first_of(lineEnds));
        list.remove_prefix(std::min(line.size() + 1, list.size()));
        if (std::string path = fileOf(line, hostName); !path.empty())
            files.push_back(std::move(path));
    }
    return files;
}
