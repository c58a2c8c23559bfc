#include "toolkit/graphics/CAlphaColour.h"

#include "foundation/CStringTokeniser.h"
#include "foundation/CopyText.h"
#include "toolkit/graphics/StaticColours.h"

#include <array>

namespace Tessitor::GUI::Basics {

using Tessitor::Basics::CString;

Tessitor::Basics::TClassRecord<CAlphaColour> CAlphaColour::s_class("CAlphaColour", "CColour");

namespace {

// Divides by 255 and rounds, if 128 has been added before.
std::int32_t dividedBy255(std::int32_t value) {
    return ((value >> 8) + value) >> 8;
}

std::int32_t halfWay(std::int32_t channel, std::int32_t other) {
    return dividedBy255(((other + 1) << 7) + channel * 127);
}

}  // namespace

CAlphaColour::CAlphaColour(std::int32_t red, std::int32_t green, std::int32_t blue,
                           std::int32_t alpha)
    : CColour(red, green, blue), m_alpha(alpha) {
    s_class.incrementInstanceCount();
}

CAlphaColour::CAlphaColour(const CColour &colour)
    : CAlphaColour(colour.getRed(), colour.getGreen(), colour.getBlue()) {}

CAlphaColour::CAlphaColour(const CString &text) : CAlphaColour(0, 0, 0, 0) {
    Tessitor::Basics::CStringTokeniser tokens(text, ',');
    std::array<std::int32_t, 4> values;
    if (tokens.countTokens() != static_cast<std::int32_t>(values.size()))
        return;
    for (std::int32_t &value : values) {
        CString token;
        tokens.getNextToken(token);
        value = CString::toInt(token);
    }
    setAllColours(values[0], values[1], values[2], values[3]);
}

CAlphaColour::CAlphaColour(const CAlphaColour &other)
    : CAlphaColour(other.getRed(), other.getGreen(), other.getBlue(), other.m_alpha) {}

void CAlphaColour::getObjectDescription(char *array, long size) const {
    CString text("[");
    text += toString();
    text += "]";
    Tessitor::Basics::copyText(array, size, text.getString());
}

bool CAlphaColour::operator==(const CAlphaColour &other) const {
    return CColour::operator==(other) && m_alpha == other.m_alpha;
}

void CAlphaColour::setAllColours(std::int32_t red, std::int32_t green, std::int32_t blue,
                                 std::int32_t alpha) {
    setAllColours(red, green, blue);
    m_alpha = alpha;
}

void CAlphaColour::lighten() {
    moveTowards(StaticColours::white);
}

void CAlphaColour::darken() {
    moveTowards(StaticColours::black);
}

void CAlphaColour::moveTowards(const CColour &other) {
    setAllColours(halfWay(getRed(), other.getRed()), halfWay(getGreen(), other.getGreen()),
                  halfWay(getBlue(), other.getBlue()), 255);
}

std::int32_t CAlphaColour::alphaBlend(std::int32_t foreground, std::int32_t background,
                                      std::int32_t alpha) {
    return dividedBy255((255 - alpha) * background + foreground * alpha + 128);
}

CAlphaColour CAlphaColour::blend(const CAlphaColour &first, const CAlphaColour &second,
                                 std::int32_t alpha) {
    return {alphaBlend(second.getRed(), first.getRed(), alpha),
            alphaBlend(second.getGreen(), first.getGreen(), alpha),
            alphaBlend(second.getBlue(), first.getBlue(), alpha)};
}

CString CAlphaColour::toString() const {
    CString text;
    text.setStringWithFormat("%li,%li,%li,%li", static_cast<long>(getRed()),
                             static_cast<long>(getGreen()), static_cast<long>(getBlue()),
                             static_cast<long>(m_alpha));
    return text;
}

SNativeColour CAlphaColour::toNativeWithAlpha() const {
    SNativeColour colour = toNative();
    colour.alpha = static_cast<std::uint8_t>(m_alpha);
    return colour;
}

}  // namespace Tessitor::GUI::Basics
