#include "editor/TModulePanel.h"

#include "toolkit/controls/CLatchingButton.h"
#include "toolkit/graphics/StaticColours.h"

namespace Tessitor::Corvel {

using GUI::Controls::CControlPanel;
using GUI::Controls::IControl;
namespace StaticColours = GUI::Basics::StaticColours;

namespace {

IControl *addControl(CControlPanel &panel, const SPanelControl &description, long id,
                     std::int32_t x, std::int32_t y, GUI::Listeners::IActionListener *listener) {
    if (description.kind == EPanelControl::Button)
        return addButton<GUI::Controls::CLatchingButton>(panel, id, x, y, kButtonUpImage,
                                                         kButtonDownImage, listener);
    return addKnob(panel, id, x, y, description.image, description.kind == EPanelControl::Knob,
                   listener);
}

}  // namespace

void addPanelControls(CControlPanel &panel, std::span<const SPanelControl> controls, long firstId,
                      GUI::Listeners::IActionListener *listener, CControlTable &table) {
    long id = firstId;
    for (const SPanelControl &description : controls) {
        const bool isCentred = description.column == SPanelControl::centred;
        const std::int32_t x = isCentred ? 32 : description.column * 48 + 8;
        const std::int32_t top = description.row * 52;
        addLabel(panel, x, top + 8, description.name, StaticColours::alphaGreen,
                 StaticColours::alphaWhite);
        SParameterControls parameter;
        parameter.valueLabel = addLabel(panel, x, top + 43, description.caption,
                                        StaticColours::alphaBlue, StaticColours::alphaLightGrey);
        parameter.control = addControl(panel, description, id, x, top + 20, listener);
        table.record(id++, parameter);
    }
}

}  // namespace Tessitor::Corvel
