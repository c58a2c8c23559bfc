#include "platform/NativeModule.h"

#include <dlfcn.h>
#include <filesystem>
#include <link.h>

void *nativeModuleHandle() {
    static const char here = 0;
    Dl_info info;
    return dladdr(&here, &info) != 0 ? info.dli_fbase : nullptr;
}

std::string nativeModulePath(void *module) {
    // The loader records no name for the program, and the name of a library may be relative.
    std::string name = "/proc/self/exe";
    if (module != nullptr) {
        Dl_info info;
        void *entry = nullptr;
        if (dladdr1(module, &info, &entry, RTLD_DL_LINKMAP) == 0)
            return {};
        if (const char *loaded = static_cast<link_map *>(entry)->l_name; *loaded != '\0')
            name = loaded;
    }
    std::error_code failed;
    const std::filesystem::path path = std::filesystem::canonical(name, failed);
    return failed ? name : path.string();
}
