#include "platform/linux/drawing/DrawText.h"

#include "platform/linux/drawing/CTextPainter.h"
#include "platform/linux/drawing/TextLines.h"

#include <algorithm>
#include <cmath>

namespace {

// Where a text goes in its rectangle.
struct SPlacement {
    int horizontal = 0;  // 0 left, 1 centre, 2 right
    int vertical = 0;    // 0 top, 1 centre, 2 bottom
    bool breaksLines = true;
    double margin = 0.0;    // left and right, in pixels
    double rounding = 0.0;  // added before positions are rounded down
};

double placed(int alignment, double near, double far, double size) {
    return alignment == 0 ? near : alignment == 1 ? near + (far - near - size) / 2 : far - size;
}

// Most faces put their lines about here.
void drawBars(const CTextPainter &painter, const CLinuxFont &font, std::int64_t left,
              std::int64_t right, std::int64_t baseLine) {
    const auto share = [&font](double part) { return std::lround(font.getEm() * part); };
    const std::int64_t thickness = std::max(1l, share(0.07));
    const std::int64_t underline = baseLine + std::max(1l, share(0.1));
    const std::int64_t strike = baseLine - share(0.28);
    if (font.isUnderlined())
        painter.drawBar(left, underline, right, underline + thickness);
    if (font.isStruckOut())
        painter.drawBar(left, strike, right, strike + thickness);
}

// The left end is a whole number.
void drawLine(const CTextPainter &painter, const CLinuxFont &font, std::string_view line,
              double left, std::int64_t baseLine) {
    const float width = forEachGlyph(font, line, [&](const SGlyph &glyph, float x) {
        painter.drawGlyph(glyph, static_cast<std::int64_t>(left + x), baseLine);
    });
    drawBars(painter, font, static_cast<std::int64_t>(left),
             static_cast<std::int64_t>(left + width), baseLine);
}

void drawLines(const SPixels &pixels, std::string_view text, const SNativeRect &rect,
               const CLinuxFont &font, SNativeColour colour, const SPlacement &placement) {
    const CTextPainter painter(pixels, rect, colour);
    if (!painter.canDraw() || !font.hasFace())
        return;
    const std::int64_t lineHeight = font.getLineHeight();
    const auto lines = placement.breaksLines ? 1 + std::count(text.begin(), text.end(), '\n') : 1;
    const double top =
        placed(placement.vertical, rect.top, rect.bottom, static_cast<double>(lines * lineHeight));
    std::int64_t baseLine =
        static_cast<std::int64_t>(std::floor(top + placement.rounding)) + font.getAscent();
    const auto draw = [&](std::string_view line) {
        const double width = placement.horizontal == 0 ? 0.0 : widthOf(font, line);
        const double left = placed(placement.horizontal, rect.left + placement.margin,
                                   rect.right - placement.margin, width);
        drawLine(painter, font, line, std::floor(left + placement.rounding), baseLine);
        baseLine += lineHeight;
    };
    if (placement.breaksLines)
        forEachLine(text, draw);
    else
        draw(text);
}

}  // namespace

void drawSmoothText(const SPixels &pixels, const char *text, const SNativeRect &rect,
                    const INativeFont &font, SNativeColour colour, int horizontal, int vertical) {
    const auto &linuxFont = static_cast<const CLinuxFont &>(font);
    drawLines(pixels, text, rect, linuxFont, colour,
              {horizontal, vertical, true, linuxFont.getEm() / 6.0, 0.5});
}

void drawPlainText(const SPixels &pixels, const char *text, const SNativeRect &rect,
                   const INativeFont &font, SNativeColour colour, unsigned format) {
    SPlacement placement;
    placement.horizontal = (format & 2) != 0 ? 2 : (format & 1) != 0 ? 1 : 0;
    placement.breaksLines = (format & 32) == 0;
    if (!placement.breaksLines)
        placement.vertical = (format & 8) != 0 ? 2 : (format & 4) != 0 ? 1 : 0;
    colour.alpha = 255;
    drawLines(pixels, text, rect, static_cast<const CLinuxFont &>(font), colour, placement);
}
