#include "effect/CLibrarySession.h"

#include "foundation/CApplicationInformation.h"
#include "foundation/CClass.h"
#include "platform/NativeModule.h"

using Tessitor::Basics::CApplicationInformation;
using Tessitor::Basics::CClass;

namespace Tessitor::Corvel {

CLibrarySession::CLibrarySession() {
    CApplicationInformation::setApplicationInformation(
        "Lumatic", "Corvel", "Vocal VST plugin", "1.0.0", "Software\\Lumatic\\Corvel",
        "Copyright (c) 2026 Lumatic", nativeModuleHandle());
}

CLibrarySession::~CLibrarySession() {
    CApplicationInformation::destroyApplicationInformation();
    CClass::destroyClassManager(nullptr);
}

}  // namespace Tessitor::Corvel
