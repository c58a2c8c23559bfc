#include "platform/linux/windowing/CXcbPainting.h"

#include "platform/linux/drawing/CMemorySurface.h"
#include "platform/linux/windowing/CXcbCanvas.h"
#include "platform/linux/windowing/CXcbWindow.h"

void CXcbPainting::copyFrom(const INativeSurface &source, const SNativeRect &area) {
    // All surfaces of this back-end are of this class.
    const auto &surface = static_cast<const CMemorySurface &>(source);
    const SNativeRect whole = {0, 0, surface.getWidth(), surface.getHeight()};
    const SNativeRect part = intersection(intersection(m_dirty, area), whole);
    const auto request = m_connection->canvas().put(m_window, surface.source(part), part);
    CXcbWindow *window = m_connection->windowOf(m_window);
    if (window != nullptr && request.has_value())
        window->handlePainted(part, *request);
}
