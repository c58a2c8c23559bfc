#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "effect/SProgram.h"

#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// The modules that the user has put into the channel strip, by slot, in running order.
using Chain = std::vector<int>;

/// @param labels  module labels (Slots.h), in upper or lower case, separated by commas; empty or
///                "none" for the empty chain.
/// @throws CCallError if there is no such module, or it appears twice.
Chain chainFromText(std::string_view labels);

/// @param slot  2 to 17.
std::string_view moduleLabel(int slot);

/// The part of a program's running order after its fixed head. A cyclic list is cut where it would
/// repeat.
Chain chainOf(const Corvel::SProgram &program);
void setChain(Corvel::SProgram &program, const Chain &chain);

/// @return true if the effect is the channel strip, the only one with a chain.
bool hasChain(const CEffectInstance &effect);

/// The chain of the current program, read from or written to its chunk.
/// @throws CJobError if the chunk is not from a channel strip.
Chain chainOf(CEffectInstance &effect);
void setChain(CEffectInstance &effect, const Chain &chain);

}  // namespace Tessitor::Tool
