#include "corvel/plot/SvgText.h"

#include "corvel/console/Printable.h"
#include "corvel/plot/Palette.h"

#include <cstdio>
#include <optional>
#include <set>

namespace Tessitor::Tool {

namespace {

std::string escaped(const std::string &text) {
    std::string result;
    for (const char letter : printable(text)) {
        if (letter == '&')
            result += "&amp;";
        else if (letter == '<')
            result += "&lt;";
        else if (letter == '>')
            result += "&gt;";
        else
            result += letter;
    }
    return result;
}

// Versions of cairo differ in the spaces of a colour, so it is compared by its numbers.
std::optional<EInk> inkOf(const std::string &colour) {
    double red = 0.0, green = 0.0, blue = 0.0;
    if (std::sscanf(colour.c_str(), "rgb(%lf%%,%lf%%,%lf%%)", &red, &green, &blue) != 3)
        return {};
    for (int number = 0; number < inkCount; ++number) {
        const auto ink = static_cast<EInk>(number);
        const Colour known = colourOf(ink, ETheme::Light);
        if (red == known[0] && green == known[1] && blue == known[2])
            return ink;
    }
    return {};
}

std::set<std::string> coloursIn(const std::string &svg) {
    std::set<std::string> colours;
    for (std::size_t begin = svg.find("rgb("); begin != std::string::npos;
         begin = svg.find("rgb(", begin + 1))
        colours.insert(svg.substr(begin, svg.find(')', begin) + 1 - begin));
    return colours;
}

std::string rule(const std::string &property, const std::string &light, const std::string &dark) {
    return "[style*=\"" + property + ":" + light + "\"],[" + property + "=\"" + light + "\"]{" +
           property + ":" + dark + "!important}\n";
}

// The colours stay where cairo writes them, so programs that know nothing of style sheets show the
// light picture.
std::string darkRules(const std::string &svg) {
    std::string rules;
    for (const std::string &light : coloursIn(svg)) {
        const std::optional<EInk> ink = inkOf(light);
        if (!ink)
            continue;
        const auto [red, green, blue] = colourOf(*ink, ETheme::Dark);
        const std::string dark = "rgb(" + std::to_string(red) + "%," + std::to_string(green) +
                                 "%," + std::to_string(blue) + "%)";
        rules += rule("fill", light, dark) + rule("stroke", light, dark);
    }
    return rules;
}

// cairo counts the surfaces of a process.
void removeSurfaceNumber(std::string &svg) {
    const std::string begin = " id=\"surface";
    const std::size_t place = svg.find(begin);
    if (place != std::string::npos)
        svg.erase(place, svg.find('"', place + begin.size()) + 1 - place);
}

}  // namespace

std::string completeSvg(std::string svg, const SSvgExtras &extras) {
    removeSurfaceNumber(svg);
    std::string head = "\n<title>" + escaped(extras.title) + "</title>\n<desc>" +
                       escaped(extras.description) + "</desc>";
    if (extras.followsViewer)
        head +=
            "\n<style>\n@media (prefers-color-scheme: dark) {\n" + darkRules(svg) + "}\n</style>";
    const std::size_t root = svg.find("<svg ");
    svg.insert(svg.find('>', root), " role=\"img\"");
    return svg.insert(svg.find('>', root) + 1, head);
}

}  // namespace Tessitor::Tool
