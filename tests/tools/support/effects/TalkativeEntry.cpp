#include "tools/support/effects/TestEffect.h"

#include <cstdio>

// Prints to standard output, and leaves it in the buffer until the program ends.
extern "C" [[gnu::visibility("default")]] AEffect *VSTPluginMain(audioMasterCallback host) {
    std::puts("an effect speaks");
    return enterTestEffect(host);
}
