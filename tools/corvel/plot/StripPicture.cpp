#include "corvel/plot/StripPicture.h"

#include "corvel/console/Text.h"
#include "corvel/plot/CChart.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

namespace {

constexpr double width = 1200.0, height = 900.0, margin = 20.0;

constexpr SStroke leftStroke{EInk::Blue, 2.5, EDash::Solid};
constexpr SStroke rightStroke{EInk::Orange, 2.5, EDash::Dashed};
constexpr SStroke reference{EInk::Frame, 1.0, EDash::Dashed};

// The span of an axis that shows the values: at least from low to high, at most mostShown, and
// ending at steps
struct SSpan {
    double low, high;
};

SSpan spanOf(const BothSides<double> &sides, SSpan least) {
    constexpr double step = 6.0, mostShown = 60.0;
    auto [low, high] = least;
    for (const std::vector<double> &side : sides) {
        for (const double value : side) {
            if (!std::isfinite(value))
                continue;
            low = std::min(low, value);
            high = std::max(high, value);
        }
    }
    high = std::ceil(high / step) * step;
    return {std::max(std::floor(low / step) * step, high - mostShown), high};
}

bool isSilent(const std::vector<double> &values) {
    return std::none_of(values.begin(), values.end(),
                        [](double value) { return std::isfinite(value); });
}

std::vector<SPoint> pointsOf(const std::vector<double> &x, const std::vector<double> &y) {
    std::vector<SPoint> points;
    points.reserve(x.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        points.push_back({x[i], y[i]});
    return points;
}

void drawSides(CChart &chart, const std::vector<double> &x, const BothSides<double> &sides) {
    if (isSilent(sides[0]) && isSilent(sides[1])) {
        chart.note(CChart::ECorner::Middle, {"Nothing comes out"});
        return;
    }
    if (!differ(sides)) {
        chart.draw(SSeries{pointsOf(x, sides[0]), leftStroke, "left and right"});
        return;
    }
    const auto label = [&](const char *name, const std::vector<double> &values) {
        return std::string(name) + (isSilent(values) ? " (silent)" : "");
    };
    chart.draw(SSeries{pointsOf(x, sides[0]), leftStroke, label("left", sides[0])});
    chart.draw(SSeries{pointsOf(x, sides[1]), rightStroke, label("right", sides[1])});
}

std::string decibelText(double level) {
    return shortest(static_cast<float>(level)) + " dB";
}

std::string tailLevelText(double level) {
    return "tail " + decimal(std::abs(level), 1) + " dB " + (level > 0.0 ? "above" : "below") +
           " the sound";
}

std::string frequencyText(double frequency) {
    return frequency >= 1000.0 ? shortest(static_cast<float>(frequency / 1000.0)) + " kHz"
                               : shortest(static_cast<float>(frequency)) + " Hz";
}

std::string withArrows(std::string labels) {
    for (std::size_t comma = labels.find(", "); comma != std::string::npos;
         comma = labels.find(", ", comma))
        labels.replace(comma, 2, " → ");
    return labels;
}

// In smaller letters if it is long; the end is cut off where they could not be read any more.
void drawFitted(CCanvas &canvas, SPoint place, const std::string &text, double room) {
    constexpr double usual = 14.0, smallest = 11.0;
    SLettering lettering{EInk::Muted, usual};
    lettering.size = std::clamp(usual * room / canvas.textWidth(text, lettering), smallest, usual);
    canvas.text(place, canvas.shortened(text, room, lettering), lettering);
}

// @return the y coordinate below it.
double drawHead(CCanvas &canvas, const SMeasurement &measurement) {
    constexpr double room = width - 2.0 * margin, lineHeight = 20.0;
    const std::string version =
        measurement.effect + ", version " + std::to_string(measurement.version);
    const SLettering right{EInk::Muted, 14.0, false, EAlign::Right};
    canvas.text({width - margin, 40.0}, version, right);

    const SLettering large{EInk::Text, 22.0, true};
    const double versionWidth = canvas.textWidth(version, right) + 30.0;
    canvas.text({margin, 40.0}, canvas.shortened(measurement.program, room - versionWidth, large),
                large);
    double y = 64.0;
    if (!measurement.chain.empty()) {
        drawFitted(canvas, {margin, y}, "Chain: " + withArrows(measurement.chain), room);
        y += lineHeight;
    }
    if (!measurement.settings.empty()) {
        drawFitted(canvas, {margin, y}, "Set: " + measurement.settings, room);
        y += lineHeight;
    }
    return y - 8.0;
}

void drawResponse(CCanvas &canvas, const SRectangle &area, const SMeasurement &measurement) {
    const SResponse &response = measurement.response;
    const auto [low, high] = spanOf(response.gains, {-5.0, 5.0});
    CChart chart(canvas, area, "Frequency response", frequencyAxis(20.0, 20000.0),
                 decibelAxis("Gain", low, high, 10));
    chart.caption("pink noise at " + decibelText(measurement.options.level) +
                  " RMS in both inputs");
    chart.drawHorizontal(0.0, {EInk::Frame}, "");
    drawSides(chart, response.frequencies, response.gains);
}

void drawLevels(CCanvas &canvas, const SRectangle &area, const SMeasurement &measurement) {
    constexpr double lowest = -60.0;
    const SLevelCurve &levels = measurement.levels;
    const double top = spanOf(levels.out, {0.0, 0.0}).high;
    const std::string title =
        "Level of a " + frequencyText(measurement.options.tone) + " tone in both inputs";
    CChart chart(canvas, area, "Level", decibelAxis(title, lowest, 0.0, 10),
                 decibelAxis("Output level", lowest, top, 14));
    chart.draw(SSeries{{{lowest, lowest}, {0.0, 0.0}}, reference, "unchanged"});
    drawSides(chart, levels.in, levels.out);
}

double longestShown(const SDecay &decay) {
    constexpr double least = 0.2, spare = 1.1;
    if (decay.tail != ETail::Decays)
        return 1.0;
    return decay.secondsTo60 ? std::max(least, *decay.secondsTo60 * spare) : decay.seconds.back();
}

void drawDecay(CCanvas &canvas, const SRectangle &area, const SMeasurement &measurement) {
    const SDecay &decay = measurement.decay;
    CChart chart(canvas, area, "Decay", timeAxis(0.0, longestShown(decay), 8),
                 plainAxis("Energy still to come (dB)", -60.0, 0.0, 8));
    chart.caption("after pink noise at " + decibelText(measurement.options.level) + " RMS");
    std::string text = describeTail(decay);
    text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    if (decay.tail != ETail::Decays) {
        chart.note(CChart::ECorner::Middle, {text});
        return;
    }
    chart.draw(SSeries{pointsOf(decay.seconds, decay.energies), leftStroke});
    std::vector<std::string> lines = {text, tailLevelText(decay.tailLevel)};
    if (decay.secondsTo60)
        lines.push_back("-60 dB after " + decimal(*decay.secondsTo60, 2) + " s");
    if (decay.fit) {
        const auto &[from, to, start, reverberation] = *decay.fit;
        chart.draw(SSeries{{{0.0, start}, {reverberation, start - 60.0}},
                           reference,
                           "line from " + decibelText(from) + " to " + decibelText(to)});
    }
    chart.note(CChart::ECorner::TopRight, lines);
}

std::string describe(const SMeasurement &measurement) {
    return "Frequency response, level curve and decay. Chain: " + measurement.chain +
           ". Decay: " + describeTail(measurement.decay) + ".";
}

}  // namespace

std::string drawStrip(const SMeasurement &measurement, const SPictureOptions &options) {
    constexpr double middle = 490.0, bottom = height - 8.0, left = 540.0, gap = 4.0;
    CCanvas canvas(width, height, options);
    const double head = drawHead(canvas, measurement);
    drawResponse(canvas, {0.0, head, width, middle - gap - head}, measurement);
    drawLevels(canvas, {0.0, middle, left, bottom - middle}, measurement);
    drawDecay(canvas, {left, middle, width - left, bottom - middle}, measurement);
    return canvas.finish(measurement.effect + ": " + measurement.program, describe(measurement));
}

}  // namespace Tessitor::Tool
