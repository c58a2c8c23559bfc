#include "platform/linux/drawing/Blits.h"

#include "platform/linux/drawing/Blend.h"

#include <algorithm>
#include <vector>

namespace {

// Products of two sizes of up to 32 bits each
__extension__ using Wide = __int128;

constexpr std::uint32_t opaque = 0xff000000u;

/// Where the visible pixels of a scaled picture come from, along one axis: the pixel at first + i
/// from those of the source from ranges[i].first to ranges[i].last - 1.
struct SScaledAxis {
    struct SRange {
        std::int32_t first = 0, last = 0;
    };
    std::int32_t first = 0;
    std::vector<SRange> ranges;
};

/// One axis of a scaled picture. A size below 0 goes left or up, from the first pixel, which
/// counts, to the last, which does not.
struct SScaling {
    std::int64_t toStart, toEnd, fromStart, fromEnd;

    /// @param clipFirst  the visible pixels end before clipLast.
    /// @param size       of the source; ranges are cut at it.
    SScaledAxis visible(std::int32_t clipFirst, std::int32_t clipLast, std::int32_t size) const {
        const bool goesBack = toEnd < toStart;
        const std::int64_t first =
            std::max<std::int64_t>(goesBack ? toEnd + 1 : toStart, clipFirst);
        const std::int64_t last = std::min<std::int64_t>(goesBack ? toStart + 1 : toEnd, clipLast);
        SScaledAxis axis{static_cast<std::int32_t>(std::min<std::int64_t>(first, clipLast)), {}};
        axis.ranges.reserve(static_cast<std::size_t>(std::max<std::int64_t>(last - first, 0)));
        for (std::int64_t position = first; position < last; ++position)
            axis.ranges.push_back(rangeOf(std::abs(position - toStart), size));
        return axis;
    }

private:
    SScaledAxis::SRange rangeOf(std::int64_t i, std::int32_t size) const {
        const bool isReduced = std::abs(toEnd - toStart) < std::abs(fromEnd - fromStart);
        const std::int64_t first = start(i), last = isReduced ? start(i + 1) : first + 1;
        if (fromEnd < fromStart)
            return {bounded(fromStart - last + 1, size), bounded(fromStart - first + 1, size)};
        return {bounded(fromStart + first, size), bounded(fromStart + last, size)};
    }
    /// Where the i-th pixel begins in the source: enlarged, a pixel shows what lies at its centre;
    /// when reduced, each pixel of the source falls on what lies at its centre. Ties go to the
    /// first.
    std::int64_t start(std::int64_t i) const {
        const std::int64_t toSize = std::abs(toEnd - toStart);
        const std::int64_t fromSize = std::abs(fromEnd - fromStart);
        if (toSize == fromSize)
            return i;  // spares the divisions, which would cost more than blending
        if (toSize > fromSize)
            return static_cast<std::int64_t>(((Wide{2} * i + 1) * fromSize - 1) /
                                             (Wide{2} * toSize));
        const Wide product = Wide{2} * i * fromSize + 1 - toSize;
        return product <= 0 ? 0
                            : static_cast<std::int64_t>((product + Wide{2} * toSize - 1) /
                                                        (Wide{2} * toSize));
    }
    static std::int32_t bounded(std::int64_t value, std::int32_t size) {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, size));
    }
};

std::uint32_t combined(const SSource &source, const SScaledAxis::SRange &columns,
                       const SScaledAxis::SRange &rows) {
    std::uint32_t pixel = ~0u;
    for (std::int32_t y = rows.first; y < rows.last; ++y) {
        const std::uint32_t *row = source.row(y);
        for (std::int32_t x = columns.first; x < columns.last; ++x)
            pixel &= row[x];
    }
    return pixel;
}

/// Some pixels, and their channels one by one: compilers vectorise loops over bytes best.
struct SChunk {
    static constexpr std::int32_t size = 32;
    std::uint32_t pixels[size];

    std::uint8_t *channels() { return reinterpret_cast<std::uint8_t *>(pixels); }
};

void scale(std::uint8_t *channels, std::uint8_t factor, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i)
        channels[i] = dividedChannel(channels[i] * factor);
}

/// Draws premultiplied pixels over others.
void blendWholeChunk(std::uint32_t *under, const std::uint32_t *over, std::int32_t count) {
    SChunk rest;
    for (std::int32_t i = 0; i < count; ++i)
        rest.pixels[i] = (255 - (over[i] >> 24)) * 0x01010101u;
    auto *below = reinterpret_cast<std::uint8_t *>(under);
    const auto *above = reinterpret_cast<const std::uint8_t *>(over);
    const std::uint8_t *factors = rest.channels();
    for (std::int32_t i = 0; i < 4 * count; ++i)
        below[i] = cutSum(dividedChannel(below[i] * factors[i]), above[i]);
}

