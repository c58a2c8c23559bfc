#include "toolkit/windowing/CWindowAttributes.h"

namespace Tessitor::GUI::Windowing {

Tessitor::Basics::TClassRecord<CWindowAttributes> CWindowAttributes::s_class("CWindowAttributes",
                                                                             "CCountedObject");

CWindowAttributes::CWindowAttributes(EWindowKind kind)
    : m_icon(Collections::TCountedObjectDeleter<Graphics::CWindowIcon>::getStaticDeleter()) {
    s_class.incrementInstanceCount();
    setWindowKind(kind);
}

CWindowAttributes::CWindowAttributes(const CWindowAttributes &other) : CWindowAttributes() {
    *this = other;
}

CWindowAttributes &CWindowAttributes::operator=(const CWindowAttributes &other) {
    m_title = other.m_title;
    m_backgroundColour = other.m_backgroundColour;
    m_alpha = other.m_alpha;
    m_icon.setPointer(other.getWindowIcon());
    m_isEnabled = other.m_isEnabled;
    m_hasDropShadow = other.m_hasDropShadow;
    m_style = other.m_style;
    m_extendedStyle = other.m_extendedStyle;
    return *this;
}

void CWindowAttributes::setWindowKind(EWindowKind kind) {
    switch (kind) {
    case EWindowKind::FixedSize:
    case EWindowKind::Dialog:
        setWindowStyles(0xCA0000, 16);
        return;
    case EWindowKind::Popup:
        setWindowStyles(0x80000000, 0x8080008);
        return;
    case EWindowKind::Standard:
        break;
    }
    setWindowStyles(0xCF0008, 16);
}

void CWindowAttributes::setWindowStyles(std::uint32_t style, std::uint32_t extendedStyle) {
    m_style = style;
    m_extendedStyle = extendedStyle;
}

}  // namespace Tessitor::GUI::Windowing
