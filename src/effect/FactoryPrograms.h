#pragma once

#include "effect/SProgram.h"

namespace Tessitor::Corvel {

/// The programs of a new effect, as complete records.
extern const std::array<SProgram, programCount> factoryPrograms;

}  // namespace Tessitor::Corvel
