#include "corvel/plot/PictureFile.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <fstream>

namespace Tessitor::Tool {

EPictureFormat pictureFormatOf(const std::filesystem::path &file) {
    const std::string ending = file.extension().string();
    if (equalInAnyCapitals(ending, ".svg"))
        return EPictureFormat::Svg;
    if (equalInAnyCapitals(ending, ".png"))
        return EPictureFormat::Png;
    throw CCallError(file.string() + ": pictures are written as .svg or .png");
}

ETheme usualTheme(EPictureFormat format) {
    return format == EPictureFormat::Svg ? ETheme::Viewer : ETheme::Light;
}

void writePicture(const std::filesystem::path &file, const std::string &bytes, EExisting existing) {
    CPendingFile pending(file, existing);
    std::ofstream stream(pending.path(), std::ios::binary);
    stream << bytes;
    stream.close();
    if (!stream)
        throw CJobError(file.string() + ": cannot be written");
    pending.commit();
}

}  // namespace Tessitor::Tool
