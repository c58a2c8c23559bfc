#include "toolkit/graphics/CTGAImage.h"

#include "foundation/CFileStream.h"
#include "platform/NativeFile.h"

#include <new>
#include <vector>

namespace Tessitor::GUI::Graphics {

using Tessitor::Basics::CSystemString;
using Tessitor::IO::CFileStream;

Tessitor::Basics::TClassRecord<CTGAImage> CTGAImage::s_class("CTGAImage", "CBaseImage");

namespace {

constexpr std::size_t headerBytes = 18, pixelBytes = 4;

struct SHeader {
    std::uint8_t identificationLength = 0, colourMapType = 0, imageType = 0;
    std::uint16_t colourMapOrigin = 0, colourMapLength = 0;
    std::uint8_t colourMapDepth = 0;
    std::uint16_t originX = 0, originY = 0, width = 0, height = 0;
    std::uint8_t pixelDepth = 0, descriptor = 0;

    bool isSupported() const {
        return identificationLength == 0 && colourMapType == 0 && imageType == 2 &&
               pixelDepth == 32 && descriptor == 8;
    }
    std::size_t bodyBytes() const { return std::size_t{width} * height * pixelBytes; }
};

SHeader readHeader(CFileStream &stream) {
    SHeader header;
    stream >> header.identificationLength >> header.colourMapType >> header.imageType;
    stream >> header.colourMapOrigin >> header.colourMapLength >> header.colourMapDepth;
    stream >> header.originX >> header.originY >> header.width >> header.height;
    stream >> header.pixelDepth >> header.descriptor;
    return header;
}

// @return null if the file is shorter than its header promises, or if there is no memory.
std::unique_ptr<INativeBitmap> readBody(CFileStream &stream, const SHeader &header) {
    const long length = stream.getStreamLength();
    if (length < 0 || static_cast<std::size_t>(length) < headerBytes + header.bodyBytes())
        return nullptr;
    std::vector<std::uint8_t> pixels(header.bodyBytes());
    if (!stream.read(pixels.data(), pixels.size()))
        return nullptr;
    for (auto pixel = pixels.begin(); pixel != pixels.end(); pixel += pixelBytes) {
        const int alpha = pixel[3];
        // Kept: not rounded.
        for (int channel = 0; channel < 3; ++channel)
            pixel[channel] = static_cast<std::uint8_t>(pixel[channel] * alpha / 255);
    }
    return createNativeBitmap(header.width, header.height, pixels);
}

}  // namespace

bool CTGAImage::loadFromFile(const CSystemString &path) {
    setFilename(path);
    unloadImage();
    if (!path.hasExtension("tga"))
        return fail("Filename is not of TARGA type");
    CFileStream stream;
    // Opening a pipe would wait for a writer.
    if (!isNativeRegularFile(path.getString()) ||
        !stream.open(path, IO::EStreamMode::Read, /*fileIsLittleEndian*/ true))
        return fail("Could not find file with matching details");
    const SHeader header = readHeader(stream);
    if (stream.hasFailed() || !header.isSupported()) {
        setFilename("");
        return fail("Header information did not match\n"
                    "File must be 32 bit Targa, colour map of 0, bpp = 8");
    }
    try {
        setBitmap(readBody(stream, header));
    } catch (const std::bad_alloc &) {
    }
    if (!hasImageLoaded())
        return fail("Failed to create window DIB section from targa data");
    setSize(header.width, header.height);
    return true;
}

}  // namespace Tessitor::GUI::Graphics
