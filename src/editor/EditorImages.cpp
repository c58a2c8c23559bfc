#include "editor/EditorImages.h"

#include "foundation/CApplicationInformation.h"
#include "foundation/TAutomaticPointer.h"
#include "platform/NativeFile.h"
#include "platform/PictureFile.h"
#include "toolkit/graphics/CPNGImage.h"

#include <array>
#include <memory>
#include <mutex>
#include <string_view>
#include <utility>

namespace Tessitor::Corvel {

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

/// A picture that knows its file and its size before it is loaded.
class CEditorImage : public GUI::Graphics::CPNGImage {
public:
    explicit CEditorImage(const CSystemString &path) {
        setFilename(path);
        if (const auto size = pngSize(path.getString()))
            setSize(size->width, size->height);
    }
};

/// Holds a reference to an image.
class CImageHolder : public Collections::TAutomaticPointer<IImage> {
public:
    CImageHolder()
        : TAutomaticPointer(Collections::TCountedObjectDeleter<IImage>::getStaticDeleter()) {}
};

struct SImages {
    std::array<CImageHolder, kImageSlotCount> slots;
    bool areLoaded = false;
};
std::unique_ptr<SImages> images;
std::mutex mutex;

/// @return the first slot that has the same file; it may be this one.
std::size_t firstSlotOf(std::size_t slot) {
    std::size_t first = 0;
    while (std::string_view(fileNames[first]) != fileNames[slot])
        ++first;
    return first;
}

/// @return null if there is no such file.
IImage *findImage(const char *fileName) {
    CSystemString path = resourceFolder();
    path.appendPath(fileName);
    return isNativeRegularFile(path.getString()) ? new CEditorImage(path) : nullptr;
}

}  // namespace

CSystemString resourceFolder() {
    CSystemString folder(CApplicationInformation::getApplicationPath());
    folder.appendPath("Corvel");
    folder.appendPath("Resources");
    return folder;
}

void findEditorImages() {
    const std::lock_guard lock(mutex);
    if (images != nullptr)
        return;
    auto found = std::make_unique<SImages>();
    for (std::size_t slot = 0; slot < fileNames.size(); ++slot) {
        const std::size_t first = firstSlotOf(slot);
        found->slots[slot].setPointer(first < slot ? found->slots[first].getPointer()
                                                   : findImage(fileNames[slot]));
    }
    images = std::move(found);
}

void loadEditorImages() {
    const std::lock_guard lock(mutex);
    if (images == nullptr || std::exchange(images->areLoaded, true))
        return;
    for (std::size_t slot = 0; slot < fileNames.size(); ++slot) {
        IImage *image = images->slots[slot].getPointer();
        if (image != nullptr && firstSlotOf(slot) == slot)
            image->loadFromFile(CSystemString(image->getFilename()));
    }
}

void releaseEditorImages() {
    images.reset();
}

IImage *editorImage(EImageSlot slot) {
    return images != nullptr ? images->slots[std::size_t(slot)].getPointer() : nullptr;
}

}  // namespace Tessitor::Corvel
