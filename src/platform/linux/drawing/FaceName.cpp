#include "platform/INativeFont.h"

#include <cstring>

void copyNativeFaceName(char (&target)[32], const char *face) {
    const auto isContinuation = [](char byte) { return (byte & 0xc0) == 0x80; };
    std::size_t length = std::strlen(face);
    if (length >= sizeof target) {
        length = sizeof target - 1;
        while (length > 0 && isContinuation(face[length]))
            --length;
    }
    std::memset(target, 0, sizeof target);
    std::memcpy(target, face, length);
}
