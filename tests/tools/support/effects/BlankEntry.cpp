#include "hostlayer/VstInterface.h"

// A record without its magic number: a host must not call its functions, not even to close it.
extern "C" [[gnu::visibility("default")]] AEffect *VSTPluginMain(audioMasterCallback /*host*/) {
    static AEffect blank{};
    return &blank;
}
