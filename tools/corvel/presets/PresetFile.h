#pragma once

#include "corvel/presets/Preset.h"

#include <filesystem>
#include <optional>

namespace Tessitor::Tool {

enum class EPresetFormat { fxp, fxb, json };

/// @return the format that the file's ending names, in upper or lower case.
/// @throws CCallError for any other ending.
EPresetFormat presetFormatOf(const std::filesystem::path &file);

/// A file and perhaps one program of it.
struct SPresetPlace {
    std::filesystem::path file;
    std::optional<std::size_t> program;
};

/// @param text  FILE or FILE:N. A file with that whole name comes first.
SPresetPlace presetPlaceFrom(const std::string &text);

/// Reads .fxp, .fxb and JSON. The contents tell which, not the ending.
/// @throws CJobError if the file cannot be read or requireSound finds a fault.
SPreset readPreset(const std::filesystem::path &file);

/// Reads a file and picks the program that the place names.
/// @return a single program, or a whole bank if the place names none.
/// @throws CJobError also if there is no such program.
SPreset readPreset(const SPresetPlace &place);

/// Reads one program. Of a bank, that is the program that the text names, or the current program if
/// it names none.
Corvel::SProgram readProgram(const std::string &text);

/// Finds early what would keep writePreset() from writing.
/// @throws CCallError if the ending is unknown, CJobError if the file exists and is not to be
///         replaced.
void requireWritable(const std::filesystem::path &file, bool replace);

/// Writes in the format of the ending. The file appears when it is complete.
/// @param replace  whether an existing file is replaced.
/// @throws CJobError if the file exists or cannot be written, or if the format cannot hold the
///         preset: .fxp holds one program, .fxb a bank.
void writePreset(const std::filesystem::path &file, const SPreset &preset, bool replace);

}  // namespace Tessitor::Tool
