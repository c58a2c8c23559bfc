#include "toolkit/menus/CSubMenuMenuItem.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CSubMenuMenuItem> CSubMenuMenuItem::s_class("CSubMenuMenuItem",
                                                                           "CMenuItem");

CSubMenuMenuItem::CSubMenuMenuItem(const Tessitor::Basics::CString &text, std::int32_t id)
    : CMenuItem(text, id, EMenuItemType::SubMenu, true),
      m_subMenu(Collections::TCountedObjectDeleter<CMenu>::getStaticDeleter()) {
    m_subMenu.setPointer(new CMenu);
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::GUI::Controls
