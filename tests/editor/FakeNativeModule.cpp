#include "FakeNativeModule.h"

#include "platform/NativeModule.h"

std::string &fakeNativeModulePath() {
    static std::string path;
    return path;
}

void *nativeModuleHandle() {
    return nullptr;
}

std::string nativeModulePath(void *) {
    return fakeNativeModulePath();
}
