#pragma once

#include "corvel/presets/Preset.h"

/// @return the twenty programs of a new instance of the effect.
std::vector<Tessitor::Corvel::SProgram> factoryPrograms();

/// @return a program as a host could store it: values on round numbers and between them, a chain
///         after any number of edits, a name in any encoding over an older one. The same seed gives
///         the same program.
Tessitor::Corvel::SProgram randomProgram(unsigned seed);

/// @return a bank of twenty random programs.
Tessitor::Tool::SPreset randomBank(unsigned seed);

/// @return the bytes of the records, for comparisons that tell -0 from 0.
std::string bytesOf(const Tessitor::Tool::SPreset &preset);
