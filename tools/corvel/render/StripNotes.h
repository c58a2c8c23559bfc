#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "corvel/render/Render.h"

#include <string>
#include <vector>

namespace Tessitor::Tool {

/// @param effect  with the settings of the render.
/// @return notes for the user on options that do not do to the channel strip what one would expect,
///         one line each; none for other effects.
std::vector<std::string> notesOnStrip(CEffectInstance &effect, const SRenderOptions &options);

}  // namespace Tessitor::Tool
