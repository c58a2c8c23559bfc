#include "platform/linux/drawing/FillPolygon.h"

#include <algorithm>
#include <vector>

namespace {

__extension__ using Wide = __int128;

struct SEdge {
    SNativePoint top, bottom;

    /// The first column at or right of the edge.
    std::int64_t columnAt(std::int32_t y) const {
        const std::int64_t height = std::int64_t{bottom.y} - top.y;
        const Wide distance = Wide{std::int64_t{y} - top.y} * (std::int64_t{bottom.x} - top.x);
        const Wide quotient = distance / height;
        return top.x + static_cast<std::int64_t>(quotient) +
               (distance > 0 && distance % height != 0 ? 1 : 0);
    }
};

/// Those edges that cross a row of the clip, from top to bottom.
std::vector<SEdge> edgesOf(std::span<const SNativePoint> points, const SNativeRect &clip) {
    std::vector<SEdge> edges;
    for (std::size_t i = 0; i < points.size(); ++i) {
        SEdge edge{points[i], points[(i + 1) % points.size()]};
        if (edge.top.y > edge.bottom.y)
            std::swap(edge.top, edge.bottom);
        if (edge.top.y < edge.bottom.y && edge.top.y < clip.bottom && edge.bottom.y > clip.top)
            edges.push_back(edge);
    }
    std::sort(edges.begin(), edges.end(),
              [](const SEdge &a, const SEdge &b) { return a.top.y < b.top.y; });
    return edges;
}

}  // namespace

void fillPolygon(
    const SNativeRect &clip, std::span<const SNativePoint> points,
    const std::function<void(std::int32_t y, std::int32_t left, std::int32_t right)> &draw) {
    const std::vector<SEdge> edges = edgesOf(points, clip);
    std::vector<SEdge> active;
    std::vector<std::int64_t> columns;
    std::size_t next = 0;
    for (std::int32_t y = clip.top; y < clip.bottom; ++y) {
        for (; next < edges.size() && edges[next].top.y <= y; ++next)
            active.push_back(edges[next]);
        std::erase_if(active, [y](const SEdge &edge) { return edge.bottom.y <= y; });
        columns.clear();
        for (const SEdge &edge : active)
            columns.push_back(std::clamp<std::int64_t>(edge.columnAt(y), clip.left, clip.right));
        std::sort(columns.begin(), columns.end());
        for (std::size_t i = 0; i + 1 < columns.size(); i += 2) {
            if (columns[i] < columns[i + 1])
                draw(y, static_cast<std::int32_t>(columns[i]),
                     static_cast<std::int32_t>(columns[i + 1]));
        }
    }
}
