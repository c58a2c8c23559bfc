#include "platform/win32/drawing/CWin32Bitmap.h"

#include <algorithm>

std::unique_ptr<INativeBitmap> createNativeBitmap(std::int32_t width, std::int32_t height,
                                                  std::span<const std::uint8_t> pixels) {
    if (width < 1 || height < 1)
        return nullptr;
    void *bits = nullptr;
    TGdiObject<HBITMAP> handle = createDibSection(width, height, bits);
    if (handle == nullptr)
        return nullptr;
    std::ranges::copy(pixels, static_cast<std::uint8_t *>(bits));
    return std::make_unique<CWin32Bitmap>(std::move(handle), width, height);
}
