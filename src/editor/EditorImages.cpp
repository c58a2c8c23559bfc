#include "editor/EditorImages.h"

#include "foundation/CApplicationInformation.h"
#include "foundation/TAutomaticPointer.h"
#include "toolkit/graphics/CImageManager.h"

#include <array>
#include <memory>
#include <mutex>
#include <string_view>

namespace Tessitor::Corvel {

using GUI::Graphics::CImageManager;
using GUI::Graphics::IImage;
using Tessitor::Basics::CApplicationInformation;
using Tessitor::Basics::CSystemString;

namespace {

constexpr std::array<const char *, kImageSlotCount> fileNames = {
    "Background.png",
    "Balance.png",
    "Blue.png",
    "DelayType.png",
    "Blue.png",
    "Blue.png",
    "Green2Red_Centred.png",
    "Blue.png",
    "Modulation.png",
    "MonoStereoText.png",
    "Balance.png",
    "Blue.png",
    "Blue.png",
    "Red2Green_Reversed.png",
    "Red.png",
    "Blue.png",
    "ButtonUp.png",
    "ButtonDown.png",
    "Help.png",
};

/// Holds a reference to an image.
class CImageHolder : public Collections::TAutomaticPointer<IImage> {
public:
    CImageHolder()
        : TAutomaticPointer(Collections::TCountedObjectDeleter<IImage>::getStaticDeleter()) {}
};

using Images = std::array<CImageHolder, kImageSlotCount>;
std::unique_ptr<Images> images;

/// @return the first slot that has the same file; it may be this one.
std::size_t firstSlotOf(std::size_t slot) {
    std::size_t first = 0;
    while (std::string_view(fileNames[first]) != fileNames[slot])
        ++first;
    return first;
}

}  // namespace

CSystemString resourceFolder() {
    CSystemString folder(CApplicationInformation::getApplicationPath());
    folder.appendPath("Corvel");
    folder.appendPath("Resources");
    return folder;
}

void loadEditorImages() {
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    if (images != nullptr)
        return;
    auto loaded = std::make_unique<Images>();
    const CSystemString folder = resourceFolder();
    for (std::size_t slot = 0; slot < fileNames.size(); ++slot) {
        const std::size_t first = firstSlotOf(slot);
        (*loaded)[slot].setPointer(first < slot
                                       ? (*loaded)[first].getPointer()
                                       : CImageManager::getImageFromFile(folder, fileNames[slot]));
    }
    images = std::move(loaded);
}

void releaseEditorImages() {
    images.reset();
}

IImage *editorImage(EImageSlot slot) {
    return images != nullptr ? (*images)[std::size_t(slot)].getPointer() : nullptr;
}

}  // namespace Tessitor::Corvel
