#pragma once

#include "foundation/CDimension.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/menus/CMenu.h"

namespace Tessitor::GUI::Controls {

/// How large the items of a menu are, in pixels, and what they have to leave room for.
struct SMenuLayout {
    static constexpr std::int32_t separatorHeight = 4, columnGap = 4, margin = 4;

    bool hasIcons = false;   ///< items with an image
    bool hasTicks = false;   ///< items that can be selected
    bool hasArrows = false;  ///< items with a sub-menu
    std::int32_t itemWidth = 0, itemHeight = 0;
    std::int32_t leadWidth = 0;  ///< left of the texts: for icons, or else for ticks

    std::int32_t heightOf(const CMenuItem &item) const {
        return item.getType() == EMenuItemType::Separator ? separatorHeight : itemHeight;
    }
};

/// Measures the items of a menu. Separators need no room.
/// @param font  null for the library's default font.
SMenuLayout layOutMenu(const CMenu &menu, Fonts::CFont *font, bool usesIcons,
                       std::int32_t minimumWidth);

}  // namespace Tessitor::GUI::Controls
