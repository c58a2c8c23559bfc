#pragma once

#include "editor/CControlTable.h"
#include "editor/ControlMaker.h"
#include "toolkit/controls/CControlPanel.h"
#include "toolkit/events/IWindow.h"

#include <span>

namespace Tessitor::Corvel {

enum class EPanelControl {
    Knob,
    MenuKnob,  ///< opens a menu instead of turning
    Button
};

/// A parameter on a panel.
struct SPanelControl {
    static constexpr int centred = -1;

    const char *name;
    const char *caption;  // until the first value is shown
    EPanelControl kind;
    int column;  // 0 or 1, or centred
    int row;
    EImageSlot image;  // of a knob
};

struct SModulePanel {
    const char *className;
    std::span<const SPanelControl> controls;  // in the order of the parameters
};

inline constexpr std::int32_t panelWidth = 112, panelHeight = 220, panelTop = 132;

/// Adds the controls of a panel to it and records them.
/// @param firstId  the parameter of the first control; those of the others follow.
void addPanelControls(GUI::Controls::CControlPanel &panel, std::span<const SPanelControl> controls,
                      long firstId, GUI::Listeners::IActionListener *listener,
                      CControlTable &table);

/// The panel of a module: a control, a name and a value for each of its parameters. [gui thread]
template <const SModulePanel &description>
class TModulePanel : public GUI::Controls::CControlPanel {
public:
    /// @param window  the editor.
    TModulePanel(GUI::Windowing::IWindow *window, const MathTools::CRect &area, long firstId,
                 GUI::Listeners::IActionListener *listener, CControlTable &table);
    ~TModulePanel() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

private:
    static Tessitor::Basics::TClassRecord<TModulePanel> s_class;
};

// Definitions

template <const SModulePanel &description>
Tessitor::Basics::TClassRecord<TModulePanel<description>>
    TModulePanel<description>::s_class(description.className, "CControlPanel");

template <const SModulePanel &description>
TModulePanel<description>::TModulePanel(GUI::Windowing::IWindow *window,
                                        const MathTools::CRect &area, long firstId,
                                        GUI::Listeners::IActionListener *listener,
                                        CControlTable &table)
    : CControlPanel(window, window->getControlRoot(), -1, area, listener) {
    addPanelControls(*this, description.controls, firstId, listener, table);
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::Corvel
