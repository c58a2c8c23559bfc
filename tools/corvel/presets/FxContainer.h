#pragma once

#include "corvel/presets/Preset.h"

#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// Reads the published preset container (.fxp for a program, .fxb for a bank) with the effect's
/// chunk in it. All fields are big-endian; the chunk is not looked into.
///
///     "CcnK"  size after this field  "FPCh"  1       id  version  parameters  name[28]
///                                    "FBCh"  1 or 2  id  version  programs    current
///                                    reserved[124]
///     both: bytes of the chunk, the chunk
///
/// @throws CPresetError if the bytes are not exactly one such file of this effect, or requireSound
///         finds a fault.
SPreset presetFromFx(std::string_view bytes);

std::string fxFromPreset(const SPreset &preset);

/// @return true if the bytes start like such a container.
bool isFx(std::string_view bytes);

}  // namespace Tessitor::Tool
