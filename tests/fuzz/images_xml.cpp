// The input: a list of images in XML without the declaration at its start, which is added here. The
// list that was read is written and read again.
#include "ImageLists.h"

using Tessitor::GUI::Graphics::CImageManager;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile file;
    const CImageSession session;
    const std::string path = file.write("<?xml?>\n" + CInput(data, size).rest());
    if (!CImageManager::loadFromXML(path.c_str()))
        return 0;
    CImageSession::look();
    file.remove();
    require(CImageManager::saveToXML(path.c_str()), "what was read can be written");
    CImageManager::clearAll();
    CImageManager::loadFromXML(path.c_str());
    CImageSession::look();
    return 0;
}
