#include "dspclasses/parameters/ParameterTexts.h"

#include "values/Truncation.h"

#include <charconv>
#include <cmath>

namespace ParameterTexts {

/// Unlike printf, this ignores the locale that the host has set.
static std::string fixed(double value, int decimals) {
    char digits[400];  // enough for the largest double
    const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), value,
                                            std::chars_format::fixed, decimals);
    return std::string(digits, end);
}

static std::string pairOf(float left, float right) {
    return std::to_string(truncated(left)) + ":" + std::to_string(truncated(right));
}

std::string none(float /*g*/) {
    return "";
}

std::string whole(float g) {
    return fixed(g, 0);
}

std::string twoDecimals(float g) {
    return fixed(g, 2);
}

std::string decibels(float g) {
    return g > -60.0f ? fixed(g, 2) : "-oo";
}

std::string level(float g) {
    const double linear = g;
    return linear <= 0.001 ? "-oo" : fixed(20.0 * std::log10(linear), 1);
}

std::string percent(float g) {
    return fixed(100.0f * g, 0);
}

std::string deEsserSpeed(float g) {
    return fixed(100.0f - 100.0f * g, 0);
}

std::string ratio(float g) {
    return fixed(g, 1) + ":1";
}

std::string roomSize(float g) {
    return fixed(g, g < 100.0f ? 2 : 0);
}

std::string balance(float g) {
    const float x = 200.0f * g - 100.0f;
    return x < 0.0f ? pairOf(100.0f, x + 100.0f) : pairOf(100.0f - x, 100.0f);
}

std::string mix(float g) {
    return pairOf(100.0f - 100.0f * g, 100.0f * g);
}

std::string monoMode(float g) {
    switch (truncated(3.0f * g)) {
    case 0:
        return "Combine";
    case 1:
        return "AllLeft";
    case 2:
        return "AllRight";
    default:
        return "Stereo";
    }
}

std::string link(float g) {
    return g < 0.5f ? "Separate" : "Linked";
}

std::string deEsserBand(float g) {
    return g < 0.5f ? "Wide" : "Narrow";
}

std::string deEsserListen(float g) {
    return g < 0.5f ? "DeEsser" : "SdeChn";
}

std::string modulationType(float g) {
    switch (truncated(10.0f * g)) {
    case 0:
    case 1:
    case 2:
    case 3:
        return "Vibrato";
    case 4:
    case 5:
    case 6:
        return "ADT";
    default:
        return "Phaser";
    }
}

std::string delaySync(float g) {
    switch (truncated(2.0f * g)) {
    case 0:
        return "ms";
    case 1:
        return "Quaver";
    case 2:
        return "Crotchet";
    default:
        return "Minim";
    }
}

std::string onOff(float g) {
    return g < 0.5f ? "Off" : "On";
}

}  // namespace ParameterTexts
