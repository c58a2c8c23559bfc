#include "effect/CCorvel.h"
#include "effect/CLibrarySession.h"
#include "foundation/DisplayMessage.h"
#include "hostlayer/VstInterface.h"

/// The function that a host looks for. The linker also exports it under its older name, main.
/// @return null if the host reports version 0, or if the effect cannot be built. The user sees a
///         message in the second case.
///
/// Asks the host only for its version: Audacity 3.2.4 crashes on any other request before it knows
/// the effect.
extern "C" AEffect *VSTPluginMain(audioMasterCallback host) {
    try {
        // Not started while the library is loading: by now all class records exist, and the
        // loader's lock is not held. Ends when the library is unloaded.
        static const Tessitor::Corvel::CLibrarySession session;

        if (host(nullptr, audioMasterVersion, 0, 0, nullptr, 0.0f) == 0)
            return nullptr;
        return (new Tessitor::Corvel::CCorvel(host))->getAeffect();
    } catch (...) {
        Tessitor::displayMessage(
            "Caught exception in main function of Corvel. Cannot continue to load",
            "Exception occurred", true);
        return nullptr;
    }
}
