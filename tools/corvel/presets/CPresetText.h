#pragma once

#include "corvel/presets/CUnitText.h"
#include "corvel/presets/Preset.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// Presets as JSON text that people can read and edit. [one thread at a time]
///
///     {"format": "Corvel program", "version": 1, "name": "Lead Vocal",
///      "chain": ["Rumble Filter", "Compressor"],
///      "parameters": {"InGain": "0.00 dB", ..., "OutMono": "Stereo"}}
///
/// A value whose unit cannot express it exactly is {"shown": "Vibrato", "normalised": 0.3}. Three
/// more entries are there only if a record holds more than that:
///
///     "links"       links that the chain does not explain, such as {"3Band": ["Gate", "none"]}:
///                   a slot's previous and next one
///     "nameRecord"  the 24 bytes of the name, in hex, if there are others than 0 after its end
///     "encoding"    "latin1" if the name is stored in Latin-1 instead of UTF-8
///
/// A bank is {"format": "Corvel bank", "version": 1, "current": 0, "programs": [...]} with programs
/// that have no format and version of their own.
class CPresetText {
public:
    CPresetText();
    ~CPresetText();
    CPresetText(const CPresetText &) = delete;
    CPresetText &operator=(const CPresetText &) = delete;

    /// @param preset  must be sound. Reading the text gives exactly the same bytes again.
    std::string textFrom(const SPreset &preset) const;

    /// @throws CPresetError with the place and the reason if the text is not such JSON, or
    ///         requireSound finds a fault.
    SPreset presetFrom(std::string_view text) const;

private:
    using Json = nlohmann::ordered_json;

    Json jsonFrom(const Corvel::SProgram &program) const;
    Json valueJson(int id, float value) const;
    SPreset bankFrom(const Json &json) const;
    Corvel::SProgram programFrom(const Json &json) const;
    std::string displayOf(int id, float value) const;
    float valueFrom(int id, const Json &json) const;

    std::vector<std::unique_ptr<CUnitText>> m_units;  // by parameter id
};

}  // namespace Tessitor::Tool
