#pragma once

#include "platform/INativeFont.h"
#include "platform/SNativeColour.h"
#include "platform/SNativeRect.h"
#include "platform/linux/drawing/SPixels.h"

/// What INativeSmoothDrawing::drawText() does, inside the clip of the pixels.
void drawSmoothText(const SPixels &pixels, const char *text, const SNativeRect &rect,
                    const INativeFont &font, SNativeColour colour, int horizontal, int vertical);

/// What INativeSurface::drawText() does, inside the clip of the pixels. "&" is drawn as it is; on
/// Windows it underlines the next character.
void drawPlainText(const SPixels &pixels, const char *text, const SNativeRect &rect,
                   const INativeFont &font, SNativeColour colour, unsigned format);
