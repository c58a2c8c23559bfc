// The input: a preset file of the published container, .fxp or .fxb. What is accepted must be safe
// for the effect and come back unchanged.
#include "Fuzz.h"
#include "Presets.h"
#include "corvel/presets/FxContainer.h"

using namespace Tessitor::Tool;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    SPreset preset;
    try {
        preset = presetFromFx({reinterpret_cast<const char *>(data), size});
    } catch (const CPresetError &error) {
        requireOneLine(error);
        return 0;
    }
    requireSafe(preset);
    const SPreset again = presetFromFx(fxFromPreset(preset));
    require(bytesOf(again) == bytesOf(preset) && again.current == preset.current,
            "a preset comes back unchanged");
    requireSameThroughText(preset);
    return 0;
}
