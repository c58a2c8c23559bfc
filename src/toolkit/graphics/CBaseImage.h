#pragma once

#include "foundation/CClass.h"
#include "foundation/TClassRecord.h"
#include "toolkit/graphics/IImage.h"

#include <atomic>
#include <memory>

namespace Tessitor::GUI::Graphics {

/// What all images have in common. It counts its own references, in the way of CCountedObject.
class CBaseImage : public IImage {
public:
    CBaseImage(const CBaseImage &) = delete;
    CBaseImage &operator=(const CBaseImage &) = delete;
    ~CBaseImage() override { s_class.decrementInstanceCount(); }

    void reference() override { ++m_referenceCount; }
    void dereference() override;
    std::int32_t getReferenceCount() const override { return m_referenceCount; }
    /// "No Image loaded", or "File loaded is = " and the file name.
    void getObjectDescription(char *array, long size) const override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    const MathTools::CDimension &getImageSize() const override { return m_size; }
    const MathTools::CRect &getNormalisedImageArea() const override { return m_area; }
    const Tessitor::Basics::CSystemString &getFilename() const override { return m_filename; }
    bool loadFromFile(const Tessitor::Basics::CSystemString &) override { return false; }
    void unloadImage() override;
    bool hasAlpha() const override { return m_hasAlpha; }
    bool hasImageLoaded() const override { return m_bitmap != nullptr; }
    const INativeBitmap *getImageHandle() const override { return m_bitmap.get(); }

    /// @return why the last attempt failed; "" if none has failed yet.
    const Tessitor::Basics::CString &getLastError() const { return m_lastError; }

protected:
    explicit CBaseImage(bool hasAlpha);

    void setHasAlpha(bool hasAlpha) { m_hasAlpha = hasAlpha; }
    void setSize(std::int32_t width, std::int32_t height);  ///< and the area
    void setFilename(const Tessitor::Basics::CSystemString &path) { m_filename = path; }
    bool fail(const char *error);  ///< stores the error; returns false
    /// The image is then loaded, unless the bitmap is null.
    void setBitmap(std::unique_ptr<INativeBitmap> bitmap) { m_bitmap = std::move(bitmap); }
    /// Decodes a PNG or JPEG file, whatever its name. Leaves the size alone.
    /// @param format  "PNG" or "JPEG", for the error if the system has no smooth drawing.
    bool decode(const Tessitor::Basics::CSystemString &path, const char *format);

private:
    static Tessitor::Basics::TClassRecord<CBaseImage> s_class;

    bool m_hasAlpha;
    std::atomic<std::int32_t> m_referenceCount = 0;
    MathTools::CDimension m_size;
    MathTools::CRect m_area;
    Tessitor::Basics::CSystemString m_filename;
    Tessitor::Basics::CString m_lastError;
    std::unique_ptr<INativeBitmap> m_bitmap;  // null if no image is loaded
};

}  // namespace Tessitor::GUI::Graphics
