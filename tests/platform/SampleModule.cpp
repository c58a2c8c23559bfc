#include "platform/NativeModule.h"

// A library that tests load.

/// @param path  receives the path of this library, without a terminator. @return its length.
extern "C" [[gnu::visibility("default")]] std::size_t sampleModulePath(char *path,
                                                                       std::size_t size) {
    return nativeModulePath(nativeModuleHandle()).copy(path, size);
}

extern "C" [[gnu::visibility("default")]] void *sampleModuleHandle() {
    return nativeModuleHandle();
}

/// @return the number of calls since the library was loaded, this one included.
extern "C" [[gnu::visibility("default")]] int sampleCalls() {
    static int calls = 0;
    return ++calls;
}
