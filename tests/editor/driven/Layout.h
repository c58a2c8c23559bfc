#pragma once

#include "dspclasses/parameters/ParameterIds.h"
#include "dspclasses/parameters/Slots.h"
#include "platform/SNativePoint.h"
#include "platform/SNativeRect.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

/// Where users find the controls of the editor, in its window of 748 by 370.
namespace Layout {

inline constexpr int width = 748, height = 370, slotCount = 6;
inline constexpr SNativePoint empty = {600, 30};  // a place without a control
inline constexpr SNativePoint help = {208, 40};

constexpr SNativePoint centreOf(const SNativeRect &area) {
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

// The slots

enum class EHotSpot { MoveLeft, Insert, Replace, MoveRight };

constexpr SNativePoint hotSpot(EHotSpot kind, int slot) {
    return {22 + 26 * static_cast<int>(kind) + 120 * slot + 12, 96 + 12};
}
/// All that shows which module is in a slot, and its controls.
constexpr SNativeRect slotArea(int slot) {
    return {17 + 120 * slot, 80, 17 + 120 * slot + 112, 132 + 220};
}

// The controls

enum class EControl { Knob, MenuKnob, Button };

struct SControl {
    int id;  // of the parameter
    EControl kind;
    SNativeRect area, label;  // in its panel, or in the window
};

constexpr SControl moved(SControl control, int x, int y) {
    for (SNativeRect *area : {&control.area, &control.label}) {
        area->left += x;
        area->right += x;
        area->top += y;
        area->bottom += y;
    }
    return control;
}

inline constexpr std::array<SControl, 3> topRow = {{
    {kInGain, EControl::Knob, {28, 28, 52, 52}, {16, 51, 64, 64}},
    {kInMono, EControl::MenuKnob, {84, 28, 108, 52}, {72, 51, 120, 64}},
    {kOutMono, EControl::MenuKnob, {140, 28, 164, 52}, {128, 51, 176, 64}},
}};

/// Where a control is in the grid of its panel.
struct SPlace {
    int id;
    EControl kind;
    int column, row;
};

inline constexpr int centred = -1;

constexpr SControl inPanel(const SPlace &place) {
    const int x = place.column == centred ? 32 : 8 + 48 * place.column;
    const int y = 52 * place.row;
    const bool isWide = place.id == kMod1Type || place.id == kMod2Type;
    const SNativeRect area = isWide ? SNativeRect{x, y + 20, x + 48, y + 44}
                                    : SNativeRect{x + 12, y + 20, x + 36, y + 44};
    return {place.id, place.kind, area, {x, y + 43, x + 48, y + 56}};
}

/// @return the controls of a module in its panel.
std::span<const SPlace> placesOf(int module);
/// @return the controls of a module that is shown in a slot.
inline std::vector<SControl> controlsIn(int slot, int module) {
    std::vector<SControl> controls;
    for (const SPlace &place : placesOf(module))
        controls.push_back(moved(inPanel(place), 17 + 120 * slot, 132));
    return controls;
}

/// The values of the items of the menu that a click on a MenuKnob opens, from the top.
std::span<const double> menuValues(int id);

}  // namespace Layout
