#pragma once

#include "toolkit/controls/CControl.h"

namespace Tessitor::GUI::Controls {

/// How a button without an image looks in one of its two positions.
struct SButtonColours {
    Basics::CAlphaColour fill;
    Basics::CAlphaColour outline;
    Basics::CAlphaColour text;
};

/// What the two kinds of button share. Each position shows its image, the upper one being the
/// primary image, or else a rounded rectangle with the text. The value is 0 at first. The class has
/// no record of its own: to the library, both kinds derive from CControl.
class CButton : public CControl {
public:
    // The hand is shown while the mouse is over the button. To see it leave, the button then locks
    // the mouse.
    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void handleMouseMovement(Events::CMouseEvent &event) override;

    /// Holds a reference to the image; null for none.
    virtual void setDownImage(Graphics::IImage *image) { m_downImage.setPointer(image); }
    virtual void setColours(const SButtonColours &down, const SButtonColours &up);
    Graphics::IImage *getDownImage() const { return m_downImage.getPointer(); }
    bool isDown() const { return m_isDown; }
    void setUseHandCursor(bool isUsed) { m_isHandCursorUsed = isUsed; }
    void setText(const Tessitor::Basics::CString &text) { m_text = text; }

    void drawControl(Graphics::CGraphics &graphics) override;

protected:
    CButton(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
            Listeners::IActionListener *listener);

    void setDown(bool isDown) { m_isDown = isDown; }
    bool isMouseInside(const Events::CMouseEvent &event) const;

private:
    void showCursorFor(const Events::CMouseEvent &event) const;
    void drawFace(Graphics::CGraphics &graphics, const SButtonColours &colours) const;

    Collections::TAutomaticPointer<Graphics::IImage> m_downImage;
    bool m_isDown = false;
    bool m_isHandCursorUsed = true;
    Tessitor::Basics::CString m_text;
    SButtonColours m_down{{102, 200, 85}, {0, 0, 0}, {0, 0, 0}};
    SButtonColours m_up{{243, 32, 32}, {0, 0, 0}, {0, 0, 0}};
};

}  // namespace Tessitor::GUI::Controls
