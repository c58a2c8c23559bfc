#include "toolkit/menus/CMenu.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CMenu> CMenu::s_class("CMenu", "CCountedObject");

void CMenu::addMenuItem(CMenuItem *item) {
    if (item != nullptr)
        m_items.addElement(item);
}

CMenuItem *CMenu::getMenuItem(std::int32_t index) const {
    return m_items.elementAtIndex(index);
}

CMenuItem *CMenu::getMenuItemByName(const Tessitor::Basics::CString &text) const {
    for (std::int32_t i = 0; i < getNumberOfMenuItems(); ++i) {
        CMenuItem *item = getMenuItem(i);
        if (item != nullptr && item->getText().equals(text))
            return item;
    }
    return nullptr;
}

void CMenu::deleteMenuItem(std::int32_t index) {
    m_items.deletePointerAtIndex(index);
    m_items.compactArray(true);
}

void CMenu::clearMenuItem(std::int32_t index) {
    m_items.deletePointerAtIndex(index);
}

}  // namespace Tessitor::GUI::Controls
