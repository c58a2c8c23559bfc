#include "foundation/CApplicationInformation.h"
#include "foundation/CClass.h"
#include "hostlayer/VstInterface.h"

extern "C" AEffect *VSTPluginMain(audioMasterCallback host);

/// The effect's entry point, in a library that can also write its class report.
extern "C" [[gnu::visibility("default")]] AEffect *openEffect(audioMasterCallback host) {
    return VSTPluginMain(host);
}

/// Does what unloading does, and writes a report.
extern "C" [[gnu::visibility("default")]] void endWithReport(const char *path) {
    Tessitor::Basics::CApplicationInformation::destroyApplicationInformation();
    Tessitor::Basics::CClass::destroyClassManager(path);
}
