#pragma once

#include "toolkit/graphics/CGraphics.h"

#include <span>

/// How closely a drawn scene must match its expected picture.
enum class EMatch {
    Exact,    // every pixel
    Outline,  // all but a few: Wine's GDI leaves one pixel of a whole ellipse out
    Smooth,   // a sixteenth of full scale, except beside an edge
    Text,     // the same ink within 2 pixels
    TextGrid  // the same in each of nine parts
};

/// A small picture that both systems draw.
struct SScene {
    const char *name;  // of the scene and of the file of its expected picture
    EMatch match;
    bool usesSmoothDrawing;
    void (*draw)(Tessitor::GUI::Graphics::CGraphics &graphics);
};

inline constexpr int sceneWidth = 96, sceneHeight = 64;

/// What a scene is drawn on: no two channels are equal, so exchanged channels show.
inline constexpr SNativeColour sceneBackground{70, 80, 96};

std::span<const SScene> scenes();
