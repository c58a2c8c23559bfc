#include "platform/NativeLibrary.h"

#include <dlfcn.h>

void *openNativeLibrary(const std::string &path, std::string &reason) {
    // dlopen() searches only the library path for a bare name.
    return openSystemLibrary(path.find('/') == std::string::npos ? "./" + path : path, reason);
}

void *openSystemLibrary(const std::string &name, std::string &reason) {
    void *library = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
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
