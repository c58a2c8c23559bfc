#include "platform/linux/windowing/pointer/SystemCursors.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr SSystemCursor cursors[] = {
    {systemArrow, 68, {"default", "left_ptr", "arrow", ""}},
    {32649, 60, {"pointer", "hand2", "hand1", "pointing_hand"}},
    {32514, 150, {"wait", "watch", "", ""}},
    {32645, 116, {"ns-resize", "size_ver", "sb_v_double_arrow", "v_double_arrow"}},
    {32644, 108, {"ew-resize", "size_hor", "sb_h_double_arrow", "h_double_arrow"}},
    {32513, 152, {"text", "xterm", "ibeam", ""}},
    {32642, 14, {"nwse-resize", "size_fdiag", "bd_double_arrow", "bottom_right_corner"}},
    {32646, 52, {"move", "fleur", "size_all", "all-scroll"}},
};

}  // namespace

const SSystemCursor *findSystemCursor(int number) {
    const auto *place =
        std::find_if(std::begin(cursors), std::end(cursors),
                     [&](const SSystemCursor &cursor) { return cursor.number == number; });
    return place != std::end(cursors) ? place : nullptr;
}
