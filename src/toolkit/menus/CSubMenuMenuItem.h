#pragma once

#include "toolkit/menus/CMenu.h"

namespace Tessitor::GUI::Controls {

/// An item that opens a menu of its own, which is empty at first.
class CSubMenuMenuItem : public CMenuItem {
public:
    CSubMenuMenuItem(const Tessitor::Basics::CString &text, std::int32_t id);
    ~CSubMenuMenuItem() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    virtual CMenu *getSubMenu() { return m_subMenu.getPointer(); }              ///< never null
    virtual const CMenu *getSubMenu() const { return m_subMenu.getPointer(); }  ///< never null

private:
    static Tessitor::Basics::TClassRecord<CSubMenuMenuItem> s_class;

    Collections::TAutomaticPointer<CMenu> m_subMenu;
};

}  // namespace Tessitor::GUI::Controls
