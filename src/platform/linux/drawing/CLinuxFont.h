#pragma once

#include "platform/INativeFont.h"
#include "platform/linux/drawing/CFaceFinder.h"
#include "platform/linux/drawing/SGlyph.h"

#include <memory>
#include <unordered_map>

/// A font with the glyphs that have been drawn so far. Faces are opened at the first use. Without
/// any face, glyphs are empty and half as wide as the font's size. [gui thread]
class CLinuxFont : public INativeFont {
public:
    explicit CLinuxFont(const SNativeFontRecord &record) : m_record(record) {}
    CLinuxFont(const CLinuxFont &) = delete;
    CLinuxFont &operator=(const CLinuxFont &) = delete;

    const SNativeFontRecord &getRecord() const { return m_record; }
    bool isUnderlined() const { return m_record.underline != 0; }
    bool isStruckOut() const { return m_record.strikeOut != 0; }

    // Pixels, at least 1
    bool hasFace() const { return faces().getMainFace() != nullptr; }
    std::int32_t getEm() const { return faces().getEm(); }
    std::int32_t getAscent() const;
    std::int32_t getLineHeight() const;

    /// Control characters have an empty glyph that takes no room.
    /// @return valid as long as the font.
    const SGlyph &getGlyph(char32_t character) const;

private:
    CFaceFinder &faces() const;
    SGlyph makeGlyph(char32_t character) const;

    const SNativeFontRecord m_record;
    mutable std::unique_ptr<CFaceFinder> m_faces;  // null until the first use
    mutable std::unordered_map<char32_t, SGlyph> m_glyphs;
};
