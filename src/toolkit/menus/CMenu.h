#pragma once

#include "foundation/TCountedPointerArray.h"
#include "toolkit/menus/CMenuItem.h"

namespace Tessitor::GUI::Controls {

/// A menu as data. It holds references to its items. [gui thread]
class CMenu : public Tessitor::Basics::CCountedObject {
public:
    CMenu() { s_class.incrementInstanceCount(); }
    CMenu(const CMenu &) = delete;
    CMenu &operator=(const CMenu &) = delete;
    ~CMenu() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    virtual void setMenuTitle(const Tessitor::Basics::CString &title) { m_title = title; }
    virtual const Tessitor::Basics::CString &getMenuTitle() const { return m_title; }
    virtual void addMenuItem(CMenuItem *item);  ///< null is ignored
    /// @return null outside 0 to getNumberOfMenuItems() - 1, and for an empty place.
    virtual CMenuItem *getMenuItem(std::int32_t index) const;
    /// @return the first item with this text; null if there is none.
    virtual CMenuItem *getMenuItemByName(const Tessitor::Basics::CString &text) const;
    virtual void deleteMenuItem(std::int32_t index);  ///< later items move up
    virtual void clearMenuItem(std::int32_t index);   ///< leaves an empty place
    /// @return the places, empty ones included.
    virtual std::int32_t getNumberOfMenuItems() const { return m_items.getArraySize(); }

    /// Calls visit(item) for each item.
    template <typename Visit>
    void forEachItem(Visit visit) const {
        for (std::int32_t i = 0; i < getNumberOfMenuItems(); ++i)
            if (CMenuItem *item = getMenuItem(i))
                visit(*item);
    }

private:
    static Tessitor::Basics::TClassRecord<CMenu> s_class;

    Collections::TCountedPointerArray<CMenuItem> m_items;
    Tessitor::Basics::CString m_title = "Menu Title";
};

}  // namespace Tessitor::GUI::Controls
