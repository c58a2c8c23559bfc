#pragma once

#include "foundation/CString.h"
#include "foundation/CXMLNode.h"
#include "platform/INativeFont.h"

#include <memory>

namespace Tessitor::GUI::Fonts {

/// A face in a size, to draw and measure text with. [gui thread]
class CFont : public Tessitor::Basics::CCountedObject {
public:
    CFont();  ///< "Arial" at 11, as the default font
    /// @param face  cut to 31 bytes, but never inside a multibyte character.
    /// @param size  of the letters without their leading, in pixels.
    CFont(const Tessitor::Basics::CString &face, std::int32_t size, bool isItalic, bool isBold);
    CFont(const CFont &other);
    CFont &operator=(const CFont &other);
    ~CFont() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Adds the attributes "font_name", "font_size", "italic" and "bold".
    virtual void serializeToNode(Tessitor::IO::CXMLNode *node) const;
    /// Reads the same attributes. One that is missing leaves its value as it is.
    virtual void deserializeFromNode(const Tessitor::IO::CXMLNode *node);

    void setFont(const Tessitor::Basics::CString &face, std::int32_t size, bool isItalic,
                 bool isUnderlined, bool isStruckOut, bool isBold);
    void setHeight(std::int32_t size);
    void setFaceName(const Tessitor::Basics::CString &face);

    const Tessitor::Basics::CString &getFaceName() const { return m_faceName; }
    std::int32_t getHeight() const { return m_height; }  ///< the size, in pixels
    bool isBold() const { return m_isBold; }
    bool isItalic() const { return m_isItalic; }
    const SNativeFontRecord &getRecord() const { return m_record; }
    /// For drawing. Valid until the font next changes.
    const INativeFont &getNativeFont() const { return *m_font; }

    /// The width of a line of text as plain drawing draws it, in pixels.
    std::int32_t getTextWidth(const Tessitor::Basics::CString &text) const;

    /// Reads the result of toString().
    /// @return a regular font without references; null unless the text has two tokens.
    static CFont *getFontFromString(const Tessitor::Basics::CString &text);
    Tessitor::Basics::CString toString() const;  ///< for files: "face,size"

    /// Creates the library's default font and references it. Does nothing if it exists.
    static void createDefaultFont();
    /// Releases it. Whoever still holds a reference may go on using it.
    static void releaseDefaultFont();
    static CFont *getDefaultFont();  ///< null before createDefaultFont() and after its release

private:
    void makeFont();

    static Tessitor::Basics::TClassRecord<CFont> s_class;
    static CFont *s_defaultFont;

    std::unique_ptr<INativeFont> m_font;  // never null once constructed
    SNativeFontRecord m_record;
    Tessitor::Basics::CString m_faceName;
    std::int32_t m_height = 0;
    bool m_isBold = false;
    bool m_isItalic = false;
};

}  // namespace Tessitor::GUI::Fonts
