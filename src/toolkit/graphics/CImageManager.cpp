#include "toolkit/graphics/CImageManager.h"

#include "foundation/FileExists.h"
#include "foundation/TAutomaticPointer.h"
#include "platform/NativeFile.h"
#include "toolkit/graphics/CJPEGImage.h"
#include "toolkit/graphics/CPNGImage.h"
#include "toolkit/graphics/CTGAImage.h"

#include <algorithm>

namespace Tessitor::GUI::Graphics {

using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;

Tessitor::Basics::TClassRecord<CImageManager::CImageReference>
    CImageManager::CImageReference::s_class("CImageReference", "CCountedObject");
Tessitor::Basics::TClassRecord<CImageManager::CAnimationReference>
    CImageManager::CAnimationReference::s_class("CAnimationReference", "CCountedObject");

std::unique_ptr<CImageManager::ImageList> CImageManager::s_images;
std::unique_ptr<CImageManager::AnimationList> CImageManager::s_animations;
std::unique_ptr<CSystemString> CImageManager::s_rootPath;

namespace {

const CString &nameOf(const CImageManager::CImageReference &reference) {
    return reference.getReferenceName();
}

const CString &nameOf(const CImageManager::CAnimationReference &reference) {
    return reference.getImageReference().getReferenceName();
}

const IImage *imageOf(const CImageManager::CImageReference &reference) {
    return reference.getImage();
}

const IImage *imageOf(const CImageManager::CAnimationReference &reference) {
    return reference.getImageReference().getImage();
}

// @param list  null counts as empty.
// @return the first reference that fits; null if none does.
template <typename Reference, typename Fits>
Reference *find(const Collections::TCountedPointerArray<Reference> *list, Fits fits) {
    for (int i = 0; list != nullptr && i < list->getInsertIndex(); ++i)
        if (Reference *reference = list->elementAtIndex(i); fits(*reference))
            return reference;
    return nullptr;
}

template <typename Reference>
Reference *findByName(const Collections::TCountedPointerArray<Reference> *list,
                      const CString &name) {
    return find(list, [&](const Reference &reference) { return nameOf(reference) == name; });
}

template <typename Reference>
Reference *findByImage(const Collections::TCountedPointerArray<Reference> *list,
                       const IImage *image) {
    return find(list, [&](const Reference &reference) { return imageOf(reference) == image; });
}

template <typename Reference>
void appendNames(const Collections::TCountedPointerArray<Reference> *list,
                 CImageManager::NameList &names) {
    for (int i = 0; list != nullptr && i < list->getInsertIndex(); ++i) {
        auto name = std::make_unique<CString>(nameOf(*list->elementAtIndex(i)));
        names.addElement(name.get());
        static_cast<void>(name.release());  // owned by the list now
    }
}

// Loads an image from below the root path and adds a reference to it to the list.
// @param numbers  what the constructor of the reference takes as well.
template <typename Reference, typename... Numbers>
bool add(Collections::TCountedPointerArray<Reference> *list, const CSystemString &relativePath,
         const CSystemString &filename, const CString &referenceName, Numbers... numbers) {
    if (list == nullptr)
        return false;
    try {
        CSystemString folder = CImageManager::getRootPath();
        if (relativePath != "{}")
            folder.appendPath(relativePath);
        folder.convertSlashes();
        Collections::TAutomaticPointer<IImage> image(
            Collections::TCountedObjectDeleter<IImage>::getStaticDeleter());
        image.setPointer(CImageManager::getImageFromFile(folder, filename));
        if (image.getPointer() == nullptr)
            return false;
        auto reference = std::make_unique<Reference>(image.getPointer(), referenceName,
                                                     relativePath, filename, numbers...);
        list->addElement(reference.get());
        static_cast<void>(reference.release());  // owned by the list now
        return true;
    } catch (...) {
        return false;
    }
}

std::unique_ptr<IImage> imageForExtensionOf(const CSystemString &path) {
    const auto hasOneOf = [&](std::initializer_list<const char *> extensions) {
        return std::any_of(extensions.begin(), extensions.end(),
                           [&](const char *extension) { return path.hasExtension(extension); });
    };
    if (hasOneOf({"jpg", "jpeg", "JPG", "JPEG"}))
        return std::make_unique<CJPEGImage>();
    if (hasOneOf({"tga", "TGA"}))
        return std::make_unique<CTGAImage>();
    if (hasOneOf({"png", "PNG"}))
        return std::make_unique<CPNGImage>();
    return nullptr;
}

}  // namespace

CImageManager::CImageReference::CImageReference(IImage *image, const CString &referenceName,
                                                const CSystemString &relativePath,
                                                const CSystemString &filename)
    : m_image(image), m_referenceName(referenceName), m_relativePath(relativePath),
      m_filename(filename) {
    m_image->reference();
    s_class.incrementInstanceCount();
}

CImageManager::CImageReference::~CImageReference() {
    m_image->dereference();
    s_class.decrementInstanceCount();
}

CImageManager::CAnimationReference::CAnimationReference(IImage *image, const CString &referenceName,
                                                        const CSystemString &relativePath,
                                                        const CSystemString &filename,
                                                        std::int32_t frameHeight,
                                                        std::int32_t numberOfFrames)
    : m_imageReference(image, referenceName, relativePath, filename), m_frameHeight(frameHeight),
      m_numberOfFrames(numberOfFrames) {
    s_class.incrementInstanceCount();
}

void CImageManager::start() {
    if (s_images != nullptr)
        return;
    s_images = std::make_unique<ImageList>();
    s_animations = std::make_unique<AnimationList>();
    s_rootPath = std::make_unique<CSystemString>();
}

void CImageManager::end() {
    s_images.reset();
    s_animations.reset();
    s_rootPath.reset();
}

void CImageManager::setRootPath(const CSystemString &path) {
    if (s_rootPath != nullptr)
        *s_rootPath = path;
}

CSystemString CImageManager::getRootPath() {
    return s_rootPath != nullptr ? *s_rootPath : CSystemString();
}

bool CImageManager::addImage(const CSystemString &relativePath, const CSystemString &filename,
                             const CString &referenceName) {
    return add(s_images.get(), relativePath, filename, referenceName);
}

bool CImageManager::addAnimation(const CSystemString &relativePath, const CSystemString &filename,
                                 const CString &referenceName, std::int32_t frameHeight,
                                 std::int32_t numberOfFrames) {
    return add(s_animations.get(), relativePath, filename, referenceName, frameHeight,
               numberOfFrames);
}

IImage *CImageManager::getImage(const CString &referenceName) {
    const CImageReference *reference = getImageReference(referenceName);
    return reference != nullptr ? reference->getImage() : nullptr;
}

CImageManager::CImageReference *CImageManager::getImageReference(const CString &referenceName) {
    return findByName(s_images.get(), referenceName);
}

IImage *CImageManager::getAnimation(const CString &referenceName, std::int32_t &frameHeight,
                                    std::int32_t &numberOfFrames) {
    const CAnimationReference *reference = getAnimationReference(referenceName);
    if (reference == nullptr)
        return nullptr;
    frameHeight = reference->getFrameHeight();
    numberOfFrames = reference->getNumberOfFrames();
    return reference->getImageReference().getImage();
}

CImageManager::CAnimationReference *
CImageManager::getAnimationReference(const CString &referenceName) {
    return findByName(s_animations.get(), referenceName);
}

CString CImageManager::getReferenceName(const IImage *image) {
    if (const CImageReference *reference = findByImage(s_images.get(), image))
        return nameOf(*reference);
    if (const CAnimationReference *reference = findByImage(s_animations.get(), image))
        return nameOf(*reference);
    return {};
}

void CImageManager::getReferenceNames(NameList &names) {
    getImageReferenceNames(names);
    getAnimationReferenceNames(names);
}

void CImageManager::getImageReferenceNames(NameList &names) {
    appendNames(s_images.get(), names);
}

void CImageManager::getAnimationReferenceNames(NameList &names) {
    appendNames(s_animations.get(), names);
}

void CImageManager::clearImages() {
    if (s_images != nullptr)
        s_images->clearArray();
}

void CImageManager::clearAnimations() {
    if (s_animations != nullptr)
        s_animations->clearArray();
}

void CImageManager::clearAll() {
    clearImages();
    clearAnimations();
}

IImage *CImageManager::getImageFromFile(const CSystemString &path) {
    // Opening a pipe would wait for a writer.
    if (!isNativeRegularFile(path.getString()) || !Host::fileExists(path))
        return nullptr;
    std::unique_ptr<IImage> image = imageForExtensionOf(path);
    if (image != nullptr)
        image->loadFromFile(path);
    return image.release();
}

IImage *CImageManager::getImageFromFile(const CSystemString &folder, const CString &name) {
    CSystemString path(folder);
    path.appendPath(name);
    return getImageFromFile(path);
}

}  // namespace Tessitor::GUI::Graphics
