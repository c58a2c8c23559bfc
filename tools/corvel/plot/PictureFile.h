#pragma once

#include "corvel/files/CPendingFile.h"
#include "corvel/plot/Palette.h"

#include <filesystem>
#include <string>

namespace Tessitor::Tool {

enum class EPictureFormat { Svg, Png };

/// @return the format that the file's ending names, in upper or lower case.
/// @throws CCallError for any other ending.
EPictureFormat pictureFormatOf(const std::filesystem::path &file);

/// @return the theme of a picture for which none is asked for.
ETheme usualTheme(EPictureFormat format);

/// Writes a whole picture. The file appears when it is complete.
/// @throws CJobError if it cannot be written, or if it exists and is to be kept.
void writePicture(const std::filesystem::path &file, const std::string &bytes, EExisting existing);

}  // namespace Tessitor::Tool
