#pragma once

#include "effect/SProgram.h"

namespace Tessitor::Corvel {

/// The programs that a new effect comes with, complete records.
extern const std::array<SProgram, programCount> factoryPrograms;

}  // namespace Tessitor::Corvel
