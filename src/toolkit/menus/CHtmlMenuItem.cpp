#include "toolkit/menus/CHtmlMenuItem.h"

namespace Tessitor::GUI::Controls {

Tessitor::Basics::TClassRecord<CHtmlMenuItem> CHtmlMenuItem::s_class("CHtmlMenuItem", "CMenuItem");

CHtmlMenuItem::CHtmlMenuItem(const Tessitor::Basics::CString &text, std::int32_t id,
                             const Tessitor::Basics::CHtmlString &address)
    : CMenuItem(text, id, EMenuItemType::Address, true), m_address(address) {
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::GUI::Controls
