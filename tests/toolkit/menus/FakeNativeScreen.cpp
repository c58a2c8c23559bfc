#include "FakeNativeScreen.h"

#include "platform/NativeScreen.h"

SNativeRect &fakeNativeScreen() {
    static SNativeRect screen;
    return screen;
}

SNativeRect nativeVirtualScreen() {
    return fakeNativeScreen();
}
