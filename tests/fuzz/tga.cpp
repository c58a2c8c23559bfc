// The input: a TGA file.
#include "Fuzz.h"
#include "toolkit/graphics/CTGAImage.h"

using Tessitor::GUI::Graphics::CTGAImage;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile file("input.tga");
    CTGAImage image;
    const bool isLoaded = image.loadFromFile(file.write(CInput(data, size).rest()).c_str());
    require(image.hasImageLoaded() == isLoaded, "an image is loaded if loading succeeds");
    require((image.getImageHandle() != nullptr) == isLoaded, "only a loaded image has a picture");
    const auto pixels = static_cast<std::size_t>(image.getImageSize().getWidth()) *
                        static_cast<std::size_t>(image.getImageSize().getHeight());
    require(isLoaded == (pixels > 0), "a loaded image has pixels");
    require(!isLoaded || 18 + pixels * 4 <= size, "all pixels come from the file");
    require(isLoaded == (image.getLastError() == ""), "a failure has a reason");
    return 0;
}
