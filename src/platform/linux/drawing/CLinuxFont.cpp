#include "platform/linux/drawing/CLinuxFont.h"

#include <cmath>

namespace {

bool isControl(char32_t character) {
    return character < 0x20 || character == 0x7f;
}

}  // namespace

std::unique_ptr<INativeFont> createNativeFont(const SNativeFontRecord &record) {
    return std::make_unique<CLinuxFont>(record);
}

CFaceFinder &CLinuxFont::faces() const {
    if (m_faces == nullptr)
        m_faces = std::make_unique<CFaceFinder>(m_record);
    return *m_faces;
}

std::int32_t CLinuxFont::getAscent() const {
    const CFontFace *face = faces().getMainFace();
    return face != nullptr ? face->getAscent()
                           : static_cast<std::int32_t>(std::lround(getEm() * 0.93));
}

std::int32_t CLinuxFont::getLineHeight() const {
    const CFontFace *face = faces().getMainFace();
    return face != nullptr ? face->getAscent() + face->getDescent()
                           : static_cast<std::int32_t>(std::lround(getEm() * 1.15));
}

const SGlyph &CLinuxFont::getGlyph(char32_t character) const {
    const auto found = m_glyphs.find(character);
    if (found != m_glyphs.end())
        return found->second;
    return m_glyphs.emplace(character, makeGlyph(character)).first->second;
}

SGlyph CLinuxFont::makeGlyph(char32_t character) const {
    if (isControl(character))
        return {};
    if (const CFontFace *face = faces().findFaceFor(character))
        return face->renderGlyph(face->getGlyphIndex(character));
    SGlyph blank;
    blank.advance = static_cast<float>(getEm()) / 2.0f;
    return blank;
}
