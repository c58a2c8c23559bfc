#include "toolkit/menus/CMenuEvent.h"

namespace Tessitor::GUI::Events {

using Collections::TCountedObjectDeleter;

Tessitor::Basics::TClassRecord<CMenuEvent> CMenuEvent::s_class("CMenuEvent", "CCountedObject");

CMenuEvent::CMenuEvent(Controls::CMenuItem *item, Controls::CMenu *menu,
                       Controls::IControl *originator)
    : m_item(TCountedObjectDeleter<Controls::CMenuItem>::getStaticDeleter()),
      m_menu(TCountedObjectDeleter<Controls::CMenu>::getStaticDeleter()),
      m_originator(TCountedObjectDeleter<Controls::IControl>::getStaticDeleter()) {
    m_item.setPointer(item);
    m_menu.setPointer(menu);
    m_originator.setPointer(originator);
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::GUI::Events
