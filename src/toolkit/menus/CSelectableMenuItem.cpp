#include "toolkit/menus/CSelectableMenuItem.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CSelectableMenuItem>
    CSelectableMenuItem::s_class("CSelectableMenuItem", "CMenuItem");

CSelectableMenuItem::CSelectableMenuItem(const Tessitor::Basics::CString &text, std::int32_t id,
                                         bool isEnabled)
    : CMenuItem(text, id, EMenuItemType::Selectable, isEnabled) {
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::GUI::Controls
