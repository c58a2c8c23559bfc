#pragma once

#include "foundation/TAutomaticPointer.h"
#include "toolkit/menus/CMenuWindow.h"

#include <memory>

namespace Tessitor::Corvel {

/// One of the editor's menus, grey and slightly translucent. Its window measures the texts, so it
/// is created only when the menu is first used: an effect that is only scanned, or only plays,
/// never looks for a font.
class CEditorMenu {
public:
    /// @param size     of the window until the menu has been measured.
    /// @param colours  of the window when it is created.
    CEditorMenu(const MathTools::CDimension &size, const GUI::Controls::SMenuColours &colours);

    GUI::Controls::CMenu &getMenu() const { return *m_menu.getPointer(); }
    GUI::Windowing::CMenuWindow &getWindow();  ///< [gui thread]
    /// Ignored unless the menu is open. [gui thread]
    void close();

private:
    const MathTools::CRect m_area;
    const GUI::Controls::SMenuColours m_colours;
    Collections::TAutomaticPointer<GUI::Controls::CMenu> m_menu;
    std::unique_ptr<GUI::Windowing::CMenuWindow> m_window;  // null until it is needed
};

/// Black on grey, with the frame and the selection in purple.
/// @param disabledText  the colour of items that cannot be chosen.
GUI::Controls::SMenuColours editorMenuColours(const GUI::Basics::CAlphaColour &disabledText);

}  // namespace Tessitor::Corvel
