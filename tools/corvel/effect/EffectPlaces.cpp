#include "corvel/effect/EffectPlaces.h"

#include <algorithm>
#include <sstream>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

std::vector<fs::path> hostFolders(const std::string &vstPath, const std::string &home) {
    std::vector<fs::path> folders;
    std::istringstream names(vstPath);
    for (std::string name; std::getline(names, name, ':');)
        if (!name.empty())
            folders.emplace_back(name);
    if (!folders.empty())
        return folders;
    if (!home.empty())
        folders.push_back(fs::path(home) / ".vst");
    folders.insert(folders.end(), {"/usr/local/lib/vst", "/usr/lib/vst"});
    return folders;
}

}  // namespace

std::vector<fs::path> effectPlaces(const fs::path &programFolder, const std::string &vstPath,
                                   const std::string &home) {
    std::vector<fs::path> folders = {programFolder / "../plugin", programFolder,
                                     programFolder / CORVEL_INSTALLED_EFFECT_FOLDER};
    std::ranges::copy(hostFolders(vstPath, home), std::back_inserter(folders));
    std::vector<fs::path> places;
    for (const fs::path &folder : folders) {
        const fs::path place = fs::absolute(folder / "Corvel.so").lexically_normal();
        if (std::ranges::find(places, place) == places.end())
            places.push_back(place);
    }
    return places;
}

}  // namespace Tessitor::Tool
