#pragma once

#include <string>

namespace Tessitor::Tool {

/// What cairo does not write into an SVG.
struct SSvgExtras {
    std::string title, description;  // for those who cannot see the picture
    bool followsViewer = false;      // dark where the viewer prefers dark pages
};

/// @param svg  drawn by cairo in the light theme, if it follows the viewer.
/// @return the SVG with the extras, and without the one number that depends on what was drawn
///         before it.
std::string completeSvg(std::string svg, const SSvgExtras &extras);

}  // namespace Tessitor::Tool
