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

/// Fills the slots unless they are filled. A missing file leaves its slots empty. The pictures
/// belong to the process; their sizes are known from now on. [any thread]
void findEditorImages();
/// Loads the pictures, unless they are loaded: this takes longer than all else that an effect does
/// when it is created, and only an open editor needs them. [any thread]
void loadEditorImages();
/// For the end, when no editor is left.
void releaseEditorImages();
/// @return null for an empty slot.
GUI::Graphics::IImage *editorImage(EImageSlot slot);

}  // namespace Tessitor::Corvel
