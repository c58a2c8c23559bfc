#pragma once

#include "corvel/CEffectInstance.h"
#include "effect/SProgram.h"

#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// The user's modules of a channel strip in running order, by slot.
using Chain = std::vector<int>;

/// @param labels  as the editor shows them, in any capitals, with commas between; empty or "none"
///                for the empty chain.
/// @throws CCallError if there is no such module or it stands there twice.
Chain chainFromText(std::string_view labels);

/// @return the label that the editor shows for a slot of 2 to 17.
std::string_view moduleLabel(int slot);

/// Between the fixed head and the end of a program's running order. A list that does not end is cut
/// where it comes back to itself.
Chain chainOf(const Corvel::SProgram &program);
void setChain(Corvel::SProgram &program, const Chain &chain);

/// @return true if the effect is the channel strip, which alone has a chain.
bool hasChain(const CEffectInstance &effect);

/// The chain of the present program, through its chunk.
/// @throws CJobError if the chunk is not that of a channel strip.
Chain chainOf(CEffectInstance &effect);
void setChain(CEffectInstance &effect, const Chain &chain);

}  // namespace Tessitor::Tool
