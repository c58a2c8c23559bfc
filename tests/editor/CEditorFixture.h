#pragma once

#include "CSpyEffect.h"
#include "CTemporaryFolder.h"
#include "toolkit/controls/CAnimation.h"
#include "toolkit/controls/CButton.h"
#include "toolkit/controls/CControlPanel.h"
#include "toolkit/events/FakeNativeMouse.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The effect and its editor, with pictures of one pixel and a mouse, on a large screen.
class CEditorFixture : public testing::Test {
protected:
    using CControl = Tessitor::GUI::Controls::CControl;
    using CControlPanel = Tessitor::GUI::Controls::CControlPanel;
    using CCorvelEditor = Tessitor::Corvel::CCorvelEditor;
    using CPoint = Tessitor::MathTools::CPoint;
    using CRect = Tessitor::MathTools::CRect;
    using CTextLabel = Tessitor::GUI::Controls::CTextLabel;
    using IControl = Tessitor::GUI::Controls::IControl;
    using IControlRoot = Tessitor::GUI::Controls::IControlRoot;

    /// The left edge of a hot spot, in its slot.
    enum EHotSpot { MoveLeft = 22, Insert = 48, Replace = 74, MoveRight = 100 };

    CEditorFixture();
    ~CEditorFixture() override;

    void open() { editor->open(&parent); }

    // The mouse, in an open editor. An action event comes with the press or the release.
    void send(unsigned message, int x, int y) const { send(nativeOf(*editor), message, x, y); }
    static void send(CFakeNativeWindow &window, unsigned message, int x, int y);
    static CFakeNativeWindow &nativeOf(const Tessitor::GUI::Windowing::CWindow &window);
    void click(int x, int y) const;
    void click(const IControl &control) const;
    void click(EHotSpot hotSpot, int slot) const { click(hotSpot + 120 * slot + 12, 108); }

    // Menus
    static bool isMenuOpen() { return fakeNatives().windows.size() > 1; }
    /// Clicks an item of the open menu, whose items are all equally high.
    static void choose(int item, int numberOfItems);
    /// Chooses a module from the module menu.
    void chooseModule(int module) const { choose(module - 2, 17); }
    void chooseNoModule() const { choose(16, 17); }
    void insert(int slot, int module) const;
    void replace(int slot, int module) const;

    // What the editor consists of
    IControlRoot &root() const { return *editor->getControlRoot(); }
    static std::vector<CControl *> controlsOf(const IControlRoot &controls);
    CControlPanel &panel(int module) const;
    /// The knob or button of a parameter.
    CControl &control(int id) const;
    CTextLabel &valueLabel(int id) const;  ///< below the parameter's control
    std::string valueText(int id) const;
    std::string expectedText(int id) const;  ///< display and unit, from the effect
    CTextLabel &slotName(int slot) const;
    std::vector<std::string> slotNames() const;
    /// The modules whose panels are in a slot, from left to right.
    std::vector<int> shownPanels() const;

    // The chain
    CDSPMultiFX &strip() const { return effect->getStrip(); }
    std::vector<int> chain() const;  ///< its modules, following the next links
    std::pair<int, int> links(int module) const;
    /// Links these modules and shows them.
    void setChain(const std::vector<int> &modules) const;

    CTemporaryFolder folder;  // of the module
    FakeHost host;
    std::unique_ptr<CSpyEffect> effect;
    CCorvelEditor *editor = nullptr;  // the effect's own
    int parent = 0;                   // the host's window

private:
    static CControl *findControl(const IControlRoot &controls, int id);
};
