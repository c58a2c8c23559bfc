#include "toolkit/menus/SMenuLayout.h"

#include "toolkit/graphics/CGraphics.h"

#include <algorithm>

namespace Tessitor::GUI::Controls {

using MathTools::CDimension;

namespace {

void enlarge(CDimension &size, const CDimension &other) {
    size = CDimension(std::max(size.getWidth(), other.getWidth()),
                      std::max(size.getHeight(), other.getHeight()));
}

CDimension sizeOfText(const CMenuItem &item, Fonts::CFont *font) {
    CDimension size;
    Graphics::CGraphics::getTextExtent(item.getText(), size, font);
    return size;
}

CDimension sizeOfImages(const CMenuItem &item) {
    CDimension size;
    for (const Graphics::IImage *image : {item.getNormalImage(), item.getDisabledImage()})
        if (image != nullptr)
            enlarge(size, image->getImageSize());
    return size;
}

}  // namespace

SMenuLayout layOutMenu(const CMenu &menu, Fonts::CFont *font, bool usesIcons,
                       std::int32_t minimumWidth) {
    SMenuLayout layout;
    CDimension text, icon;
    menu.forEachItem([&](const CMenuItem &item) {
        if (item.getType() == EMenuItemType::Separator)
            return;
        layout.hasTicks |= item.getType() == EMenuItemType::Selectable;
        layout.hasArrows |= item.getType() == EMenuItemType::SubMenu;
        enlarge(text, sizeOfText(item, font));
        if (usesIcons)
            enlarge(icon, sizeOfImages(item));
    });

    layout.hasIcons = icon.getWidth() > 0;
    constexpr std::int32_t margins = 2 * SMenuLayout::margin;
    layout.itemHeight = std::max(text.getHeight(), icon.getHeight()) + margins;
    if (layout.hasIcons)
        layout.leadWidth = icon.getWidth();
    else if (layout.hasTicks)
        layout.leadWidth = layout.itemHeight;
    const std::int32_t arrowWidth = layout.hasArrows ? layout.itemHeight : 0;
    const std::int32_t width = text.getWidth() + margins + arrowWidth + layout.leadWidth;
    layout.itemWidth = std::max(width, minimumWidth);
    return layout;
}

}  // namespace Tessitor::GUI::Controls
