#pragma once

#include "corvel/presets/Preset.h"

#include <nlohmann/json.hpp>

namespace Tessitor::Tool {

// The parts of a program's JSON that are not parameters. The first of each pair adds its entries to
// a program's object; the second reads them.

/// "chain", and "links" if needed.
void addChain(nlohmann::ordered_json &json, const Corvel::SProgram &program);
/// @throws CPresetError if there is no such module, it appears twice, or the links contradict the
///         chain.
void readChain(const nlohmann::ordered_json &json, Corvel::SProgram &program);

/// "name", and "encoding" and "nameRecord" if needed.
void addName(nlohmann::ordered_json &json, const Corvel::SProgram &program);
/// @throws CPresetError if the name is too long or cannot be stored.
void readName(const nlohmann::ordered_json &json, Corvel::SProgram &program);

}  // namespace Tessitor::Tool
