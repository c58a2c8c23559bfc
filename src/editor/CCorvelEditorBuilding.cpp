// How the editor is put together.
#include "editor/CCorvelEditor.h"
#include "hostlayer/AudioEffect.h"
#include "toolkit/controls/CMomentaryButton.h"
#include "toolkit/graphics/StaticColours.h"

#include <mutex>

namespace Tessitor::Corvel {

using GUI::Controls::CClickableLabel;
using GUI::Controls::CMenu;
using GUI::Controls::CMenuItem;
using GUI::Controls::CTextLabel;
using GUI::Fonts::CFont;
using MathTools::CRect;
namespace StaticColours = GUI::Basics::StaticColours;

Tessitor::Basics::TClassRecord<CCorvelEditor> CCorvelEditor::s_class("CCorvelEditor", "CVstWindow");

namespace {

constexpr std::int32_t topRowTop = 16, slotNameTop = 80, hotSpotTop = 96;

constexpr const char *face = "Arial";
constexpr std::int32_t fontHeight = 10;

// Another editor may be drawing with this font, so it changes only for the first one.
void setUpDefaultFont() {
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    CFont *font = CFont::getDefaultFont();
    if (font != nullptr &&
        (font->getHeight() != fontHeight || font->isBold() || font->getFaceName() != face))
        font->setFont(face, fontHeight, false, false, false, false);
}

}  // namespace

CCorvelEditor::CCorvelEditor(AudioEffect *owner, const CRect &area,
                             const GUI::Windowing::CWindowAttributes &attributes)
    : CVstWindow(owner, area, attributes), m_owner(dynamic_cast<IStripOwner *>(owner)),
      m_slotFont(Collections::TCountedObjectDeleter<CFont>::getStaticDeleter()),
      m_fxMenu({112, 216}, editorMenuColours(StaticColours::alphaBlue)),
      m_stereoMenu({75, 48}, editorMenuColours(StaticColours::alphaBlue)) {
    s_class.incrementInstanceCount();
    findEditorImages();
    setUpDefaultFont();
    m_slotFont.setPointer(new CFont(face, fontHeight, false, true));
    m_slotModule.fill(kNoSlot);
    buildPanels();
    buildTopRow();
    buildSlots();
    buildMenus();
    getControlRoot()->setBackgroundImage(editorImage(kBackgroundImage));
    updateParameterControls();
    refreshChainDisplay();
    m_isBuilt = true;
}

CCorvelEditor::~CCorvelEditor() {
    closeMenus();
    s_class.decrementInstanceCount();
}

// Panels

template <typename Panel>
Panel *CCorvelEditor::addPanel(int slot, long firstId) {
    auto *panel = new Panel(this, CRect(parkedLeft, panelTop, panelWidth, panelHeight), firstId,
                            this, m_controlTable);
    getControlRoot()->addControl(panel);
    m_panels[std::size_t(slot)] = panel;
    return panel;
}

void CCorvelEditor::buildPanels() {
    addPanel<CBalancePanel>(kBalanceSlot, kBalance);
    addPanel<CPanPanel>(kPanSlot, kPan);
    addPanel<CGainPanel>(kGainSlot, kGain);
    addPanel<CEQPanel>(k3BandSlot, k3EQLo);
    addPanel<CRumblePanel>(kRumbleFilterSlot, kRmblFreq);
    addPanel<CHiPassPanel>(kHiPassSlot, kHPFreq);
    addPanel<CPresencePanel>(kPresenceSlot, kPresFreq);
    addPanel<CParametricPanel>(kParametricSlot, kParaFreq);
    addPanel<CGatePanel>(kGateSlot, kGateThrsh);
    addPanel<CCompressorPanel>(kCompressorSlot, kCmpThresh);
    addPanel<CDeEsserPanel>(kDeEsserSlot, kDeSThresh);
    m_modulator1 = addPanel<CModPanel>(kModulator1Slot, kMod1Type);
    m_modulator2 = addPanel<CModPanel>(kModulator2Slot, kMod2Type);
    addPanel<CWarmerPanel>(kWarmerSlot, kWarmer);
    m_delay = addPanel<CDelayPanel>(kDelaySlot, kDlyTime);
    addPanel<CReverbPanel>(kReverbSlot, kRvRmSize);
}

// The top row

namespace {

CTextLabel *addTopLabels(GUI::Controls::IControlRoot &root, std::int32_t x, const char *name,
                         const char *caption) {
    addLabel(root, x - 2, topRowTop, name, StaticColours::alphaYellow, StaticColours::alphaWhite);
    return addLabel(root, x, topRowTop + 35, caption, StaticColours::alphaTransparent,
                    StaticColours::alphaLightGrey);
}

}  // namespace

void CCorvelEditor::buildTopRow() {
    struct STopKnob {
        long id;
        const char *name, *caption;
        std::int32_t x;
        EImageSlot image;
        bool isDragEnabled;
    };
    constexpr STopKnob knobs[] = {
        {kInGain, "InputGain", "0dB", 16, kLevelImage, true},
        {kInMono, "In", "Combine", 72, kStereoModeImage, false},
        {kOutMono, "Out", "Combine", 128, kStereoModeImage, false},
    };
    GUI::Controls::IControlRoot &root = *getControlRoot();
    for (const auto &[id, name, caption, x, image, isDragEnabled] : knobs) {
        SParameterControls controls;
        controls.valueLabel = addTopLabels(root, x, name, caption);
        controls.control = addKnob(root, id, x, topRowTop + 12, image, isDragEnabled, this);
        m_controlTable.record(id, controls);
    }
    constexpr std::int32_t helpX = 184;
    addTopLabels(root, helpX, " Help", "");
    addButton<GUI::Controls::CMomentaryButton>(root, helpId, helpX, topRowTop + 12, kHelpImage,
                                               kHelpImage, this);
}

// The slots

void CCorvelEditor::buildSlots() {
    for (int slot = 0; slot < slotCount; ++slot) {
        const std::int32_t left = leftOfSlot(slot);
        auto *name = new CTextLabel(getControlRoot(), 0,
                                    CRect(left, slotNameTop, panelWidth, labelHeight), "----");
        name->setFont(m_slotFont.getPointer());
        name->setColours(StaticColours::alphaRed, StaticColours::alphaBlue,
                         StaticColours::alphaWhite);
        name->setDrawBackground(false);
        name->setTextFormat(centredAtTop);
        getControlRoot()->addControl(name);
        m_slotName[std::size_t(slot)] = name;
        if (slot > 0)
            addHotSpot(slot, kMoveLeft, left + 5);
        if (slot < slotCount - 1)
            addHotSpot(slot, kMoveRight, left + 83);
        addHotSpot(slot, kInsert, left + 31);
        addHotSpot(slot, kReplace, left + 57);
    }
}

void CCorvelEditor::addHotSpot(int slot, EHotSpot action, std::int32_t left) {
    auto *hotSpot = new CClickableLabel(getControlRoot(), action + slot,
                                        CRect(left, hotSpotTop, frameSize, frameSize), "0", this);
    hotSpot->setColours(StaticColours::alphaTransparent, StaticColours::alphaTransparent,
                        StaticColours::alphaTransparent);
    getControlRoot()->addControl(hotSpot);
}

// Menus

void CCorvelEditor::buildMenus() {
    CMenu &fxMenu = m_fxMenu.getMenu();
    for (int module = kFirstModuleSlot; module <= kLastModuleSlot; ++module)
        fxMenu.addMenuItem(new CMenuItem(slotLabels[std::size_t(module)], module));
    fxMenu.addMenuItem(new CMenuItem("--No FX--", noModuleId));

    std::int32_t id = -13;
    for (const char *mode : {"Combine", "All Left", "All Right", "Stereo"})
        m_stereoMenu.getMenu().addMenuItem(new CMenuItem(mode, id++));
}

}  // namespace Tessitor::Corvel
