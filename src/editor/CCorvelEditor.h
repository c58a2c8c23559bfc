#pragma once

#include "editor/CControlTable.h"
#include "editor/EditorImages.h"
#include "editor/IStripOwner.h"
#include "editor/ModulePanels.h"
#include "toolkit/controls/CClickableLabel.h"
#include "toolkit/menus/CMenuWindow.h"
#include "toolkit/windowing/CVstWindow.h"

#include <array>
#include <atomic>
#include <memory>

namespace Tessitor::Corvel {

/// The window of the effect: the top row, and six slots that show the modules of the chain. It is
/// built with the effect and lives as long, whether it is open or not. It holds no audio state: it
/// reads values from the effect and edits the chain of its strip. [gui thread]
class CCorvelEditor : public Vst::CVstWindow, public GUI::Listeners::IMenuListener {
public:
    static constexpr std::int32_t width = 748, height = 370;
    static constexpr int slotCount = 6;

    /// @param effect      an IStripOwner too, which outlives the editor; null for an editor that
    ///                    changes nothing.
    /// @param attributes  copied.
    CCorvelEditor(AudioEffect *effect, const MathTools::CRect &area,
                  const GUI::Windowing::CWindowAttributes &attributes);
    ~CCorvelEditor() override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Shows a value, unless it is shown already.
    void setParameter(long id, double value) override;
    void handleActionEvent(const GUI::Events::CActionEvent &event) override;

    void menuOpened(GUI::Events::CMenuEvent &) override {}
    void menuClosed(GUI::Events::CMenuEvent &) override {}
    void menuSelected(GUI::Events::CMenuEvent &event) override;

    /// For the effect, when it has replaced the chain: the slots follow at the next idle().
    /// [any thread]
    void handleChainChange() { m_chainChanged = true; }
    void windowCreating() override { loadEditorImages(); }
    void windowDestroying() override { closeMenus(); }

    void updateParameterControls();  ///< reads all values from the effect
    void updateParameterControl(long id);
    void refreshChainDisplay();  ///< lays panels and names out from the chain
    /// Gives the module menu its title, and lets it offer what can be chosen.
    /// @param disableAll  true if no module can be.
    void prepareFxMenu(bool disableAll);

private:
    static constexpr std::int32_t parkedLeft = -200;  // of panels that are not in the chain
    static constexpr std::int32_t helpId = -1000;
    static constexpr std::int32_t noModuleId = -1;  // of the menu item that removes a module

    static constexpr std::int32_t leftOfSlot(int slot) { return 17 + 120 * slot; }

    /// What a hot spot does. Added to the slot, this is its id.
    enum EHotSpot { kMoveLeft = 0, kMoveRight = 16, kInsert = 32, kReplace = 48 };

    void buildPanels();
    template <typename Panel>
    Panel *addPanel(int slot, long firstId);
    void buildTopRow();
    void buildSlots();
    void addHotSpot(int slot, EHotSpot action, std::int32_t left);
    void buildMenus();

    void handleIdle() override { showChainChange(); }
    void showChainChange();

    void handleHotSpot(std::int32_t id);
    void moveLeft(int slot);
    void moveRight(int slot);
    void openInsertMenu(int slot);
    void openReplaceMenu(int slot);
    void openStereoMenu(bool isInput);
    void sendParameter(const GUI::Controls::IControl &control);
    void chooseModule(int chosen);
    void insertModule(int present, int chosen);
    void chooseValue(std::int32_t itemId);
    void closeMenus();
    void openAtMouse(CEditorMenu &menu);
    static void openHelp();

    CDSPMultiFX &strip() const { return m_owner->getStrip(); }
    bool isInChain(int module) const { return strip().orderEntry(module).prev != kNoSlot; }
    void placePanel(int module, std::int32_t left, bool isInUse);
    void showSlot(int slot, int module);
    void showValueText(long id);
    Basics::CString textOf(long id) const;

    static Tessitor::Basics::TClassRecord<CCorvelEditor> s_class;

    IStripOwner *m_owner;                                   // the effect; may be null
    std::array<float, kParameterCount> m_parameterCache{};  // as shown last
    bool m_isBuilt = false;
    std::atomic<bool> m_chainChanged = false;
    std::array<GUI::Controls::CControlPanel *, kSlotCount> m_panels{};  // by module; owned by root
    CModPanel *m_modulator1 = nullptr;
    CModPanel *m_modulator2 = nullptr;
    CDelayPanel *m_delay = nullptr;
    Collections::TAutomaticPointer<GUI::Fonts::CFont> m_slotFont;
    CEditorMenu m_fxMenu;
    bool m_insertMode = false;  // whether the next choice of a module inserts it, or replaces one
    int m_selectedSlot = -1;    // whose hot spot has opened the menu
    std::array<int, slotCount> m_slotModule;
    std::array<GUI::Controls::CTextLabel *, slotCount> m_slotName{};  // owned by the root
    CEditorMenu m_stereoMenu;
    bool m_stereoTargetIsInput = false;
    CControlTable m_controlTable;
};

}  // namespace Tessitor::Corvel
