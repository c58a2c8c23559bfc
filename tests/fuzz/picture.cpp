// The input: a PNG or JPEG file.
#include "Fuzz.h"
#include "platform/PictureFile.h"
#include "toolkit/graphics/CJPEGImage.h"
#include "toolkit/graphics/CPNGImage.h"

using namespace Tessitor::GUI::Graphics;

namespace {

bool load(CBaseImage &image, const std::string &path) {
    const bool isLoaded = image.loadFromFile(path.c_str());
    require(image.hasImageLoaded() == isLoaded, "an image is loaded if loading succeeds");
    const INativeBitmap *bitmap = image.getImageHandle();
    require((bitmap != nullptr) == isLoaded, "only a loaded image has a picture");
    require(isLoaded == (image.getLastError() == ""), "a failure has a reason");
    require(!isLoaded || pictureFormat(path), "only a whole picture is decoded");
    if (bitmap != nullptr) {
        require(image.getImageSize().getWidth() == bitmap->getWidth(), "the width is known");
        for (const std::int32_t side : {bitmap->getWidth(), bitmap->getHeight()})
            require(side >= 1 && side <= 32767, "the size is in its limits");
    }
    return isLoaded;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile pngFile("input.png"), jpegFile("input.jpg");
    const std::string bytes = CInput(data, size).rest();
    CPNGImage png;
    CJPEGImage jpeg;
    require(load(png, pngFile.write(bytes)) == load(jpeg, jpegFile.write(bytes)),
            "the contents of a file count, and not its extension");
    return 0;
}