/// Draws premultiplied pixels times a constant alpha over others.
void blendChunk(std::uint32_t *under, const std::uint32_t *over, std::int32_t count,
                std::uint8_t alpha) {
    if (alpha == 255)
        return blendWholeChunk(under, over, count);
    SChunk scaled;
    std::copy_n(over, count, scaled.pixels);
    scale(scaled.channels(), alpha, 4 * count);
    blendWholeChunk(under, scaled.pixels, count);
}

/// Mixes pixels, taken as opaque, with others.
void mixChunk(std::uint32_t *under, const std::uint32_t *over, std::int32_t count,
              std::uint8_t alpha) {
    SChunk opaqueOver;
    for (std::int32_t i = 0; i < count; ++i)
        opaqueOver.pixels[i] = over[i] | opaque;
    auto *below = reinterpret_cast<std::uint8_t *>(under);
    const std::uint8_t *above = opaqueOver.channels();
    const auto rest = static_cast<std::uint8_t>(255 - alpha);
    for (std::int32_t i = 0; i < 4 * count; ++i)
        below[i] = dividedChannel(above[i] * alpha + below[i] * rest);
}

void blendRow(std::uint32_t *under, const std::uint32_t *over, std::int32_t count,
              std::uint8_t alpha, bool isTranslucent) {
    for (std::int32_t i = 0; i < count; i += SChunk::size) {
        const std::int32_t some = std::min(SChunk::size, count - i);
        if (isTranslucent)
            blendChunk(under + i, over + i, some, alpha);
        else
            mixChunk(under + i, over + i, some, alpha);
    }
}

bool liesInside(const SSource &source, const SArea &area) {
    return area.left >= 0 && area.top >= 0 && area.right <= source.width &&
           area.bottom <= source.height && !area.isEmpty();
}

}  // namespace

void copyPixels(const SPixels &pixels, const SSource &source, const SArea &to, SNativePoint from) {
    const std::int64_t shiftX = from.x - to.left, shiftY = from.y - to.top;
    const SNativeRect inside = intersection(
        pixels.clip, {-shiftX, -shiftY, source.width - shiftX, source.height - shiftY});
    const SNativeRect visible = intersection(inside, to);
    const std::int32_t count = visible.right - visible.left;
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        const std::uint32_t *row = source.row(y + shiftY) + visible.left + shiftX;
        std::transform(row, row + count, pixels.row(y) + visible.left,
                       [](std::uint32_t pixel) { return pixel | opaque; });
    }
}

void stretchPixels(const SPixels &pixels, const SSource &source, const SArea &to,
                   const SArea &from) {
    if (from.width() == 0 || from.height() == 0)
        return;
    const SNativeRect &clip = pixels.clip;
    const SScaledAxis columns = SScaling{to.left, to.right, from.left, from.right}.visible(
        clip.left, clip.right, source.width);
    const SScaledAxis rows = SScaling{to.top, to.bottom, from.top, from.bottom}.visible(
        clip.top, clip.bottom, source.height);
    for (std::size_t y = 0; y < rows.ranges.size(); ++y) {
        std::uint32_t *row = pixels.row(rows.first + static_cast<std::int32_t>(y)) + columns.first;
        for (std::size_t x = 0; x < columns.ranges.size(); ++x) {
            const auto &across = columns.ranges[x], &down = rows.ranges[y];
            if (across.first < across.last && down.first < down.last)
                row[x] = combined(source, across, down) | opaque;
        }
    }
}

void blendPixels(const SPixels &pixels, const SSource &source, const SArea &to, const SArea &from,
                 std::uint8_t alpha, bool isTranslucent) {
    const SNativeRect visible = intersection(pixels.clip, to);
    if (!liesInside(source, from) || SArea(visible).isEmpty())
        return;
    const SScaledAxis columns = SScaling{to.left, to.right, from.left, from.right}.visible(
        visible.left, visible.right, source.width);
    const SScaledAxis rows = SScaling{to.top, to.bottom, from.top, from.bottom}.visible(
        visible.top, visible.bottom, source.height);
    const bool isScaled = to.width() != from.width();
    // Of the pixels that fall on one, GDI keeps the first row and the last column.
    std::vector<std::uint32_t> scaled(isScaled ? columns.ranges.size() : 0);
    for (std::size_t y = 0; y < rows.ranges.size(); ++y) {
        const std::uint32_t *row = source.row(rows.ranges[y].first);
        std::transform(columns.ranges.begin(),
                       columns.ranges.begin() + static_cast<std::ptrdiff_t>(scaled.size()),
                       scaled.begin(),
                       [row](const SScaledAxis::SRange &range) { return row[range.last - 1]; });
        blendRow(pixels.row(visible.top + static_cast<std::int32_t>(y)) + visible.left,
                 isScaled ? scaled.data() : row + columns.ranges.front().first,
                 visible.right - visible.left, alpha, isTranslucent);
    }
}
