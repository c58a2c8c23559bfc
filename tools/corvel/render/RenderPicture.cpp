#include "corvel/render/RenderPicture.h"

#include "corvel/console/Text.h"
#include "corvel/plot/CChart.h"
#include "corvel/render/LoudnessCurve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessitor::Tool {

namespace {

constexpr double pictureWidth = 1200.0, pictureHeight = 930.0;
constexpr double headHeight = 70.0, sideMargin = 64.0;
constexpr double waveformHeight = 130.0, loudnessHeight = 230.0, differenceHeight = 150.0;
constexpr double chartHead = 34.0, chartFoot = 50.0;  // of CChart
constexpr double gap = 10.0;  // below a chart whose times are those of the last chart
constexpr int timeTicks = 12;

struct SRange {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void add(const LoudnessCurve &curve) {
        for (const SPoint &point : curve) {
            if (!std::isnan(point.y)) {
                low = std::min(low, point.y);
                high = std::max(high, point.y);
            }
        }
    }
    bool isEmpty() const { return low > high; }
};

/// Places the charts below each other.
class CRows {
public:
    CRows(CCanvas &canvas, double seconds)
        : m_canvas(canvas), m_time(timeAxis(0.0, std::max(seconds, 0.001), timeTicks)) {}

    CChart next(double plotHeight, const std::string &title, SAxis y, bool isLast = false) {
        SAxis time = m_time;
        if (!isLast) {
            time.title.clear();
            for (STick &tick : time.ticks)
                tick.label.clear();
        }
        const SRectangle area{0.0, m_top, m_canvas.width(), chartHead + plotHeight + chartFoot};
        m_top += chartHead + plotHeight + gap;
        return {m_canvas, area, title, std::move(time), std::move(y)};
    }

private:
    CCanvas &m_canvas;
    SAxis m_time;
    double m_top = headHeight;
};

void drawHead(CCanvas &canvas, const SPictureText &text) {
    const SLettering title{EInk::Text, 19.0, true, EAlign::Left};
    const SLettering subtitle{EInk::Muted, 14.0, false, EAlign::Left};
    const double width = canvas.width() - 2.0 * sideMargin;
    canvas.text({sideMargin, 32.0}, canvas.shortened(text.title, width, title), title);
    canvas.text({sideMargin, 56.0}, canvas.shortened(text.subtitle, width, subtitle), subtitle);
}

// The smallest round number that is not below the peak. Below 0.01 its digits would be too many.
double fullHeight(double peak) {
    const double floored = std::max(peak, 0.01);
    const double power = std::pow(10.0, std::floor(std::log10(floored)));
    for (const double digit : {1.0, 2.0, 5.0})
        if (floored <= digit * power)
            return digit * power;
    return 10.0 * power;
}

double peakOf(const CWaveform &waveform) {
    double peak = 0.0;
    for (const CWaveform::SBin &bin : waveform.bins())
        peak = std::max({peak, -bin.lowest, bin.highest});
    return peak;
}

void addBin(SBand &band, double time, double low, double high) {
    band.low.push_back({time, low});
    band.high.push_back({time, high});
}

std::string peakText(const SPictureSide &side) {
    const double peak = side.meter.levels().peak();
    std::string text = peak > 0.0 ? "peak " + decimal(decibels(peak), 2) + " dBFS" : "silent";
    if (side.loudness && side.loudness->truePeak)
        text += ", true peak " + decimal(*side.loudness->truePeak, 2) + " dBTP";
    return text;
}

std::string rmsText(const SPictureSide &side) {
    const double rms = side.meter.levels().rms();
    return rms > 0.0 ? "RMS " + decimal(decibels(rms), 2) + " dBFS" : "";
}

void drawWaveform(CChart chart, const SPictureSide &side, EInk ink) {
    SBand peaks{{}, {}, ink, 0.4, peakText(side)};
    SBand rms{{}, {}, ink, 1.0, rmsText(side)};
    const CWaveform &waveform = side.meter.waveform();
    const double step = static_cast<double>(waveform.binFrames()) / side.meter.sampleRate();
    const auto add = [&](const CWaveform::SBin &bin, double time) {
        addBin(peaks, time, bin.lowest, bin.highest);
        addBin(rms, time, std::max(-bin.rms(), bin.lowest), std::min(bin.rms(), bin.highest));
    };
    double time = 0.0;
    for (const CWaveform::SBin &bin : waveform.bins()) {
        add(bin, time);
        time += step;
    }
    if (!waveform.bins().empty())
        add(waveform.bins().back(), side.meter.seconds());
    chart.draw(peaks);
    chart.draw(rms);
    for (const double fullScale : {-1.0, 1.0})
        chart.drawHorizontal(fullScale, {EInk::Frame, 1.0, EDash::Dashed}, "");
}

std::string integratedText(const std::string &name, const SPictureSide &side) {
    if (!side.loudness || !side.loudness->integrated)
        return name + ", no loudness";
    return name + ", " + decimal(*side.loudness->integrated, 2) + " LUFS integrated";
}

void drawLoudness(CRows &rows, const LoudnessCurve &before, const LoudnessCurve &after,
                  const SPictureSide &sideBefore, const SPictureSide &sideAfter) {
    SRange range;
    range.add(before);
    range.add(after);
    const bool isEmpty = range.isEmpty();
    if (isEmpty)
        range = {-39.0, -11.0};
    const double high = 5.0 * std::ceil((range.high + 1.0) / 5.0);
    const double low = std::max(high - 60.0, 5.0 * std::floor((range.low - 1.0) / 5.0));
    CChart chart = rows.next(loudnessHeight, "Short-term loudness",
                             plainAxis("Last 3 s (LUFS)", std::min(low, high - 10.0), high, 6));
    chart.draw(SSeries{before, {EInk::Blue, 2.0}, integratedText("before", sideBefore)});
    chart.draw(SSeries{after, {EInk::Orange, 2.0}, integratedText("after", sideAfter)});
    if (isEmpty)
        chart.note(CChart::ECorner::Middle, {"no loudness: silent or shorter than 0.4 s"});
}

void drawDifference(CRows &rows, const LoudnessCurve &curve) {
    constexpr double most = 30.0;  // LU; more where one of the sides is nearly silent
    SRange range{-3.0, 3.0};
    range.add(curve);
    CChart chart = rows.next(differenceHeight, "Difference",
                             plainAxis("Louder by (LU)", std::max(-most, std::floor(range.low)),
                                       std::min(most, std::ceil(range.high)), 6),
                             true);
    chart.drawHorizontal(0.0, {EInk::Frame}, "");
    chart.draw(SSeries{curve, {EInk::Green, 2.0}, "after minus before"});
}

}  // namespace

