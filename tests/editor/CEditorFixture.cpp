#include "CEditorFixture.h"

#include "FakeNativeModule.h"
#include "PictureBytes.h"
#include "editor/EditorImages.h"
#include "foundation/CApplicationInformation.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/menus/FakeNativeScreen.h"
#include "toolkit/menus/FakeNativeShell.h"

using Tessitor::Basics::CApplicationInformation;
using Tessitor::GUI::Fonts::CFont;

namespace {

void writePictures(const std::filesystem::path &resources) {
    std::filesystem::create_directories(resources);
    for (const char *name :
         {"Background.png", "Balance.png", "Blue.png", "ButtonDown.png", "ButtonUp.png",
          "DelayType.png", "Green2Red_Centred.png", "Help.png", "Modulation.png",
          "MonoStereoText.png", "Red.png", "Red2Green_Reversed.png"})
        writeBytes((resources / name).string(), SPng().bytes());
}

}  // namespace

CEditorFixture::CEditorFixture() {
    fakeNatives() = SFakeNatives();
    fakeNativeMouse().captureWindow = nullptr;
    fakeNativeMouse().position = {300, 200};
    fakeNativeScreen() = {0, 0, 4000, 3000};
    openedDocuments().clear();
    writePictures(folder / "Corvel" / "Resources");
    fakeNativeModulePath() = (folder / "Corvel.so").make_preferred().string();
    CApplicationInformation::setApplicationInformation("", "", "", "", "", "", nullptr);
    CFont::createDefaultFont();
    effect = std::make_unique<CSpyEffect>();
    editor = dynamic_cast<CCorvelEditor *>(effect->getEditor());
    effect->wasEditing.clear();
    host.forgetCalls();
}

CEditorFixture::~CEditorFixture() {
    effect.reset();
    Tessitor::Corvel::releaseEditorImages();
    CFont::releaseDefaultFont();
    CApplicationInformation::destroyApplicationInformation();
}

// The mouse

void CEditorFixture::send(CFakeNativeWindow &window, unsigned message, int x, int y) {
    const auto position =
        (static_cast<std::uint32_t>(y) << 16) | (static_cast<std::uint32_t>(x) & 0xFFFF);
    window.listener.handleMessage(message, 0, static_cast<std::int32_t>(position));
}

CFakeNativeWindow &CEditorFixture::nativeOf(const Tessitor::GUI::Windowing::CWindow &window) {
    return *static_cast<CFakeNativeWindow *>(window.getWindowHandle()->native);
}

void CEditorFixture::click(int x, int y) const {
    send(NativeLeftDown, x, y);
    send(NativeLeftUp, x, y);
}

void CEditorFixture::click(const IControl &control) const {
    const CRect &area = control.getAbsoluteRect();
    click(area.getCentreX(), area.getCentreY());
}

void CEditorFixture::choose(int item, int numberOfItems) {
    CFakeNativeWindow &menu = *fakeNatives().windows.back();
    const int height = menu.options.bounds.bottom - menu.options.bounds.top;
    const int y = (2 * item + 1) * height / (2 * numberOfItems);
    for (const unsigned message : {NativeMouseMove, NativeLeftDown, NativeLeftUp})
        send(menu, message, 10, y);
}

void CEditorFixture::insert(int slot, int module) const {
    click(Insert, slot);
    chooseModule(module);
}

void CEditorFixture::replace(int slot, int module) const {
    click(Replace, slot);
    chooseModule(module);
}

// What the editor consists of

std::vector<CEditorFixture::CControl *> CEditorFixture::controlsOf(const IControlRoot &controls) {
    std::vector<CControl *> found;
    for (int i = 0; i < controls.getNumberOfControls(); ++i)
        if (auto *control = dynamic_cast<CControl *>(controls.getControlAtIndex(i, true)))
            found.push_back(control);
    return found;
}

// Labels have the id 0, and hot spots those of parameters.
CEditorFixture::CControl *CEditorFixture::findControl(const IControlRoot &controls, int id) {
    for (CControl *control : controlsOf(controls)) {
        if (const auto *inner = dynamic_cast<CControlPanel *>(control))
            control = findControl(*inner, id);
        else if (dynamic_cast<CTextLabel *>(control) != nullptr || control->getUniqueId() != id)
            control = nullptr;
        if (control != nullptr)
            return control;
    }
    return nullptr;
}

CEditorFixture::CControl &CEditorFixture::control(int id) const {
    CControl *found = findControl(root(), id);
    if (found == nullptr)
        throw std::out_of_range("no control for parameter " + std::to_string(id));
    return *found;
}

CEditorFixture::CControlPanel &CEditorFixture::panel(int module) const {
    return dynamic_cast<CControlPanel &>(*root().getControlAtIndex(module - 2, true));
}

// The value label comes right before the control.
CEditorFixture::CTextLabel &CEditorFixture::valueLabel(int id) const {
    CControl &shown = control(id);
    const IControlRoot &siblings = *shown.getControlRoot();
    return dynamic_cast<CTextLabel &>(
        *siblings.getControlAtIndex(siblings.getControlIndex(&shown) - 1, true));
}

std::string CEditorFixture::valueText(int id) const {
    return valueLabel(id).getText().getString();
}

std::string CEditorFixture::expectedText(int id) const {
    char display[64] = {}, unit[64] = {};
    effect->getParameterDisplay(id, display);
    effect->getParameterLabel(id, unit);
    return std::string(display) + unit;
}

CEditorFixture::CTextLabel &CEditorFixture::slotName(int slot) const {
    for (CControl *control : controlsOf(root()))
        if (control->getArea().getTop() == 80 && control->getArea().getLeft() == 17 + 120 * slot)
            return dynamic_cast<CTextLabel &>(*control);
    throw std::out_of_range("no name of slot " + std::to_string(slot));
}

std::vector<std::string> CEditorFixture::slotNames() const {
    std::vector<std::string> names;
    for (int slot = 0; slot < 6; ++slot)
        names.emplace_back(slotName(slot).getText().getString());
    return names;
}

std::vector<int> CEditorFixture::shownPanels() const {
    std::vector<int> shown;
    for (int slot = 0; slot < 6; ++slot)
        for (int module = 2; module < 18; ++module)
            if (panel(module).getArea().getLeft() == 17 + 120 * slot)
                shown.push_back(module);
    return shown;
}

// The chain

std::vector<int> CEditorFixture::chain() const {
    std::vector<int> modules;
    for (int slot = strip().orderEntry(1).next; slot != -1 && modules.size() < 18;
         slot = strip().orderEntry(slot).next)
        modules.push_back(slot);
    return modules;
}

std::pair<int, int> CEditorFixture::links(int module) const {
    return {strip().orderEntry(module).prev, strip().orderEntry(module).next};
}

void CEditorFixture::setChain(const std::vector<int> &modules) const {
    strip().initOrder();
    for (const int module : modules)
        strip().appendFX(module);
    editor->refreshChainDisplay();
}
