#pragma once

#include <cstdint>
#include <string>

/// The bytes of a TGA file, written by hand so that tests can also write wrong ones.
struct STarga {
    std::uint16_t width = 2, height = 3;
    std::string kind{"\0\0\2", 3};  // identification length, colour map type, image type
    std::string depths{"\x20\x8"};  // of the pixels; descriptor
    std::string pixels = std::string(2 * 3 * 4, '\x40');

    std::string bytes() const {
        std::string header = kind + std::string("\1\2\3\4\5"
                                                "\6\7\x8\x9",
                                                9);  // ignored
        for (const std::uint16_t side : {width, height}) {
            header += static_cast<char>(side);
            header += static_cast<char>(side >> 8);
        }
        return header + depths + pixels;
    }
};