std::string drawRender(const SPictureSide &before, const SPictureSide &after,
                       const SPictureText &text, const SPictureOptions &options) {
    CCanvas canvas(pictureWidth, pictureHeight, options);
    drawHead(canvas, text);
    CRows rows(canvas, std::max(before.meter.seconds(), after.meter.seconds()));
    const double top =
        fullHeight(std::max(peakOf(before.meter.waveform()), peakOf(after.meter.waveform())));
    const SAxis amplitude = plainAxis("Amplitude", -top, top, 4);
    drawWaveform(rows.next(waveformHeight, "Before", amplitude), before, EInk::Blue);
    drawWaveform(rows.next(waveformHeight, "After", amplitude), after, EInk::Orange);

    const std::size_t together =
        valuesPerPoint(std::max(before.meter.shortTerm().size(), after.meter.shortTerm().size()));
    const LoudnessCurve curveBefore = loudnessCurve(before.meter.shortTerm(), together);
    const LoudnessCurve curveAfter = loudnessCurve(after.meter.shortTerm(), together);
    drawLoudness(rows, curveBefore, curveAfter, before, after);
    drawDifference(rows, difference(curveBefore, curveAfter));
    return canvas.finish(text.title, text.subtitle + ": waveform and loudness before and after");
}

}  // namespace Tessitor::Tool
