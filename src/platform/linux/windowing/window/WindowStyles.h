#pragma once

#include <cstdint>

// The style bits of Windows that X windows follow

constexpr bool isPopupStyle(std::uint32_t style) {
    return (style & 0x80000000) != 0;
}

constexpr bool isChildStyle(std::uint32_t style) {
    return (style & 0xC0000000) == 0x40000000;
}

constexpr bool isVisibleStyle(std::uint32_t style) {
    return (style & 0x10000000) != 0;
}

constexpr bool isResizableStyle(std::uint32_t style) {
    return (style & 0x40000) != 0;
}

constexpr bool takesFiles(std::uint32_t extendedStyle) {
    return (extendedStyle & 16) != 0;
}
