#pragma once

#include "toolkit/controls/IControl.h"
#include "toolkit/menus/CMenu.h"

namespace Tessitor::GUI::Events {

/// A choice from a menu, or the opening or closing of one. It holds references to all it names.
/// [gui thread]
class CMenuEvent : public Tessitor::Basics::CCountedObject {
public:
    /// @param item        null for an opening or closing.
    /// @param originator  the control that the menu was opened for; null for none.
    CMenuEvent(Controls::CMenuItem *item, Controls::CMenu *menu, Controls::IControl *originator);
    CMenuEvent(const CMenuEvent &) = delete;
    CMenuEvent &operator=(const CMenuEvent &) = delete;
    ~CMenuEvent() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    Controls::CMenuItem *getMenuItem() const { return m_item.getPointer(); }
    Controls::CMenu *getMenu() const { return m_menu.getPointer(); }
    Controls::IControl *getOriginator() const { return m_originator.getPointer(); }

private:
    static Tessitor::Basics::TClassRecord<CMenuEvent> s_class;

    Collections::TAutomaticPointer<Controls::CMenuItem> m_item;
    Collections::TAutomaticPointer<Controls::CMenu> m_menu;
    Collections::TAutomaticPointer<Controls::IControl> m_originator;
};

}  // namespace Tessitor::GUI::Events
