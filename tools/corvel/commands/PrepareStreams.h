#pragma once

#include "corvel/batch/Jobs.h"

namespace Tessitor::Tool {

/// Prepares standard input and output if the files name them. What the program and the effect print
/// goes to standard error if standard output takes the sound, so call this before the effect is
/// loaded.
/// @throws CCallError if they are terminals, or the options do not fit.
void prepareStreams(const SFileRequest &files, const SRenderOptions &options);

}  // namespace Tessitor::Tool
