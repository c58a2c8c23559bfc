#include "corvel/settings/Chain.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <cstring>

namespace Tessitor::Tool {

namespace {

using Corvel::SProgram;

int slotFromLabel(std::string_view label) {
    std::string known;
    for (int slot = kFirstModuleSlot; slot <= kLastModuleSlot; ++slot) {
        if (equalInAnyCapitals(moduleLabel(slot), label))
            return slot;
        known += (known.empty() ? "" : ", ") + std::string(moduleLabel(slot));
    }
    throw CCallError("--chain: no module \"" + std::string(label) + "\"; the modules are " + known);
}

SProgram programOf(CEffectInstance &effect) {
    const std::span<const std::byte> chunk = effect.programChunk();
    SProgram program;
    if (chunk.size() != sizeof(program)) {
        throw CJobError(effect.fileName() + ": the effect's state has " +
                        std::to_string(chunk.size()) + " bytes, not " +
                        std::to_string(sizeof(program)));
    }
    std::memcpy(&program, chunk.data(), sizeof(program));
    return program;
}

}  // namespace

Chain chainFromText(std::string_view text) {
    Chain chain;
    if (trimmed(text).empty() || equalInAnyCapitals(trimmed(text), "none"))
        return chain;
    for (const std::string_view label : split(text, ',')) {
        const int slot = slotFromLabel(trimmed(label));
        if (std::find(chain.begin(), chain.end(), slot) != chain.end())
            throw CCallError("--chain: " + std::string(moduleLabel(slot)) +
                             " may appear only once");
        chain.push_back(slot);
    }
    return chain;
}

std::string_view moduleLabel(int slot) {
    return slotLabels[static_cast<std::size_t>(slot)];
}

Chain chainOf(const SProgram &program) {
    Chain chain;
    int slot = program.order[kInMonoSlot].next;
    while (slot >= kFirstModuleSlot && slot <= kLastModuleSlot &&
           std::find(chain.begin(), chain.end(), slot) == chain.end()) {
        chain.push_back(slot);
        slot = program.order[static_cast<std::size_t>(slot)].next;
    }
    return chain;
}

void setChain(SProgram &program, const Chain &chain) {
    program.order.fill({kNoSlot, kNoSlot});
    program.order[kInGainSlot].next = kInMonoSlot;
    program.order[kInMonoSlot].prev = kInGainSlot;
    int last = kInMonoSlot;
    for (const int slot : chain) {
        program.order[static_cast<std::size_t>(last)].next = slot;
        program.order[static_cast<std::size_t>(slot)].prev = last;
        last = slot;
    }
}

bool hasChain(const CEffectInstance &effect) {
    return effect.record().uniqueID == Corvel::uniqueId && effect.has(effFlagsProgramChunks);
}

Chain chainOf(CEffectInstance &effect) {
    return chainOf(programOf(effect));
}

void setChain(CEffectInstance &effect, const Chain &chain) {
    SProgram program = programOf(effect);
    setChain(program, chain);
    effect.setProgramChunk(std::as_bytes(std::span(&program, 1)));
}

}  // namespace Tessitor::Tool
