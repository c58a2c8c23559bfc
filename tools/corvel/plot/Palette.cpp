#include "corvel/plot/Palette.h"

namespace Tessitor::Tool {

namespace {

struct SInk {
    Colour light, dark;
};

// Blue, orange and green also differ in brightness, for eyes that confuse red and green.
constexpr std::array<SInk, inkCount> palette{{
    {{100, 100, 100}, {8, 9, 11}},  // Paper
    {{98, 98, 99}, {11, 12, 14}},   // Panel
    {{88, 89, 91}, {21, 23, 26}},   // Grid
    {{50, 52, 55}, {47, 50, 54}},   // Frame
    {{10, 12, 15}, {94, 95, 96}},   // Text
    {{35, 38, 42}, {68, 71, 75}},   // Muted
    {{0, 38, 66}, {42, 74, 97}},    // Blue
    {{80, 32, 0}, {96, 62, 16}},    // Orange
    {{2, 50, 37}, {36, 86, 66}},    // Green
}};

}  // namespace

Colour colourOf(EInk ink, ETheme theme) {
    const SInk &both = palette[static_cast<std::size_t>(ink)];
    return theme == ETheme::Dark ? both.dark : both.light;
}

}  // namespace Tessitor::Tool
