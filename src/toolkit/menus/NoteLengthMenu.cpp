#include "toolkit/menus/NoteLengthMenu.h"

#include "toolkit/menus/CSubMenuMenuItem.h"

namespace Tessitor::GUI::Controls {

CMenu *createNoteLengthMenu() {
    auto *menu = new CMenu;
    std::int32_t id = 0, subMenuId = 0;
    for (const char *kind : {"Straight", "Triplet", "Dotted"}) {
        auto *item = new CSubMenuMenuItem(kind, subMenuId++);
        for (const char *length : {"64", "32", "16", "8", "4", "2", "1"})
            item->getSubMenu()->addMenuItem(new CMenuItem(length, id++));
        menu->addMenuItem(item);
    }
    return menu;
}

}  // namespace Tessitor::GUI::Controls
