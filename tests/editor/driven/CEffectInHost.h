#pragma once

#include "CChainModel.h"
#include "CDesktop.h"
#include "Layout.h"
#include "abi/LoadedPlugin.h"
#include "hostlayer/FakeHost.h"

#include <utility>

/// An effect, loaded as a host does it, whose editor a user can open, see and use.
class CEffectInHost {
public:
    CEffectInHost(CDesktop &screen, const CPluginFile &file);
    CEffectInHost(const CEffectInHost &) = delete;
    CEffectInHost &operator=(const CEffectInHost &) = delete;
    ~CEffectInHost() { destroyWindow(); }

    static constexpr SNativePoint upperPlace = {50, 60}, lowerPlace = {50, 460};

    /// Opens the editor in a new window of the host.
    void open(SNativePoint position = upperPlace);
    /// Opens it as hosts do that look at its size only then: in a hidden window of one pixel.
    void openInTinyWindow();
    void close();  ///< and the window
    void destroyWindow();
    /// Leaves the window to the caller.
    void *leaveWindow() { return std::exchange(m_window, nullptr); }

    void idle() const { effect.send(effEditIdle); }
    void settle() const {
        m_desktop.settle([this] { idle(); });
    }

    // The user, in coordinates of the editor

    SNativePoint onScreen(SNativePoint position) const;
    void moveTo(SNativePoint position) const;
    /// Not as the second part of a double click, whatever was before.
    void pressAt(SNativePoint position) const;
    void clickAt(SNativePoint position) const;
    void doubleClickAt(SNativePoint position) const;
    /// In one movement.
    void drag(SNativePoint position, int right, int down) const;
    void turnWheelAt(SNativePoint position, int notches) const;
    /// Moves the mouse to an item of the menu that is open.
    /// @param number  from the top.
    void pointAtItem(int number, int ofItems) const;
    void pointAtModule(int module) const;  ///< the same in the menu of modules; -1 for none
    void choose(int number, int ofItems) const;
    void clickHotSpot(Layout::EHotSpot kind, int slot) const {
        clickAt(Layout::hotSpot(kind, slot));
    }
    /// Chooses a module from the menu of a hot spot; -1 for none.
    void chooseModule(Layout::EHotSpot kind, int slot, int module) const;

    // What became of it

    CPicture picture() const {
        return m_desktop.pictureOf(m_window, Layout::width, Layout::height);
    }
    SStoredProgram stored() const;
    void restore(const SStoredProgram &program) const;
    void *window() const { return m_window; }

    CLoadedEffect effect;

private:
    void settlePress() const {
        m_desktop.press();
        settle();
    }
    void settleRelease() const {
        m_desktop.release();
        settle();
    }

    CDesktop &m_desktop;
    void *m_window = nullptr;
};
