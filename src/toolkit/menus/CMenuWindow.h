#pragma once

#include "toolkit/menus/CMenu.h"
#include "toolkit/menus/IMenuListener.h"
#include "toolkit/menus/SMenuColours.h"
#include "toolkit/windowing/CWindow.h"

#include <memory>

namespace Tessitor::GUI::Windowing {

/// Shows a menu in a popup of its own, and each sub-menu in a further one. The native window exists
/// while the menu is open, so that a menu that is never opened needs no display, and none is left
/// when the host takes its window away. A listener may delete the menu window. [gui thread]
class CMenuWindow : public CWindow, public Listeners::IMenuListener {
public:
    /// @param rect        its position and size are replaced by those of the menu.
    /// @param attributes  copied; the window becomes a popup with a title of its own.
    /// @param menu        referenced; null for none yet.
    /// @param useIcons    whether the images of the items are shown.
    /// @param listener    not owned; null for none.
    /// @param originator  the control that events name; not owned; null for none.
    CMenuWindow(const MathTools::CRect &rect, const CWindowAttributes &attributes,
                Controls::CMenu *menu, bool useIcons, Listeners::IMenuListener *listener,
                Controls::IControl *originator = nullptr);
    ~CMenuWindow() override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Shows the menu, moved so that it lies on the screen.
    /// @param point  of its top left corner, on the screen.
    virtual void openPopupWindow(const MathTools::CPoint &point);
    virtual void closePopupWindow();  ///< and its sub-menus; ignored unless open
    virtual Controls::CMenu *getMenu() const;
    /// Builds what the window shows. An item that changes its text afterwards needs another call.
    virtual void setMenu(Controls::CMenu *menu);
    /// @param font  referenced; null for the library's default font.
    virtual void setFont(Fonts::CFont *font);
    virtual void setMenuColours(const Controls::SMenuColours &colours);
    virtual void setMinimumWidth(std::int32_t width);  ///< pixels
    virtual void setDrawAntiAliased(bool isAntiAliased);
    /// Ignored unless the index is -1, for none, or that of a display.
    virtual void setCurrentSelection(std::int32_t index);
    virtual Fonts::CFont *getFont() const;
    virtual const Controls::SMenuColours &getMenuColours() const;
    virtual std::int32_t getMinimumWidth() const;

    void setMenuListener(Listeners::IMenuListener *listener) { m_menuListener = listener; }
    bool isOpen() const { return m_isOpen; }
    CMenuWindow *getChildWindow() const { return m_child.get(); }  ///< the open sub-menu, or null
    /// @return null if there is no menu.
    const MathTools::CDimension *getMenuSize() const { return m_menuSize.get(); }

    // IMenuListener: what happens in a sub-menu goes on to the listener. A choice closes the menus.
    void menuOpened(Events::CMenuEvent &event) override;
    void menuClosed(Events::CMenuEvent &event) override;
    void menuSelected(Events::CMenuEvent &event) override;

    // IFocusListener
    void lostFocus(IWindow *window) override;

private:
    class CMenuRoot;
    class COpeningChild;

    CMenuRoot &root() const;
    void openSubMenu(Controls::CMenu *menu, std::int32_t top);
    void closeSubMenu() { m_child.reset(); }
    void moveOntoScreen();
    void notify(void (Listeners::IMenuListener::*handler)(Events::CMenuEvent &));

    static Tessitor::Basics::TClassRecord<CMenuWindow> s_class;

    Listeners::IMenuListener *m_menuListener;  // not owned
    Controls::IControl *m_originator;          // not owned
    std::unique_ptr<MathTools::CDimension> m_menuSize;
    std::unique_ptr<CMenuWindow> m_child;
    CMenuWindow *m_parentMenu = nullptr;  // not owned; owns this window
    bool m_isOpen = false;
    bool m_isOpeningChild = false;
    const std::shared_ptr<const int> m_life = std::make_shared<int>();  // ends with the window
};

}  // namespace Tessitor::GUI::Windowing
