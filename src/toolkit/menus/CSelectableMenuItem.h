#pragma once

#include "toolkit/menus/CMenuItem.h"

namespace Tessitor::GUI::Controls {

/// An item with a tick that a click sets or clears.
class CSelectableMenuItem : public CMenuItem {
public:
    CSelectableMenuItem(const Tessitor::Basics::CString &text, std::int32_t id,
                        bool isEnabled = true);
    ~CSelectableMenuItem() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    virtual void setSelected(bool isSelected) { m_isSelected = isSelected; }
    virtual bool isSelected() const { return m_isSelected; }  ///< false at first

private:
    static Tessitor::Basics::TClassRecord<CSelectableMenuItem> s_class;

    bool m_isSelected = false;
};

}  // namespace Tessitor::GUI::Controls
