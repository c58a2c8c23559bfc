#include "platform/linux/drawing/CFaceFinder.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

constexpr std::int32_t defaultEm = 12, largestEm = 2048;  // pixels

FcChar8 *asFontconfigText(const char *text) {
    return reinterpret_cast<FcChar8 *>(const_cast<char *>(text));
}

// The pixels are as many as the height says. Until the face is found, that is near enough.
FontPattern describe(const SNativeFontRecord &record) {
    const std::int32_t height = record.height != 0 ? record.height : defaultEm;
    const int weight = record.weight > 0 ? record.weight : 400;
    FontPattern pattern(FcPatternCreate());
    if (pattern == nullptr)
        return nullptr;
    if (record.faceName[0] != '\0')
        FcPatternAddString(pattern.get(), FC_FAMILY, asFontconfigText(record.faceName));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(weight));
    FcPatternAddInteger(pattern.get(), FC_SLANT,
                        record.italic != 0 ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddDouble(pattern.get(), FC_PIXEL_SIZE, std::abs(static_cast<double>(height)));
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    // A variable face is also listed once for each of its named weights. Those need no settings.
    FcPatternAddBool(pattern.get(), FC_VARIABLE, FcFalse);
    return pattern;
}

std::int32_t emFor(std::int32_t height, const CFontFace *face) {
    std::int64_t em = defaultEm;
    if (height < 0)
        em = -std::int64_t{height};
    else if (height > 0)
        em = face != nullptr ? face->emForLineHeight(height) : std::lround(height / 1.15);
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(em, 1, largestEm));
}

bool hasCharacter(const FcPattern *candidate, char32_t character) {
    FcCharSet *characters = nullptr;
    return FcPatternGetCharSet(candidate, FC_CHARSET, 0, &characters) == FcResultMatch &&
           FcCharSetHasChar(characters, character) == FcTrue;
}

std::span<FcPattern *> fontsOf(const FcFontSet *set) {
    return set != nullptr ? std::span(set->fonts, static_cast<std::size_t>(set->nfont))
                          : std::span<FcPattern *>();
}

}  // namespace

CFaceFinder::CFaceFinder(const SNativeFontRecord &record)
    : m_library(CFontLibrary::get()), m_wanted(describe(record)) {
    // Without a configuration of ours, fontconfig would load that of the host.
    if (m_wanted != nullptr && m_library->getConfiguration() != nullptr) {
        FcConfigSubstitute(m_library->getConfiguration(), m_wanted.get(), FcMatchPattern);
        FcDefaultSubstitute(m_wanted.get());
        m_mainFace = openMainFace();
    }
    m_em = emFor(record.height, m_mainFace.get());
    if (m_mainFace != nullptr)
        m_mainFace->setEm(m_em);
}

std::unique_ptr<CFontFace> CFaceFinder::openMainFace() {
    FcResult ignored = FcResultMatch;
    const FontPattern match(FcFontMatch(m_library->getConfiguration(), m_wanted.get(), &ignored));
    std::unique_ptr<CFontFace> face;
    if (match != nullptr)
        face = CFontFace::open(m_library, match.get());
    if (face != nullptr)
        return face;
    findSubstitutes();
    for (FcPattern *candidate : fontsOf(m_candidates.get())) {
        face = open(candidate);
        if (face != nullptr)
            break;
    }
    return face;
}

std::unique_ptr<CFontFace> CFaceFinder::open(FcPattern *candidate) const {
    const FontPattern match(
        FcFontRenderPrepare(m_library->getConfiguration(), m_wanted.get(), candidate));
    return match != nullptr ? CFontFace::open(m_library, match.get()) : nullptr;
}

void CFaceFinder::findSubstitutes() {
    if (m_candidates != nullptr)
        return;
    FcResult ignored = FcResultMatch;
    m_candidates.reset(
        FcFontSort(m_library->getConfiguration(), m_wanted.get(), FcTrue, nullptr, &ignored));
    m_substitutes.resize(fontsOf(m_candidates.get()).size());
}

const CFontFace *CFaceFinder::findFaceFor(char32_t character) {
    if (m_mainFace == nullptr || m_mainFace->getGlyphIndex(character) != 0)
        return m_mainFace.get();
    findSubstitutes();
    const std::span<FcPattern *> candidates = fontsOf(m_candidates.get());
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (!hasCharacter(candidates[i], character))
            continue;
        std::unique_ptr<CFontFace> &face = m_substitutes[i];
        if (face == nullptr) {
            face = open(candidates[i]);
            if (face != nullptr)
                face->setEm(m_em);
        }
        if (face != nullptr && face->getGlyphIndex(character) != 0)
            return face.get();
    }
    return m_mainFace.get();
}
