#include "platform/NativeMessageBox.h"

#include <cstdio>

void showNativeMessage(const char *text, const char *caption, bool /*isError*/) {
    std::fprintf(stderr, "%s: %s\n", caption, text);
}
