#pragma once

#include "foundation/TCountedPointerArray.h"
#include "toolkit/graphics/IImage.h"

#include <memory>

namespace Tessitor::GUI::Graphics {

/// The images of the process, found by name. Before start() and after end() there are no images,
/// and nothing can be added. [gui thread]
class CImageManager {
public:
    /// An image, the name to find it by, and where it was loaded from. It holds a reference to the
    /// image.
    class CImageReference : public Tessitor::Basics::CCountedObject {
    public:
        CImageReference(IImage *image, const Tessitor::Basics::CString &referenceName,
                        const Tessitor::Basics::CSystemString &relativePath,
                        const Tessitor::Basics::CSystemString &filename);
        CImageReference(const CImageReference &) = delete;
        CImageReference &operator=(const CImageReference &) = delete;
        ~CImageReference() override;
        Tessitor::Basics::CClass &getClass() const override { return s_class; }

        IImage *getImage() const { return m_image; }
        const Tessitor::Basics::CString &getReferenceName() const { return m_referenceName; }
        const Tessitor::Basics::CSystemString &getRelativePath() const { return m_relativePath; }
        const Tessitor::Basics::CSystemString &getFilename() const { return m_filename; }

    private:
        static Tessitor::Basics::TClassRecord<CImageReference> s_class;

        IImage *m_image;
        Tessitor::Basics::CString m_referenceName;
        Tessitor::Basics::CSystemString m_relativePath;
        Tessitor::Basics::CSystemString m_filename;
    };

    /// An image of frames that lie below each other. Height and number come from files: neither
    /// need be positive or fit the image.
    class CAnimationReference : public Tessitor::Basics::CCountedObject {
    public:
        CAnimationReference(IImage *image, const Tessitor::Basics::CString &referenceName,
                            const Tessitor::Basics::CSystemString &relativePath,
                            const Tessitor::Basics::CSystemString &filename,
                            std::int32_t frameHeight, std::int32_t numberOfFrames);
        CAnimationReference(const CAnimationReference &) = delete;
        CAnimationReference &operator=(const CAnimationReference &) = delete;
        ~CAnimationReference() override { s_class.decrementInstanceCount(); }
        Tessitor::Basics::CClass &getClass() const override { return s_class; }

        const CImageReference &getImageReference() const { return m_imageReference; }
        std::int32_t getFrameHeight() const { return m_frameHeight; }  ///< pixels
        std::int32_t getNumberOfFrames() const { return m_numberOfFrames; }

    private:
        static Tessitor::Basics::TClassRecord<CAnimationReference> s_class;

        CImageReference m_imageReference;
        std::int32_t m_frameHeight, m_numberOfFrames;
    };

    using ImageList = Collections::TCountedPointerArray<CImageReference>;
    using AnimationList = Collections::TCountedPointerArray<CAnimationReference>;
    using NameList = Collections::TPointerCollection<Tessitor::Basics::CString>;

    static void start();  ///< creates the empty lists; does nothing if they exist
    static void end();    ///< releases all images and forgets the root path

    static void setRootPath(const Tessitor::Basics::CSystemString &path);
    static Tessitor::Basics::CSystemString getRootPath();  ///< "" at first

    /// Loads an image from the root path and adds it. Kept: a file of a known kind that cannot be
    /// read is added too, as an image that is not loaded and draws nothing.
    /// @param relativePath   of the file's folder, in the root path; "{}" for the root path itself.
    ///                       May contain "/" on every system.
    /// @param referenceName  to find it by. Of images with the same name, the first is found.
    /// @return false if getImageFromFile() returns null.
    static bool addImage(const Tessitor::Basics::CSystemString &relativePath,
                         const Tessitor::Basics::CSystemString &filename,
                         const Tessitor::Basics::CString &referenceName);
    static bool addAnimation(const Tessitor::Basics::CSystemString &relativePath,
                             const Tessitor::Basics::CSystemString &filename,
                             const Tessitor::Basics::CString &referenceName,
                             std::int32_t frameHeight, std::int32_t numberOfFrames);

    // These return null if there is none. Whoever keeps an image or reference must reference it.
    static IImage *getImage(const Tessitor::Basics::CString &referenceName);
    static CImageReference *getImageReference(const Tessitor::Basics::CString &referenceName);
    /// @param frameHeight, numberOfFrames  set if there is such an animation.
    static IImage *getAnimation(const Tessitor::Basics::CString &referenceName,
                                std::int32_t &frameHeight, std::int32_t &numberOfFrames);
    static CAnimationReference *
    getAnimationReference(const Tessitor::Basics::CString &referenceName);

    /// @return the name of the first image, or else animation, with this picture. "" if there is
    ///         none, or for null.
    static Tessitor::Basics::CString getReferenceName(const IImage *image);
    // Append copies of the names, images first.
    static void getReferenceNames(NameList &names);
    static void getImageReferenceNames(NameList &names);
    static void getAnimationReferenceNames(NameList &names);

    static void clearImages();
    static void clearAnimations();
    static void clearAll();

    /// Writes the list of images and animations. @return false if that fails.
    static bool saveToXML(const Tessitor::Basics::CSystemString &path);
    /// Adds the images and animations of a file that saveToXML() has written. An entry that cannot
    /// be added is traced and skipped.
    /// @return false, and nothing is added, if the file cannot be read or is of another kind.
    static bool loadFromXML(const Tessitor::Basics::CSystemString &path);
    /// Adds the images and animations of a text file:
    ///
    ///     <start_skin>
    ///     # A comment
    ///     <images>
    ///     relative path,file name,reference name
    ///     <animations>
    ///     relative path,file name,reference name,frame height,number of frames
    ///     <end_skin>
    ///
    /// A line that cannot be used is traced and skipped. Each is read as a CStringTokeniser does.
    /// Any other file is read by loadFromXML().
    /// @return false if the file could not be read up to its end or "<end_skin>". What came before
    ///         the failure has been added.
    static bool loadFromDefinitionFile(const Tessitor::Basics::CSystemString &path);

    /// Loads an image of the class that belongs to the extension: "tga", "png", "jpg" or "jpeg",
    /// all in lower or all in upper case. Kept: the image is returned even if it could not be
    /// loaded, and those with "PNG" or another extension in upper case never are.
    /// @return an image without references; null if the extension is another one, or if there is
    ///         no such file, if it is not a regular file or cannot be opened.
    static IImage *getImageFromFile(const Tessitor::Basics::CSystemString &path);
    static IImage *getImageFromFile(const Tessitor::Basics::CSystemString &folder,
                                    const Tessitor::Basics::CString &name);

private:
    static std::unique_ptr<ImageList> s_images;
    static std::unique_ptr<AnimationList> s_animations;
    static std::unique_ptr<Tessitor::Basics::CSystemString> s_rootPath;
};

}  // namespace Tessitor::GUI::Graphics
