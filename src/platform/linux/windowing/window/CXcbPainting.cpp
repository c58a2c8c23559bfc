#include "platform/linux/windowing/window/CXcbPainting.h"

#include "platform/linux/drawing/CMemorySurface.h"
#include "platform/linux/windowing/window/CXcbCanvas.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <algorithm>
#include <optional>

void CXcbPainting::copyFrom(const INativeSurface &source, const SNativeRect &area) {
    // All surfaces of this back-end are of this class.
    const auto &surface = static_cast<const CMemorySurface &>(source);
    const SNativeRect whole = {0, 0, surface.getWidth(), surface.getHeight()};
    const SNativeRect part = intersection(intersection(m_dirty, area), whole);
    CXcbWindow *window = m_connection->windowOf(m_window);
    if (window == nullptr || SArea(part).isEmpty())
        return;
    std::optional<unsigned> firstRequest;
    SNativeRect strip = part;
    const auto rows =
        static_cast<std::int32_t>(m_connection->canvas().rowsOfStrip(part.right - part.left));
    for (; strip.top < part.bottom; strip.top = strip.bottom) {
        if (!m_connection->canSendPicture()) {
            window->invalidate({part.left, strip.top, part.right, part.bottom});
            return;
        }
        strip.bottom = std::min(strip.top + rows, part.bottom);
        const auto request = m_connection->canvas().put(m_window, surface.source(strip), strip);
        if (!firstRequest)
            firstRequest = request;
    }
    if (firstRequest)
        window->handlePainted(part, *firstRequest);
}
