#pragma once

#include "toolkit/controls/CControl.h"
#include "toolkit/graphics/CFont.h"

namespace Tessitor::GUI::Controls {

/// Shows a text. A file that is dropped on it becomes its text. It takes no mouse events.
class CTextLabel : public CControl {
public:
    CTextLabel(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
               const Tessitor::Basics::CString &text);
    ~CTextLabel() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleFileDrop(const Events::CDropEvent &event) override;

    // Only setText() has the label painted.
    virtual void setColours(const Basics::CAlphaColour &frame,
                            const Basics::CAlphaColour &background,
                            const Basics::CAlphaColour &text);
    virtual void setTextColour(const Basics::CAlphaColour &colour) { m_textColour = colour; }
    /// Kept: only stored. See setDefaultDrawing() for what is drawn.
    virtual void setDrawBackground(bool isDrawn) { m_isBackgroundDrawn = isDrawn; }
    /// Holds a reference to the font. @param font  null for the library's default font.
    virtual void setFont(Fonts::CFont *font) { m_font.setPointer(font); }
    virtual void setText(const Tessitor::Basics::CString &text);
    /// @param format  an alignment of CGraphics::drawText().
    virtual void setTextFormat(std::int32_t format) { m_textFormat = format; }
    const Basics::CAlphaColour &getTextColour() const { return m_textColour; }
    bool isBackgroundDrawn() const { return m_isBackgroundDrawn; }
    Fonts::CFont *getFont() const { return m_font.getPointer(); }
    const Tessitor::Basics::CString &getText() const { return m_text; }
    std::int32_t getTextFormat() const { return m_textFormat; }

    void getDescriptors(DescriptorList &descriptors) const override;
    bool setFromDescriptor(const CControlDescriptor &descriptor) override;
    bool getDescriptorValue(CControlDescriptor &descriptor) const override;
    void drawControl(Graphics::CGraphics &graphics) override;

protected:
    void drawText(Graphics::CGraphics &graphics);

private:
    static Tessitor::Basics::TClassRecord<CTextLabel> s_class;

    bool m_isBackgroundDrawn = true;
    Collections::TAutomaticPointer<Fonts::CFont> m_font;  // null for the default font
    Basics::CAlphaColour m_textColour{0, 0, 0};
    Tessitor::Basics::CString m_text;
    std::int32_t m_textFormat = 9;
};

}  // namespace Tessitor::GUI::Controls
