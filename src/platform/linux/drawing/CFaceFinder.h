#pragma once

#include "platform/INativeFont.h"
#include "platform/linux/drawing/CFontFace.h"

#include <vector>

/// Finds the faces that a font is drawn with, by the rules of fontconfig. [gui thread]
class CFaceFinder {
public:
    explicit CFaceFinder(const SNativeFontRecord &record);

    const CFontFace *getMainFace() const { return m_mainFace.get(); }  ///< null if there is no font
    std::int32_t getEm() const { return m_em; }  ///< the size of the letters in pixels, at least 1
    /// @return the main face if no face has the character; null if there is no font.
    const CFontFace *findFaceFor(char32_t character);

private:
    std::unique_ptr<CFontFace> openMainFace();
    std::unique_ptr<CFontFace> open(FcPattern *candidate) const;
    void findSubstitutes();

    std::shared_ptr<CFontLibrary> m_library;
    FontPattern m_wanted;  // null without memory
    std::unique_ptr<CFontFace> m_mainFace;
    std::int32_t m_em;

    // Both empty until the main face lacks a character: finding them takes some 10 ms.
    std::unique_ptr<FcFontSet, SReleaseBy<FcFontSetDestroy>> m_candidates;
    std::vector<std::unique_ptr<CFontFace>> m_substitutes;  // one for each candidate, null at first
};
