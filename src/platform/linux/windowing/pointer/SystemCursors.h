#pragma once

#include <array>
#include <cstdint>

/// A cursor of Windows, and what X shows for it.
struct SSystemCursor {
    int number;           // as Windows counts
    std::uint16_t glyph;  // in the font "cursor" of the server, which has a mask at the next number
    /// Names in cursor themes, the best first; "" for no more. Themes differ in the names they
    /// know.
    std::array<const char *, 4> names;
};

constexpr int systemArrow = 32512;

/// @return null if there is no such cursor.
const SSystemCursor *findSystemCursor(int number);
