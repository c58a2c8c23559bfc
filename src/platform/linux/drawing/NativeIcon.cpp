#include "platform/NativeIcon.h"

#include "platform/INativeBitmap.h"

void *loadNativeIcon(int) {
    return nullptr;
}

void *loadNativeIcon(const std::string &path, int index) {
    return index == 0 ? decodeNativeBitmap(path).release() : nullptr;
}

void destroyNativeIcon(void *icon) {
    delete static_cast<INativeBitmap *>(icon);
}
