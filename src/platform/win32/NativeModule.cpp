#include "platform/NativeModule.h"

#include <windows.h>

void *nativeModuleHandle() {
    static const char here = 0;
    HMODULE module = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       &here, &module);
    return module;
}

std::string nativeModulePath(void *module) {
    char path[1024] = {};
    GetModuleFileNameA(static_cast<HMODULE>(module), path, sizeof path);
    return path;
}
