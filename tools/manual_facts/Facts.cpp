#include "manual_facts/Facts.h"

#include "dspclasses/parameters/ParameterTable.h"
#include "dspclasses/strip/CDSPMultiFX.h"
#include "editor/ModulePanels.h"
#include "effect/FactoryPrograms.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

using Json = nlohmann::ordered_json;
using Tessitor::Corvel::SModulePanel;
using Tessitor::Corvel::SProgram;
namespace Panels = Tessitor::Corvel::PanelDescriptions;

namespace {

struct SSlotPanel {
    ESlot slot;
    const SModulePanel &panel;
};

const SSlotPanel panels[] = {
    {kBalanceSlot, Panels::balance},
    {kPanSlot, Panels::pan},
    {kGainSlot, Panels::gain},
    {k3BandSlot, Panels::equaliser},
    {kRumbleFilterSlot, Panels::rumble},
    {kHiPassSlot, Panels::hiPass},
    {kPresenceSlot, Panels::presence},
    {kParametricSlot, Panels::parametric},
    {kGateSlot, Panels::gate},
    {kCompressorSlot, Panels::compressor},
    {kDeEsserSlot, Panels::deEsser},
    {kModulator1Slot, Panels::modulator},
    {kModulator2Slot, Panels::modulator},
    {kWarmerSlot, Panels::warmer},
    {kDelaySlot, Panels::delay},
    {kReverbSlot, Panels::reverb},
};

const SParameter &parameter(int id) {
    return parameterTable[static_cast<std::size_t>(id)];
}

std::vector<int> parametersOf(int slot) {
    std::vector<int> ids;
    for (int id = 0; id < kParameterCount; ++id)
        if (parameter(id).slot == slot)
            ids.push_back(id);
    return ids;
}

std::string labelOf(int id) {
    for (const auto &[slot, panel] : panels)
        if (slot == parameter(id).slot)
            return panel.controls[static_cast<std::size_t>(id - parametersOf(slot).front())].name;
    return {};
}

std::string display(CDSPMultiFX &strip, int id, float value) {
    // The strip ignores a value that equals the last one, or at first a module's initial value, so
    // another value goes first.
    strip.setStripParameter(id, value == 0.37f ? 0.38f : 0.37f);
    strip.setStripParameter(id, value);
    std::array<char, 64> text{};
    strip.getParameterDisplay(id, text.data());
    return text.data();
}

std::vector<std::string> choicesOf(CDSPMultiFX &strip, int id) {
    constexpr int steps = 100;
    constexpr std::size_t mostChoices = 4;
    std::vector<std::string> texts;
    for (int step = 0; step <= steps; ++step) {
        std::string text = display(strip, id, static_cast<float>(step) / steps);
        if (std::ranges::find(texts, text) == texts.end())
            texts.push_back(std::move(text));
    }
    return texts.size() <= mostChoices ? texts : std::vector<std::string>{};
}

Json parameterFacts(CDSPMultiFX &strip, int id) {
    return {{"id", id},
            {"name", parameter(id).name},
            {"label", labelOf(id)},
            {"unit", parameter(id).unit},
            {"low", display(strip, id, 0.0f)},
            {"middle", display(strip, id, 0.5f)},
            {"high", display(strip, id, 1.0f)},
            {"choices", choicesOf(strip, id)}};
}

Json programFacts(CDSPMultiFX &strip, const SProgram &program) {
    Json chain = Json::array(), values = Json::array();
    for (int slot = program.order[kInMonoSlot].next; slot != kNoSlot;
         slot = program.order[static_cast<std::size_t>(slot)].next)
        chain.push_back(slotLabels[static_cast<std::size_t>(slot)]);
    for (int id = 0; id <= kOutMono; ++id)
        values.push_back(display(strip, id, program.parameters[static_cast<std::size_t>(id)]));
    return {{"name", program.name.data()}, {"chain", chain}, {"values", values}};
}

}  // namespace

Json manualFacts() {
    CDSPMultiFX strip;
    Json parameters = Json::array(), modules = Json::array(), programs = Json::array();
    for (int id = 0; id <= kOutMono; ++id)
        parameters.push_back(parameterFacts(strip, id));
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot)
        modules.push_back({{"name", slotLabels[static_cast<std::size_t>(slot)]},
                           {"parameters", parametersOf(slot)}});
    for (const SProgram &program : Tessitor::Corvel::factoryPrograms)
        programs.push_back(programFacts(strip, program));
    return {{"parameters", parameters}, {"modules", modules}, {"programs", programs}};
}
