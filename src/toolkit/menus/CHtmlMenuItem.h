#pragma once

#include "foundation/CHtmlString.h"
#include "toolkit/menus/CMenuItem.h"

namespace Tessitor::GUI::Controls {

/// An item that opens a web address.
class CHtmlMenuItem : public CMenuItem {
public:
    CHtmlMenuItem(const Tessitor::Basics::CString &text, std::int32_t id,
                  const Tessitor::Basics::CHtmlString &address);
    ~CHtmlMenuItem() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Opening an address changes it; see CHtmlString::openInBrowser().
    virtual Tessitor::Basics::CHtmlString &getAddress() { return m_address; }

private:
    static Tessitor::Basics::TClassRecord<CHtmlMenuItem> s_class;

    Tessitor::Basics::CHtmlString m_address;
};

}  // namespace Tessitor::GUI::Controls
