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

/// One axis of a scaled picture. Sizes and positions are those of normalised rectangles.
struct SScaling {
    std::int64_t to, toSize;      // where it goes to, and how large it gets there
    std::int64_t from, fromSize;  // where it comes from
    bool isMirrored;

    SScaling(std::int64_t toStart, std::int64_t toEnd, std::int64_t fromStart, std::int64_t fromEnd)
        : to(std::min(toStart, toEnd)), toSize(std::max(toStart, toEnd) - to),
          from(std::min(fromStart, fromEnd)), fromSize(std::max(fromStart, fromEnd) - from),
          isMirrored((toEnd < toStart) != (fromEnd < fromStart)) {}

    /// @param clipFirst  the visible pixels end before clipLast.
    /// @param size       of the source; ranges are cut at it.
    SScaledAxis visible(std::int32_t clipFirst, std::int32_t clipLast, std::int32_t size) const {
        const std::int64_t first = std::max<std::int64_t>(to, clipFirst);
        const std::int64_t last = std::min<std::int64_t>(to + toSize, clipLast);
        SScaledAxis axis{static_cast<std::int32_t>(first), {}};
        for (std::int64_t position = first; position < last; ++position) {
            const std::int64_t i = isMirrored ? to + toSize - 1 - position : position - to;
            const std::int64_t begin = from + start(i);
            const std::int64_t end = std::max(from + start(i + 1), begin + 1);
            axis.ranges.push_back({bounded(begin, size), bounded(end, size)});
        }
        return axis;
    }

private:
    /// The first pixel of the source that belongs to the i-th one.
    std::int64_t start(std::int64_t i) const {
        const Wide product = Wide{i} * fromSize;
        return static_cast<std::int64_t>((toSize < fromSize ? product + toSize - 1 : product) /
                                         toSize);
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

void blendRow(std::uint32_t *under, const std::uint32_t *over, std::int32_t count,
              std::uint8_t alpha, bool isTranslucent) {
    if (!isTranslucent) {
        for (std::int32_t i = 0; i < count; ++i)
            under[i] = mixedPixel(over[i] | opaque, under[i], alpha);
    } else if (alpha == 255) {
        for (std::int32_t i = 0; i < count; ++i)
            under[i] = blendedPixel(over[i], under[i]);
    } else {
        for (std::int32_t i = 0; i < count; ++i)
            under[i] = blendedPixel(scaledPixel(over[i], alpha), under[i]);
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
    const SNativeRect &clip = pixels.clip;
    const SScaledAxis columns = SScaling(to.left, to.right, from.left, from.right)
                                    .visible(clip.left, clip.right, source.width);
    const SScaledAxis rows = SScaling(to.top, to.bottom, from.top, from.bottom)
                                 .visible(clip.top, clip.bottom, source.height);
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
    const std::int32_t count = visible.right - visible.left;
    const bool isScaled = to.width() != from.width();
    std::vector<std::uint32_t> scaled(isScaled ? static_cast<std::size_t>(count) : 0);
    for (std::int32_t y = visible.top; y < visible.bottom; ++y) {
        const std::uint32_t *row =
            source.row(from.top + (y - to.top) * from.height() / to.height());
        const std::uint32_t *over = row + from.left + (visible.left - to.left);
        if (isScaled) {
            for (std::int32_t i = 0; i < count; ++i)
                scaled[static_cast<std::size_t>(i)] =
                    row[from.left + (visible.left + i - to.left) * from.width() / to.width()];
            over = scaled.data();
        }
        blendRow(pixels.row(y) + visible.left, over, count, alpha, isTranslucent);
    }
}
