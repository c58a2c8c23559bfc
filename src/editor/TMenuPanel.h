#pragma once

#include "editor/CEditorMenu.h"
#include "editor/TModulePanel.h"
#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::Corvel {

/// A choice for the parameter of a MenuKnob.
struct SPanelMenuItem {
    const char *text;
    int idOffset;  // the item's id is this minus the first parameter of the panel
};

struct SPanelMenu {
    std::span<const SPanelMenuItem> items;
    std::int32_t width, height;  // until the menu has been measured
};

/// The panel of a module with a MenuKnob, and the menu that belongs to it. [gui thread]
template <const SModulePanel &description, const SPanelMenu &menuDescription>
class TMenuPanel : public TModulePanel<description> {
public:
    TMenuPanel(GUI::Windowing::IWindow *window, const MathTools::CRect &area, long firstId,
               GUI::Listeners::IActionListener *listener, CControlTable &table);

    CEditorMenu &getMenu() { return m_menu; }

private:
    CEditorMenu m_menu;
};

// Definitions

template <const SModulePanel &description, const SPanelMenu &menuDescription>
TMenuPanel<description, menuDescription>::TMenuPanel(GUI::Windowing::IWindow *window,
                                                     const MathTools::CRect &area, long firstId,
                                                     GUI::Listeners::IActionListener *listener,
                                                     CControlTable &table)
    : TModulePanel<description>(window, area, firstId, listener, table),
      m_menu({menuDescription.width, menuDescription.height},
             editorMenuColours(GUI::Basics::StaticColours::alphaDarkGrey)) {
    for (const SPanelMenuItem &item : menuDescription.items)
        m_menu.getMenu().addMenuItem(new GUI::Controls::CMenuItem(
            item.text, static_cast<std::int32_t>(item.idOffset - firstId)));
}

}  // namespace Tessitor::Corvel
