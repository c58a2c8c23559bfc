#include "platform/linux/drawing/CFontFace.h"

#include <algorithm>
#include <cmath>
#include <freetype/ftsynth.h>

namespace {

constexpr float fixedOne = 64.0f;  // FreeType counts in 64ths of a pixel

// The shape that turns an upright face into a slanted one, or similar.
void applyMatrix(FT_Face face, const FcMatrix &matrix) {
    const auto fixed = [](double value) { return static_cast<FT_Fixed>(value * 0x10000); };
    FT_Matrix shape = {fixed(matrix.xx), fixed(matrix.xy), fixed(matrix.yx), fixed(matrix.yy)};
    FT_Set_Transform(face, &shape, nullptr);
}

}  // namespace

std::unique_ptr<CFontFace> CFontFace::open(const std::shared_ptr<CFontLibrary> &library,
                                           const FcPattern *match) {
    FcChar8 *file = nullptr;
    int index = 0;
    FcPatternGetInteger(match, FC_INDEX, 0, &index);
    if (library->getFreeType() == nullptr ||
        FcPatternGetString(match, FC_FILE, 0, &file) != FcResultMatch)
        return nullptr;
    FT_Face face = nullptr;
    if (FT_New_Face(library->getFreeType(), reinterpret_cast<const char *>(file), index, &face) !=
        0)
        return nullptr;
    std::unique_ptr<CFontFace> result(new CFontFace(library, face, match));
    return FT_IS_SCALABLE(face) ? std::move(result) : nullptr;
}

CFontFace::CFontFace(const std::shared_ptr<CFontLibrary> &library, FT_Face face,
                     const FcPattern *match)
    : m_library(library), m_face(face), m_hasKerning(FT_HAS_KERNING(face)) {
    FcBool embolden = FcFalse;
    if (FcPatternGetBool(match, FC_EMBOLDEN, 0, &embolden) == FcResultMatch)
        m_embolden = embolden == FcTrue;
    FcMatrix *matrix = nullptr;
    if (FcPatternGetMatrix(match, FC_MATRIX, 0, &matrix) == FcResultMatch)
        applyMatrix(face, *matrix);
}

std::int32_t CFontFace::emForLineHeight(std::int32_t height) const {
    const int designHeight = m_face->ascender - m_face->descender;
    if (designHeight <= 0)
        return height;
    return static_cast<std::int32_t>(
        std::lround(static_cast<double>(height) * m_face->units_per_EM / designHeight));
}

void CFontFace::setEm(std::int32_t em) {
    FT_Set_Pixel_Sizes(m_face.get(), 0, static_cast<FT_UInt>(em));
}

std::int32_t CFontFace::toPixels(int designUnits) const {
    const float em = m_face->size->metrics.y_ppem;
    return static_cast<std::int32_t>(
        std::lround(static_cast<float>(designUnits) * em / m_face->units_per_EM));
}

unsigned CFontFace::getGlyphIndex(char32_t character) const {
    return FT_Get_Char_Index(m_face.get(), character);
}

SGlyph CFontFace::renderGlyph(unsigned index) const {
    SGlyph glyph;
    glyph.face = this;
    glyph.index = index;
    const FT_GlyphSlot slot = m_face->glyph;
    if (FT_Load_Glyph(m_face.get(), index, FT_LOAD_TARGET_NORMAL | FT_LOAD_NO_BITMAP) != 0)
        return glyph;
    if (m_embolden)
        FT_GlyphSlot_Embolden(slot);
    glyph.advance = std::round(static_cast<float>(slot->advance.x) / fixedOne);
    if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0)
        return glyph;

    const FT_Bitmap &picture = slot->bitmap;
    glyph.left = slot->bitmap_left;
    glyph.top = -slot->bitmap_top;
    glyph.width = static_cast<std::int32_t>(picture.width);
    glyph.height = static_cast<std::int32_t>(picture.rows);
    glyph.coverage.reserve(std::size_t{picture.width} * picture.rows);
    for (std::int32_t y = 0; y < glyph.height; ++y) {
        const unsigned char *row = picture.buffer + std::ptrdiff_t{y} * picture.pitch;
        glyph.coverage.insert(glyph.coverage.end(), row, row + picture.width);
    }
    return glyph;
}

float CFontFace::getKerning(unsigned left, unsigned right) const {
    FT_Vector distance = {};
    if (m_hasKerning)
        FT_Get_Kerning(m_face.get(), left, right, FT_KERNING_DEFAULT, &distance);
    return static_cast<float>(distance.x) / fixedOne;
}
