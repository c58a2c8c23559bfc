#include "toolkit/graphics/CFont.h"

#include "foundation/CStringTokeniser.h"
#include "foundation/CopyText.h"
#include "foundation/WrappingArithmetic.h"
#include "values/Truncation.h"

#include <cstring>

namespace Tessitor::GUI::Fonts {

using Tessitor::Basics::CString;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;

Tessitor::Basics::TClassRecord<CFont> CFont::s_class("CFont", "CCountedObject");
CFont *CFont::s_defaultFont = nullptr;

namespace {

constexpr const char *defaultFace = "Arial";
constexpr std::int32_t defaultSize = 11;

/// What a font of this library asks of the system. The numbers are those of LOGFONTA.
SNativeFontRecord makeRecord(const CString &face, std::int32_t size, bool isItalic, bool isBold) {
    SNativeFontRecord record;
    record.height = MathTools::wrappedDifference(0, size);
    record.weight = isBold ? 700 : 400;
    record.italic = isItalic ? 1 : 0;
    record.outputPrecision = 4;  // TrueType
    record.quality = 5;          // ClearType
    copyNativeFaceName(record.faceName, face.getString());
    return record;
}

}  // namespace

CFont::CFont() : CFont(defaultFace, defaultSize, false, false) {}

CFont::CFont(const CString &face, std::int32_t size, bool isItalic, bool isBold)
    : m_record(makeRecord(face, size, isItalic, isBold)), m_faceName(face), m_height(size),
      m_isBold(isBold), m_isItalic(isItalic) {
    makeFont();
    s_class.incrementInstanceCount();
}

CFont::CFont(const CFont &other) : CFont() {
    *this = other;
}

CFont &CFont::operator=(const CFont &other) {
    m_record = other.m_record;
    m_faceName = other.m_faceName;
    m_height = other.m_height;
    m_isBold = other.m_isBold;
    m_isItalic = other.m_isItalic;
    makeFont();
    return *this;
}

void CFont::serializeToNode(CXMLNode *node) const {
    if (node == nullptr)
        return;
    node->addAttribute(new CXMLAttribute("font_name", m_faceName));
    node->addAttribute(new CXMLAttribute("font_size", static_cast<long>(m_height)));
    node->addAttribute(new CXMLAttribute("italic", m_isItalic));
    node->addAttribute(new CXMLAttribute("bold", m_isBold));
}

void CFont::deserializeFromNode(const CXMLNode *node) {
    if (node == nullptr)
        return;
    const CXMLAttribute *face = node->getAttribute("font_name");
    const CXMLAttribute *size = node->getAttribute("font_size");
    const CXMLAttribute *italic = node->getAttribute("italic");
    const CXMLAttribute *bold = node->getAttribute("bold");
    setFont(face != nullptr ? face->getValue() : m_faceName,
            size != nullptr ? size->getValueAsInt() : m_height,
            italic != nullptr ? italic->getValueAsBool() : m_isItalic, m_record.underline != 0,
            m_record.strikeOut != 0, bold != nullptr ? bold->getValueAsBool() : m_isBold);
}

void CFont::setFont(const CString &face, std::int32_t size, bool isItalic, bool isUnderlined,
                    bool isStruckOut, bool isBold) {
    m_record = makeRecord(face, size, isItalic, isBold);
    m_record.underline = isUnderlined ? 1 : 0;
    m_record.strikeOut = isStruckOut ? 1 : 0;
    m_faceName = face;
    m_height = size;
    m_isItalic = isItalic;
    m_isBold = isBold;
    makeFont();
}

void CFont::setHeight(std::int32_t size) {
    m_height = size;
    m_record.height = MathTools::wrappedDifference(0, size);
    makeFont();
}

void CFont::setFaceName(const CString &face) {
    m_faceName = face;
    copyNativeFaceName(m_record.faceName, face.getString());
    makeFont();
}

std::int32_t CFont::getTextWidth(const CString &text) const {
    return truncated(nativeTextSize(text.getString(), m_font.get()).width);
}

CFont *CFont::getFontFromString(const CString &text) {
    Tessitor::Basics::CStringTokeniser tokens(text, ',');
    if (tokens.countTokens() != 2)
        return nullptr;
    CString face, size;
    tokens.getNextToken(face);
    tokens.getNextToken(size);
    return new CFont(face, CString::toInt(size), false, false);
}

CString CFont::toString() const {
    CString text;
    text.setStringWithFormat("%s,%li", m_faceName.getString(), static_cast<long>(m_height));
    return text;
}

void CFont::createDefaultFont() {
    if (s_defaultFont != nullptr)
        return;
    s_defaultFont = new CFont;
    s_defaultFont->reference();
}

void CFont::releaseDefaultFont() {
    if (s_defaultFont != nullptr)
        s_defaultFont->dereference();
    s_defaultFont = nullptr;
}

CFont *CFont::getDefaultFont() {
    return s_defaultFont;
}

void CFont::makeFont() {
    m_font = createNativeFont(m_record);
}

}  // namespace Tessitor::GUI::Fonts
