#include "platform/PictureFile.h"
#include "platform/linux/drawing/CJpegReader.h"
#include "platform/linux/drawing/CMemoryBitmap.h"
#include "platform/linux/drawing/CPngReader.h"

#include <cstring>
#include <new>

namespace {

std::uint32_t premultiplied(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24;
    const auto channel = [&](int shift) {
        const std::uint32_t product = (pixel >> shift & 255) * alpha + 127;
        return product / 255 << shift;
    };
    return alpha << 24 | channel(16) | channel(8) | channel(0);
}

/// @param reader  a CPngReader or CJpegReader.
template <typename Reader>
std::unique_ptr<INativeBitmap> read(Reader reader) {
    if (!reader.readHeader())
        return nullptr;
    const std::size_t width = reader.getWidth(), height = reader.getHeight();
    std::vector<std::uint32_t> pixels;
    pixels.reserve(width * height);
    for (int pass = 0; pass < reader.getPasses(); ++pass) {
        for (std::size_t y = 0; y < height; ++y) {
            // The system provides memory as it is written to: none for rows after the damage in a
            // file.
            if (pass == 0)
                pixels.resize((y + 1) * width);
            if (!reader.readRow(reinterpret_cast<std::uint8_t *>(&pixels[y * width])))
                return nullptr;
        }
    }
    if (!reader.readEnd())
        return nullptr;
    for (std::uint32_t &pixel : pixels)
        pixel = premultiplied(pixel);
    return std::make_unique<CMemoryBitmap>(static_cast<std::int32_t>(width),
                                           static_cast<std::int32_t>(height), std::move(pixels));
}

struct SCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

}  // namespace

std::unique_ptr<INativeBitmap> decodeNativeBitmap(const std::string &path) {
    const std::optional<EPictureFormat> format = pictureFormat(path);
    if (!format)
        return nullptr;
    const std::unique_ptr<std::FILE, SCloser> file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr)
        return nullptr;
    try {
        return *format == EPictureFormat::PNG ? read(CPngReader(file.get()))
                                              : read(CJpegReader(file.get()));
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

std::unique_ptr<INativeBitmap> createNativeBitmap(std::int32_t width, std::int32_t height,
                                                  std::span<const std::uint8_t> pixels) {
    if (width < 1 || height < 1)
        return nullptr;
    const auto across = static_cast<std::size_t>(width), down = static_cast<std::size_t>(height);
    try {
        std::vector<std::uint32_t> flipped(across * down);
        for (std::size_t y = 0; y < down; ++y)
            std::memcpy(&flipped[(down - 1 - y) * across], &pixels[y * across * 4], across * 4);
        return std::make_unique<CMemoryBitmap>(width, height, std::move(flipped));
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
