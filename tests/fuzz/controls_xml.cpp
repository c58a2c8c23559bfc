// The input: a list of controls in XML without the declaration at its start, which is added here.
// The controls that were read are drawn, and what they write must give the same controls again.
#include "ImageLists.h"
#include "foundation/CXMLNode.h"
#include "toolkit/controls/CControlRoot.h"
#include "toolkit/events/CFakeWindow.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/graphics/SCanvas.h"

using Tessitor::GUI::Controls::CControlRoot;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::CImageManager;
using Tessitor::IO::CXMLNode;
using Tessitor::MathTools::CRect;

namespace {

/// The default font, for the whole run: finding it takes longer than everything else.
struct SDefaultFont {
    SDefaultFont() { CFont::createDefaultFont(); }
    SDefaultFont(const SDefaultFont &) = delete;
    SDefaultFont &operator=(const SDefaultFont &) = delete;
    ~SDefaultFont() { CFont::releaseDefaultFont(); }
};

/// Starts the image manager for one input, with an image and an animation.
class CControlSession {
public:
    CControlSession() {
        static const SDefaultFont font;
        CImageManager::addImage("{}", "two.png", "still");
        CImageManager::addAnimation("{}", "one.tga", "film", 1, 1);
    }

private:
    CImageSession m_images;
};

void draw(CControlRoot &root) {
    static auto *const canvas = new SCanvas;  // never destroyed, so it may outlive static objects
    const CRect window(0, 0, 40, 30);
    canvas->graphics.setUpdateArea(window);
    canvas->graphics.getClip().setClipRegion(window);
    canvas->graphics.setDrawingOffset({0, 0});
    root.drawRootControl(canvas->graphics);
    require(canvas->graphics.getUpdateArea().toString() == window.toString(),
            "drawing puts the graphics back");
}

std::string textOf(const CXMLNode &node) {
    std::string text = node.getName().getString();
    for (int i = 0; i < node.getNumberOfAttributes(); ++i)
        text += std::string("\n") + node.getAttribute(i)->getName().getString() + "=" +
                node.getAttribute(i)->getValue().getString();
    for (int i = 0; i < node.getNumberOfChildren(); ++i)
        text += "\n(" + textOf(*node.getChild(i)) + ")";
    return text;
}

void requireSameControls(const CControlRoot &root) {
    CFakeWindow window;
    CControlRoot copy(&window);
    CXMLNode written("controls", nullptr), writtenAgain("controls", nullptr);
    root.serialiseToXml(&written);
    require(copy.serialiseFromXml(&written), "what was read can be read again");
    copy.serialiseToXml(&writtenAgain);
    require(textOf(written) == textOf(writtenAgain), "the second reading gives the same controls");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile file;
    const std::string path = file.write("<?xml?>\n" + CInput(data, size).rest());
    const CControlSession session;
    CFakeWindow window;
    CControlRoot root(&window), saved(&window);
    root.loadFromFile(path.c_str());
    draw(root);
    requireSameControls(root);

    // Very long lines are not read again, so this may give fewer controls.
    file.remove();
    require(root.saveToFile(path.c_str()), "what was read can be written");
    saved.loadFromFile(path.c_str());
    draw(saved);
    return 0;
}
