#include "platform/NativeModule.h"

/// A library that says where it is, for NativeModuleTest. @return the length of its own path.
extern "C" [[gnu::visibility("default")]] std::size_t sampleModulePath(char *path,
                                                                       std::size_t size) {
    return nativeModulePath(nativeModuleHandle()).copy(path, size);
}
