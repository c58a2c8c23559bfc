#include "platform/linux/windowing/text/CEditView.h"

#include "platform/linux/drawing/TextLines.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int32_t margin = 2;  // left and right, with the frame
constexpr std::int32_t caretWidth = 1;
constexpr unsigned verticalCentre = 4, singleLine = 32;

const CLinuxFont &toLinux(const INativeFont &font) {
    return static_cast<const CLinuxFont &>(font);
}

/// @return all zero if the two have nothing in common: a clip with exchanged edges would be mended.
SNativeRect commonOf(const SNativeRect &first, const SNativeRect &second) {
    const SNativeRect common = {std::max(first.left, second.left), std::max(first.top, second.top),
                                std::min(first.right, second.right),
                                std::min(first.bottom, second.bottom)};
    const bool isEmpty = common.left >= common.right || common.top >= common.bottom;
    return isEmpty ? SNativeRect() : common;
}

}  // namespace

CEditView::CEditView(std::int32_t width, std::int32_t height, const INativeFont *font,
                     const SLook &look)
    : m_width(width), m_height(height),
      m_font(createNativeFont(font != nullptr ? toLinux(*font).getRecord() : SNativeFontRecord())),
      m_look(look) {}

SNativeRect CEditView::getTextArea() const {
    return {margin, 1, m_width - margin, m_height - 1};
}

// From the start of the line, without scrolling
std::int32_t CEditView::xOf(const CEditLine &line, std::size_t position) const {
    const std::string_view text = line.getText();
    return static_cast<std::int32_t>(
        std::lround(widthOf(toLinux(*m_font), text.substr(0, position))));
}

std::size_t CEditView::positionAt(const CEditLine &line, std::int32_t x) const {
    const auto wanted = static_cast<float>(x - margin + m_scroll);
    const char *const start = line.getText().c_str();
    const char *next = start;
    std::size_t position = 0;
    forEachGlyph(toLinux(*m_font), line.getText(), [&](const SGlyph &glyph, float left) {
        readUtf8(next);
        if (wanted >= left + glyph.advance / 2)
            position = static_cast<std::size_t>(next - start);
    });
    return position;
}

void CEditView::scrollToCaret(const CEditLine &line) {
    const auto [left, top, right, bottom] = getTextArea();
    const std::int32_t room = right - left - caretWidth;
    // No room is left empty at the end while something is hidden at the start.
    const std::int32_t width = xOf(line, line.getText().size());
    m_scroll = std::clamp(m_scroll, 0, std::max(0, width - room));
    const std::int32_t caret = xOf(line, line.getCaret());
    m_scroll = std::max(std::min(m_scroll, caret), caret - room);
}

SNativeRect CEditView::getCaretArea(const CEditLine &line) const {
    const std::int32_t height = std::min(toLinux(*m_font).getLineHeight(), m_height - 2);
    const std::int32_t left = margin + xOf(line, line.getCaret()) - m_scroll;
    const std::int32_t top = (m_height - height) / 2;
    return {left, top, left + caretWidth, top + height};
}

void CEditView::draw(INativeSurface &surface, const SNativeRect &area, const CEditLine &line,
                     bool isCaretShown) const {
    surface.setClip(area);
    surface.setBrush(m_look.background);
    surface.setPen(m_look.text, 1);
    surface.drawRectangle({0, 0, m_width, m_height});

    const SNativeRect textArea = commonOf(area, getTextArea());
    surface.setClip(textArea);
    drawLine(surface, line, m_look.text);
    if (line.hasSelection()) {
        const std::int32_t origin = margin - m_scroll;
        const SNativeRect selected = {origin + xOf(line, line.getSelectionStart()), 0,
                                      origin + xOf(line, line.getSelectionEnd()), m_height};
        surface.setClip(commonOf(textArea, selected));
        surface.setBrush(m_look.text);
        surface.fillRectangle(selected);
        drawLine(surface, line, m_look.background);
    }
    if (isCaretShown) {
        const bool isOnSelection =
            line.hasSelection() && line.getCaret() == line.getSelectionStart();
        surface.setClip(area);
        surface.setBrush(isOnSelection ? m_look.background : m_look.text);
        surface.fillRectangle(getCaretArea(line));
    }
}

void CEditView::drawLine(INativeSurface &surface, const CEditLine &line,
                         SNativeColour colour) const {
    surface.drawText(line.getText().c_str(), {margin - m_scroll, 0, m_width, m_height}, *m_font,
                     colour, verticalCentre | singleLine);
}
