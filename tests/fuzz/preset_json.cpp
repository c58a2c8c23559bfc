// The input: a preset in its text form. What is accepted must be safe for the effect, and stay the
// same when it is written again.
#include "Fuzz.h"
#include "Presets.h"

using namespace Tessitor::Tool;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    SPreset preset;
    try {
        preset = presetText().presetFrom({reinterpret_cast<const char *>(data), size});
    } catch (const CPresetError &error) {
        requireOneLine(error);
        return 0;
    }
    requireSafe(preset);
    requireSameThroughText(preset);
    return 0;
}
