#pragma once

#include "toolkit/controls/CControlRoot.h"
#include "toolkit/menus/CMenuItemDisplay.h"
#include "toolkit/menus/CMenuWindow.h"

namespace Tessitor::GUI::Windowing {

/// The displays of a menu window, and what the mouse does to them. [gui thread]
class CMenuWindow::CMenuRoot : public Controls::CControlRoot {
public:
    CMenuRoot(IWindow *window, bool useIcons);

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void handleMouseMovement(Events::CMouseEvent &event) override;
    void handleMouseLeaving(Events::CMouseEvent &event) override;
    void drawRootControl(Graphics::CGraphics &graphics) override;

    /// Builds the displays of a menu.
    /// @return the size of the menu; null for no menu.
    virtual std::unique_ptr<MathTools::CDimension> getMenuSize(Controls::CMenu *menu);
    virtual Controls::CMenu *getMenu() const { return m_menu.getPointer(); }
    virtual void setFont(Fonts::CFont *font) { m_font.setPointer(font); }
    virtual Fonts::CFont *getFont() const { return m_font.getPointer(); }
    virtual void setMenuColours(const Controls::SMenuColours &colours);
    virtual const Controls::SMenuColours &getColours() const { return m_colours; }
    virtual void setCurrentSelection(std::int32_t index);
    virtual void setDrawAntiAliased(bool isAntiAliased);
    virtual void setMinimumWidth(std::int32_t width) { m_minimumWidth = width; }
    std::int32_t getMinimumWidth() const { return m_minimumWidth; }
    void setArea(const MathTools::CRect &area) { m_area = area; }
    bool usesIcons() const { return m_useIcons; }
    void forgetMouse();  ///< no selection, no press

private:
    using CMenuItemDisplay = Controls::CMenuItemDisplay;

    MathTools::CDimension addDisplays(const Controls::CMenu &menu);
    CMenuItemDisplay *displayAt(std::int32_t index) const;
    void showCursor(Events::CMouseEvent &event, const Controls::CMenuItem &item);
    void select(CMenuItemDisplay &display, std::int32_t index);
    void choose(Controls::CMenuItem &item);
    CMenuWindow *menuWindow() const;  ///< null once a handler has deleted it
    template <typename Visit>
    void forEachDisplay(Visit visit);

    Collections::TAutomaticPointer<Controls::CMenu> m_menu;
    Collections::TAutomaticPointer<Fonts::CFont> m_font;
    std::int32_t m_minimumWidth = 0;  // pixels
    std::int32_t m_selection = -1;    // index of a display; -1 for none
    std::int32_t m_press = -1;        // likewise, where the button went down
    Controls::SMenuColours m_colours;
    MathTools::CRect m_area;
    bool m_useIcons;
    bool m_isAntiAliased = true;
};

}  // namespace Tessitor::GUI::Windowing
