#pragma once

#include "Fuzz.h"
#include "PictureBytes.h"
#include "toolkit/graphics/CImageManager.h"

/// Starts the image manager for one input, with "one.tga" and "two.png" in its root path.
class CImageSession {
public:
    CImageSession() {
        static const CTemporaryFolder folder;
        static const bool isFilled = [] {
            writeBytes((folder / "one.tga").string(),
                       std::string("\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\x20\x8"
                                   "abcd",
                                   22));
            writeBytes((folder / "two.png").string(), SPng().bytes());
            return true;
        }();
        static_cast<void>(isFilled);
        Manager::start();
        Manager::setRootPath(folder.path().string().c_str());
    }
    CImageSession(const CImageSession &) = delete;
    CImageSession &operator=(const CImageSession &) = delete;
    ~CImageSession() { Manager::end(); }

    /// Looks up every image and animation.
    static void look() {
        Manager::NameList names;
        Manager::getImageReferenceNames(names);
        const int images = names.getInsertIndex();
        Manager::getAnimationReferenceNames(names);
        for (int i = 0; i < names.getInsertIndex(); ++i) {
            const auto &name = *names.elementAtIndex(i);
            std::int32_t height = 0, number = 0;
            const auto *image =
                i < images ? Manager::getImage(name) : Manager::getAnimation(name, height, number);
            require(image != nullptr, "every name has an image");
            require(image->getReferenceCount() == 1, "an image belongs to its reference");
            require(Manager::getReferenceName(image) == name, "every image has its name");
        }
    }

private:
    using Manager = Tessitor::GUI::Graphics::CImageManager;
};
