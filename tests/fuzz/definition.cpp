// The input: a definition file of images.
#include "ImageLists.h"

using Tessitor::GUI::Graphics::CImageManager;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile file;
    const CImageSession session;
    CImageManager::loadFromDefinitionFile(file.write(CInput(data, size).rest()).c_str());
    CImageSession::look();
    return 0;
}
