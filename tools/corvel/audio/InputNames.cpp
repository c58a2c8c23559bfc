#include "corvel/audio/InputNames.h"

#include "corvel/console/Text.h"

#include <algorithm>
#include <iterator>

namespace Tessitor::Tool {

bool isNamedLikeAudio(const std::filesystem::path &file) {
    constexpr std::string_view endings[] = {".wav", ".wave", ".bwf",  ".rf64", ".w64", ".aiff",
                                            ".aif", ".aifc", ".caf",  ".au",   ".snd", ".flac",
                                            ".ogg", ".oga",  ".opus", ".mp3"};
    const std::string ending = file.extension().string();
    return std::any_of(std::begin(endings), std::end(endings),
                       [&](std::string_view known) { return equalInAnyCapitals(known, ending); });
}

}  // namespace Tessitor::Tool
