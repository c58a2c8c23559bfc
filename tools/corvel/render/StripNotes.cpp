#include "corvel/render/StripNotes.h"

#include "corvel/settings/Chain.h"
#include "dspclasses/parameters/ParameterIds.h"

#include <algorithm>

namespace Tessitor::Tool {

std::vector<std::string> notesOnStrip(CEffectInstance &effect, const SRenderOptions &options) {
    if (!hasChain(effect))
        return {};
    const Chain chain = chainOf(effect);
    const auto runs = [&](int slot) {
        return std::find(chain.begin(), chain.end(), slot) != chain.end();
    };
    std::vector<std::string> notes;
    if (options.doublePrecision && (runs(kCompressorSlot) || runs(kDeEsserSlot))) {
        notes.emplace_back(
            "note: --double: in double precision the compressor and the de-esser stay at rest");
    }
    constexpr float linked = 0.5f;
    if (options.blockSize != SRenderOptions().blockSize && runs(kCompressorSlot) &&
        effect.parameter(kCmpLink) < linked)
        notes.emplace_back("note: --block: the length of the blocks changes the sound, since the "
                           "compressor is set to separate");
    return notes;
}

}  // namespace Tessitor::Tool
