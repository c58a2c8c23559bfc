#pragma once

#include "toolkit/graphics/IImage.h"

/// Pictures that the demonstration draws itself. The caller owns them, without a reference.

constexpr int knobSize = 32, knobFrames = 63;

/// A knob from its left to its right end, one frame below the other.
Tessitor::GUI::Graphics::IImage *createKnobStrip();
/// The handle of a slider: normal, under the mouse, pressed.
Tessitor::GUI::Graphics::IImage *createSliderHandles(int width, int height);
/// A lamp of 48 by 24. @param isOn  whether it shines.
Tessitor::GUI::Graphics::IImage *createLamp(bool isOn);
/// What a disabled control of a size shows.
Tessitor::GUI::Graphics::IImage *createCross(int width, int height);
