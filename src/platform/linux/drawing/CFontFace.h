#pragma once

#include "platform/linux/drawing/CFontLibrary.h"
#include "platform/linux/drawing/SGlyph.h"

#include <cstdint>

/// A scalable face at one size. [gui thread]
class CFontFace {
public:
    /// @param match  from fontconfig, with nothing left to fill in.
    /// @return null if FreeType cannot scale the face, if there is no such file, or without memory.
    static std::unique_ptr<CFontFace> open(const std::shared_ptr<CFontLibrary> &library,
                                           const FcPattern *match);

    CFontFace(const CFontFace &) = delete;
    CFontFace &operator=(const CFontFace &) = delete;

    /// The size of the letters at which ascent and descent add up to a height.
    std::int32_t emForLineHeight(std::int32_t height) const;
    void setEm(std::int32_t em);  ///< pixels; to be called first

    // Distances from the base line in pixels, rounded and positive.
    std::int32_t getAscent() const { return toPixels(m_face->ascender); }
    std::int32_t getDescent() const { return toPixels(-m_face->descender); }

    unsigned getGlyphIndex(char32_t character) const;  ///< 0 if the face lacks it
    /// Hinted: that reads better at 10 and 11 pixels than letters without hinting.
    SGlyph renderGlyph(unsigned index) const;
    float getKerning(unsigned left, unsigned right) const;  ///< pixels to add between two glyphs

private:
    CFontFace(const std::shared_ptr<CFontLibrary> &library, FT_Face face, const FcPattern *match);

    std::int32_t toPixels(int designUnits) const;

    std::shared_ptr<CFontLibrary> m_library;  // must outlive the face
    std::unique_ptr<FT_FaceRec, SReleaseBy<FT_Done_Face>> m_face;
    bool m_embolden = false;
    bool m_hasKerning;
};
