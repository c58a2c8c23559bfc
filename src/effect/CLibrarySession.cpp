#include "effect/CLibrarySession.h"

#include "editor/EditorImages.h"
#include "foundation/CApplicationInformation.h"
#include "foundation/CClass.h"
#include "platform/NativeModule.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/graphics/CImageManager.h"

using Tessitor::Basics::CApplicationInformation;
using Tessitor::Basics::CClass;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::CImageManager;

namespace Tessitor::Corvel {

CLibrarySession::CLibrarySession() {
    CApplicationInformation::setApplicationInformation(
        "Lumatic", "Corvel", "Vocal VST plugin", "1.0.0", "Software\\Lumatic\\Corvel",
        "Copyright (c) 2026 Lumatic", nativeModuleHandle());
    CFont::createDefaultFont();
    CImageManager::start();
}

CLibrarySession::~CLibrarySession() {
    CApplicationInformation::destroyApplicationInformation();
    CClass::destroyClassManager(nullptr);
    releaseEditorImages();
    CImageManager::end();
    CFont::releaseDefaultFont();
}

}  // namespace Tessitor::Corvel
