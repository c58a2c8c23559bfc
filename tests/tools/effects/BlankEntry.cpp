#include "hostlayer/VstInterface.h"

// A record without its magic number: nothing in it can be called, not even to close it.
extern "C" [[gnu::visibility("default")]] AEffect *VSTPluginMain(audioMasterCallback /*host*/) {
    static AEffect blank{};
    return &blank;
}
