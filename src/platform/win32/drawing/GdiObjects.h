#pragma once

#include "platform/SNativeColour.h"
#include "platform/SNativeRect.h"

#include <memory>
#include <type_traits>
#include <windows.h>

struct SGdiDelete {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

/// Owns a pen, brush, font, region or bitmap: TGdiObject<HPEN>. Null if GDI has run out of objects.
template <typename Handle>
using TGdiObject = std::unique_ptr<std::remove_pointer_t<Handle>, SGdiDelete>;

inline COLORREF toColorref(SNativeColour colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

inline RECT toRect(const SNativeRect &rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

/// A new bitmap of 32 bits a pixel whose bytes the program can reach.
/// @param height  negative if the first row is the top of the picture.
/// @param bits    receives the address of the first row, which GDI owns.
TGdiObject<HBITMAP> createDibSection(LONG width, LONG height, void *&bits);
