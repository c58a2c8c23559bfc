#include "tools/support/effects/TestEffect.h"

extern "C" [[gnu::visibility("default")]] AEffect *VSTPluginMain(audioMasterCallback host) {
    return enterTestEffect(host);
}
