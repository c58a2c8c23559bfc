#include "editor/CEditorMenu.h"

#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::Corvel {

using GUI::Controls::CMenu;
using GUI::Controls::SMenuColours;
using GUI::Windowing::CMenuWindow;
namespace StaticColours = GUI::Basics::StaticColours;

CEditorMenu::CEditorMenu(const MathTools::CDimension &size, const SMenuColours &colours)
    : m_area(MathTools::CPoint(0, 0), size), m_colours(colours),
      m_menu(Collections::TCountedObjectDeleter<CMenu>::getStaticDeleter()) {
    m_menu.setPointer(new CMenu);
}

CMenuWindow &CEditorMenu::getWindow() {
    if (m_window != nullptr)
        return *m_window;
    GUI::Windowing::CWindowAttributes attributes;
    attributes.setBackgroundColour(StaticColours::alphaLightGrey);
    attributes.setAlpha(0.85);
    m_window = std::make_unique<CMenuWindow>(m_area, attributes, &getMenu(), true, nullptr);
    m_window->setMenuColours(m_colours);
    return *m_window;
}

void CEditorMenu::close() {
    if (m_window != nullptr)
        m_window->closePopupWindow();
}

SMenuColours editorMenuColours(const GUI::Basics::CAlphaColour &disabledText) {
    SMenuColours colours;
    colours.disabledText = disabledText;
    colours.separator = StaticColours::alphaBlack;
    return colours;
}

}  // namespace Tessitor::Corvel
