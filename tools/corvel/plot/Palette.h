#pragma once

#include <array>

namespace Tessitor::Tool {

/// Viewer is for SVG: light, and dark where the viewer prefers dark pages.
enum class ETheme { Light, Dark, Viewer };

/// What is drawn with a colour. Text and Muted have a contrast of at least 4.5 to 1 with Paper and
/// Panel, and the lines at least 3 to 1.
enum class EInk { Paper, Panel, Grid, Frame, Text, Muted, Blue, Orange, Green };

inline constexpr int inkCount = 9;

/// Red, green and blue in whole percent. No two inks of a theme have the same.
using Colour = std::array<int, 3>;

/// @param theme  Viewer is Light.
Colour colourOf(EInk ink, ETheme theme);

}  // namespace Tessitor::Tool
