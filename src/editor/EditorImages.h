#pragma once

#include "toolkit/graphics/IImage.h"

namespace Tessitor::Corvel {

/// What the pictures of the editor are used for. Several uses may share a file.
enum EImageSlot : int {
    kBackgroundImage,
    kBalanceImage,
    kPlainImage,
    kDelayTypeImage,
    kSpareImage,
    kLevelImage,
    kCutAndBoostImage,
    kAmountImage,
    kModulationImage,
    kStereoModeImage,
    kPanImage,
    kWidthImage,
    kTimeImage,
    kThresholdImage,
    kWarningImage,
    kSpreadImage,
    kButtonUpImage,
    kButtonDownImage,
    kHelpImage
};
inline constexpr int kImageSlotCount = kHelpImage + 1;

/// The folder beside the module that holds the pictures and the help page.
Tessitor::Basics::CSystemString resourceFolder();

/// Loads the pictures unless they are loaded. A file that cannot be read leaves its slots empty.
/// The pictures belong to the process. [any thread]
void loadEditorImages();
/// For the end, when no editor is left.
void releaseEditorImages();
/// @return null for an empty slot.
GUI::Graphics::IImage *editorImage(EImageSlot slot);

}  // namespace Tessitor::Corvel
