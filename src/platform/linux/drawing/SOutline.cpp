#include "platform/linux/drawing/SOutline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using SPoint = SOutline::SPoint;
using Polygon = SOutline::Polygon;

constexpr double quarterTurn = std::numbers::pi / 2;

/// Adds a part of an ellipse, clockwise on the screen, as a chain of short lines.
void addArc(Polygon &polygon, SPoint centre, double radiusX, double radiusY, double start,
            double angle) {
    constexpr double tolerance = 0.02;  // pixels between the arc and a line
    const double radius = std::max({radiusX, radiusY, 1.0});
    const double step = 2 * std::acos(1 - tolerance / radius);
    const int lines = static_cast<int>(std::clamp(std::ceil(angle / step), 1.0, 10'000.0));
    for (int i = 0; i <= lines; ++i) {
        const double turn = start + angle * i / lines;
        polygon.push_back(
            {centre.x + radiusX * std::cos(turn), centre.y + radiusY * std::sin(turn)});
    }
}

}  // namespace

SArea SOutline::extents() const {
    constexpr double far = 1e9;
    double left = far, top = far, right = -far, bottom = -far;
    for (const Polygon &polygon : polygons) {
        for (const SPoint &point : polygon) {
            left = std::min(left, point.x);
            top = std::min(top, point.y);
            right = std::max(right, point.x);
            bottom = std::max(bottom, point.y);
        }
    }
    const auto pixel = [&](double value) { return std::llround(std::clamp(value, -far, far)); };
    return {pixel(std::floor(left)), pixel(std::floor(top)), pixel(std::ceil(right)),
            pixel(std::ceil(bottom))};
}

SOutline SOutline::rectangle(double left, double top, double right, double bottom) {
    return {{{{left, top}, {right, top}, {right, bottom}, {left, bottom}}}};
}

SOutline SOutline::roundedRectangle(const SArea &area, double radiusX, double radiusY) {
    const double left = static_cast<double>(area.left) + radiusX;
    const double top = static_cast<double>(area.top) + radiusY;
    const double right = static_cast<double>(area.right) - radiusX;
    const double bottom = static_cast<double>(area.bottom) - radiusY;
    Polygon polygon;
    addArc(polygon, {right, bottom}, radiusX, radiusY, 0, quarterTurn);
    addArc(polygon, {left, bottom}, radiusX, radiusY, quarterTurn, quarterTurn);
    addArc(polygon, {left, top}, radiusX, radiusY, 2 * quarterTurn, quarterTurn);
    addArc(polygon, {right, top}, radiusX, radiusY, 3 * quarterTurn, quarterTurn);
    return {{std::move(polygon)}};
}

SOutline SOutline::line(SPoint from, SPoint to, double width, int cap) {
    constexpr int square = 1, round = 2;
    const double length = std::hypot(to.x - from.x, to.y - from.y), half = width / 2;
    if (length == 0)
        return {};
    const double alongX = (to.x - from.x) / length, alongY = (to.y - from.y) / length;
    Polygon polygon;
    if (cap == round) {
        const double direction = std::atan2(alongY, alongX);
        addArc(polygon, to, half, half, direction - quarterTurn, 2 * quarterTurn);
        addArc(polygon, from, half, half, direction + quarterTurn, 2 * quarterTurn);
        return {{std::move(polygon)}};
    }
    const double longer = cap == square ? half : 0;
    const auto corner = [&](SPoint end, double along, double across) {
        polygon.push_back(
            {end.x + alongX * along - alongY * across, end.y + alongY * along + alongX * across});
    };
    corner(to, longer, -half);
    corner(to, longer, half);
    corner(from, -longer, half);
    corner(from, -longer, -half);
    return {{std::move(polygon)}};
}
