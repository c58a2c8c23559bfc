#include "platform/NativeLibrary.h"

#include <dlfcn.h>

void *openNativeLibrary(const std::string &path, std::string &reason) {
    // dlopen() searches only the library path for a bare name.
    const std::string file = path.find('/') == std::string::npos ? "./" + path : path;
    void *library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        reason = dlerror();
    return library;
}

void *nativeSymbol(void *library, const char *name) {
    return dlsym(library, name);
}

void closeNativeLibrary(void *library) {
    if (library != nullptr)
        dlclose(library);
}
