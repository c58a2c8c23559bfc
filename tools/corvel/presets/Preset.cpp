#include "corvel/presets/Preset.h"

#include "corvel/console/Text.h"
#include "corvel/presets/Encoding.h"
#include "dspclasses/parameters/ParameterTable.h"

#include <algorithm>
#include <bitset>
#include <cmath>

namespace Tessitor::Tool {

namespace {

using Corvel::SChainLink;
using Corvel::SProgram;

void requireValues(const SProgram &program) {
    for (int id = 0; id < kParameterCount; ++id) {
        const float value = program.parameters[static_cast<std::size_t>(id)];
        if (std::isnan(value))
            throw CPresetError("parameter " + parameterName(id) + " is not a number");
        if (value < 0.0f || value > 1.0f)
            throw CPresetError("parameter " + parameterName(id) + " is " + shortest(value) +
                               ", outside 0 to 1");
    }
}

void requireSlots(const SProgram &program) {
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const SChainLink &link = program.order[static_cast<std::size_t>(slot)];
        for (const std::int32_t other : {link.prev, link.next}) {
            if (other < kNoSlot || other >= kSlotCount) {
                throw CPresetError("the chain links " +
                                   std::string(slotLabels[static_cast<std::size_t>(slot)]) +
                                   " to slot " + std::to_string(other) + "; there are slots 0 to " +
                                   std::to_string(kSlotCount - 1));
            }
        }
    }
}

void requireChain(const SProgram &program) {
    if (program.order[kInGainSlot].next != kInMonoSlot)
        throw CPresetError("the chain does not begin with InGain and MonoType");
    std::bitset<kSlotCount> seen;
    for (int slot = kInGainSlot; slot != kNoSlot;) {
        const auto place = static_cast<std::size_t>(slot);
        if (seen[place])
            throw CPresetError("the chain runs in a circle through " +
                               std::string(slotLabels[place]));
        seen[place] = true;
        slot = program.order[place].next;
    }
}

void requireName(const SProgram &program) {
    if (std::find(program.name.begin(), program.name.end(), '\0') == program.name.end())
        throw CPresetError("the program's name is longer than 23 bytes");
}

void requireSound(const SProgram &program) {
    requireValues(program);
    requireSlots(program);
    requireChain(program);
    requireName(program);
}

}  // namespace

void requireSound(const SPreset &preset) {
    for (std::size_t number = 0; number < preset.programs.size(); ++number) {
        try {
            requireSound(preset.programs[number]);
        } catch (const CPresetError &error) {
            if (!preset.isBank())
                throw;
            throw CPresetError("program " + std::to_string(number) + ": " + error.what());
        }
    }
}

std::string nameOf(const SProgram &program) {
    const auto end = std::find(program.name.begin(), program.name.end(), '\0');
    const std::string bytes(program.name.begin(), end);
    return isUtf8(bytes) ? bytes : utf8FromLatin1(bytes);
}

std::string parameterName(int id) {
    const char *name = parameterTable[static_cast<std::size_t>(id)].name;
    return *name != '\0' ? name : "Unused" + std::to_string(id);
}

}  // namespace Tessitor::Tool
