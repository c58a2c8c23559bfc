#include "tools/support/effects/TestEffect.h"

// The language reserves the name main for programs, but this is a library.
extern "C" [[gnu::visibility("default")]] AEffect *
oldEntry(audioMasterCallback host) __asm__("main");

AEffect *oldEntry(audioMasterCallback host) {
    return enterTestEffect(host);
}
