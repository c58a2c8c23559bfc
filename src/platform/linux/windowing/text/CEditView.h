#pragma once

#include "platform/INativeSurface.h"
#include "platform/linux/drawing/CLinuxFont.h"
#include "platform/linux/windowing/text/CEditLine.h"

/// Draws a line that is being edited in a rectangle at the origin, with its selection and caret.
/// The line is scrolled so that the caret is always seen. [gui thread]
class CEditView {
public:
    struct SLook {
        SNativeColour text, background;
    };
    /// @param font  null for the system's own font. It is copied.
    CEditView(std::int32_t width, std::int32_t height, const INativeFont *font, const SLook &look);

    /// To be called after each change of the line.
    void scrollToCaret(const CEditLine &line);
    SNativeRect getCaretArea(const CEditLine &line) const;
    /// @return the position in the text that is nearest to a distance from the left edge, which may
    ///         lie outside.
    std::size_t positionAt(const CEditLine &line, std::int32_t x) const;
    /// @param area  what needs to be drawn.
    void draw(INativeSurface &surface, const SNativeRect &area, const CEditLine &line,
              bool isCaretShown) const;

private:
    std::int32_t xOf(const CEditLine &line, std::size_t position) const;
    SNativeRect getTextArea() const;
    void drawLine(INativeSurface &surface, const CEditLine &line, SNativeColour colour) const;

    std::int32_t m_width, m_height;
    std::unique_ptr<INativeFont> m_font;
    SLook m_look;
    std::int32_t m_scroll = 0;  // how much of the line is hidden to the left, in pixels
};
