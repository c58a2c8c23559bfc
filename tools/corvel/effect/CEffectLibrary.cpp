#include "corvel/effect/CEffectLibrary.h"

#include "corvel/audio/IsLibraryCutShort.h"
#include "corvel/console/Errors.h"
#include "corvel/effect/EffectPlaces.h"
#include "platform/NativeLibrary.h"
#include "platform/NativeModule.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

// The path is made absolute: the loader would look for a bare file name in the system's folders.
void *openLibrary(const fs::path &file) {
    if (!fs::exists(file))
        throw CJobError(file.string() + ": no such file");
    if (!fs::is_regular_file(file))
        throw CJobError(file.string() + ": not a file");
    if (isLibraryCutShort(file))
        throw CJobError(file.string() + ": truncated, it cannot be loaded as an effect");
    std::string reason;
    const std::string place = fs::absolute(file).string();
    void *library = openNativeLibrary(place, reason);
    if (reason.starts_with(place + ": "))
        reason.erase(0, place.size() + 2);
    if (library == nullptr)
        throw CJobError(file.string() + ": cannot be loaded as an effect (" + reason + ")");
    return library;
}

std::string environment(const char *name) {
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

CEffectLibrary::CEffectLibrary(const fs::path &file) : m_file(file), m_handle(openLibrary(file)) {
    // The second name is the older one. Debian's own effects export only that.
    for (const char *name : {"VSTPluginMain", "main"}) {
        void *symbol = nativeSymbol(m_handle, name);
        if (symbol == nullptr)
            continue;
        m_entryNames.emplace_back(name);
        if (m_entry == nullptr)
            m_entry = reinterpret_cast<Entry>(symbol);
    }
    if (m_entry == nullptr) {
        closeNativeLibrary(m_handle);
        throw CJobError(m_file.string() + ": not a VST 2 effect (exports no VSTPluginMain)");
    }
}

CEffectLibrary::~CEffectLibrary() {
    closeNativeLibrary(m_handle);
}

fs::path CEffectLibrary::choose(const std::optional<std::string> &named) {
    if (named)
        return *named;
    const fs::path folder = fs::path(nativeModulePath(nullptr)).parent_path();
    std::string searched;
    for (const fs::path &place :
         effectPlaces(folder, environment("VST_PATH"), environment("HOME"))) {
        if (fs::exists(place))
            return place;
        searched.append(searched.empty() ? "" : ", ").append(place.parent_path().string());
    }
    throw CJobError("Corvel.so was not found in any of these folders: " + searched +
                    " (name the file with --plugin, or add its folder to VST_PATH)");
}

}  // namespace Tessitor::Tool
