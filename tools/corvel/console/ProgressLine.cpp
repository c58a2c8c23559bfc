#include "corvel/console/ProgressLine.h"

#include "corvel/console/Columns.h"
#include "corvel/console/Printable.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Tessitor::Tool {

namespace {

constexpr std::size_t gap = 2;

std::string aligned(std::int64_t number, std::size_t width, char filler) {
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), filler) + text;
}

std::string describeTimeLeft(double seconds) {
    constexpr std::int64_t minute = 60, hour = 60 * minute, longest = 1000 * hour;
    const std::int64_t whole = std::llround(std::min(seconds, double(longest)));
    if (whole >= longest)
        return "";
    std::string text;
    if (whole >= hour)
        text = std::to_string(whole / hour) + ":" + aligned(whole / minute % minute, 2, '0');
    else
        text = std::to_string(whole / minute);
    return text.append(":").append(aligned(whole % minute, 2, '0')).append(" left");
}

std::string bar(double share, std::size_t width) {
    const auto filled = static_cast<std::size_t>(share * static_cast<double>(width));
    std::string text = "[";
    return text.append(filled, '#').append(width - filled, '-').append("] ");
}

}  // namespace

std::string progressLine(const SProgress &progress, std::size_t columns) {
    const double share = std::clamp(progress.share, 0.0, 1.0);
    std::string text = aligned(static_cast<std::int64_t>(share * 100.0), 3, ' ') + "%";
    if (text.size() > columns)
        return "";
    const auto addIfItFits = [&](const std::string &part) {
        if (!part.empty() && text.size() + gap + part.size() <= columns)
            text += std::string(gap, ' ') + part;
    };
    if (progress.jobs > 1)
        addIfItFits(std::to_string(progress.done) + " of " + std::to_string(progress.jobs));
    if (progress.secondsLeft)
        addIfItFits(describeTimeLeft(*progress.secondsLeft));

    // The bar gets half of the room that remains, so that it keeps its width from name to name.
    constexpr std::size_t frame = 3, shortestBar = 5, longestBar = 40, shortestName = 8;
    const std::size_t half = (columns - text.size()) / 2;
    if (half >= frame + shortestBar)
        text.insert(0, bar(share, std::min(half - frame, longestBar)));
    const std::size_t room = columns - text.size();
    if (!progress.name.empty() && room >= gap + shortestName)
        text += std::string(gap, ' ') + endWithin(printable(progress.name), room - gap);
    return text;
}

}  // namespace Tessitor::Tool
