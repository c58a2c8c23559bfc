#include "toolkit/graphics/Painting.h"

namespace Tessitor::GUI::Graphics {

namespace {

class COpenPainting {
public:
    COpenPainting(CGraphics &graphics, const INativePaintTarget &window,
                  const MathTools::CDimension &size, const MathTools::CRect &dirty)
        : m_graphics(graphics) {
        m_graphics.setUpdateArea(dirty);
        m_graphics.initialise(&window, size);
        m_graphics.setDrawingOffset({0, 0});
        m_graphics.getClip().setClipRegion(dirty);
    }
    ~COpenPainting() {
        m_graphics.setDrawingOffset({0, 0});
        m_graphics.getClip().resetClip();
        m_graphics.uninitialise();
    }
    COpenPainting(const COpenPainting &) = delete;
    COpenPainting &operator=(const COpenPainting &) = delete;

private:
    CGraphics &m_graphics;
};

bool isAllZero(const MathTools::CRect &rect) {
    return rect.getLeft() == 0 && rect.getTop() == 0 && rect.getRight() == 0 &&
           rect.getBottom() == 0;
}

}  // namespace

void paintWindow(CGraphics &graphics, INativePaintTarget &window, const MathTools::CDimension &size,
                 const MathTools::CRect &dirty,
                 const std::function<void(CGraphics &)> &drawWindow) {
    const COpenPainting painting(graphics, window, size, dirty);
    drawWindow(graphics);
    const INativeSurface *picture = graphics.getNativeImage().getSurface();
    if (picture != nullptr && !isAllZero(dirty))
        window.copyFrom(*picture, dirty.toNative());
}

}  // namespace Tessitor::GUI::Graphics
