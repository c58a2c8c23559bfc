#include "toolkit/graphics/CColour.h"

#include "foundation/CopyText.h"

#include <cstdio>

namespace Tessitor::GUI::Basics {

Tessitor::Basics::TClassRecord<CColour> CColour::s_class("CColour", "CCountedObject");

CColour::CColour(std::int32_t red, std::int32_t green, std::int32_t blue)
    : m_red(red), m_green(green), m_blue(blue) {
    s_class.incrementInstanceCount();
}

void CColour::getObjectDescription(char *array, long size) const {
    char text[64];
    std::snprintf(text, sizeof text, "[%li,%li,%li]", static_cast<long>(m_red),
                  static_cast<long>(m_green), static_cast<long>(m_blue));
    Tessitor::Basics::copyText(array, size, text);
}

bool CColour::operator==(const CColour &other) const {
    return m_red == other.m_red && m_green == other.m_green && m_blue == other.m_blue;
}

void CColour::setAllColours(std::int32_t red, std::int32_t green, std::int32_t blue) {
    m_red = red;
    m_green = green;
    m_blue = blue;
}

std::uint32_t CColour::getNativeColour() const {
    const SNativeColour colour = toNative();
    return colour.red | static_cast<std::uint32_t>(colour.green) << 8 |
           static_cast<std::uint32_t>(colour.blue) << 16;
}

SNativeColour CColour::toNative() const {
    return {static_cast<std::uint8_t>(m_red), static_cast<std::uint8_t>(m_green),
            static_cast<std::uint8_t>(m_blue)};
}

}  // namespace Tessitor::GUI::Basics
