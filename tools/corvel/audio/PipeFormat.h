#pragma once

#include "corvel/audio/OutputFormat.h"
#include "corvel/audio/SRawFormat.h"

#include <optional>

namespace Tessitor::Tool {

/// @param raw  the argument of --raw.
/// @return the format to write to standard output: the requested one, otherwise that of --raw,
///         otherwise WAV.
int pipeFormat(int inputFormat, const SFormatRequest &request,
               const std::optional<SRawFormat> &raw);

}  // namespace Tessitor::Tool
