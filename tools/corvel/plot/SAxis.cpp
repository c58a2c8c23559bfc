#include "corvel/plot/SAxis.h"

#include "corvel/console/Text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>

namespace Tessitor::Tool {

namespace {

using Label = std::function<std::string(double value)>;

// @param steps  in rising order.
double stepFor(double span, int maxTicks, std::span<const double> steps) {
    for (const double step : steps)
        if (span / step <= maxTicks)
            return step;
    return steps.back();
}

// 1, 2 or 5 times a power of ten
double roundStep(double span, int maxTicks) {
    const double rough = span / maxTicks;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= rough)
            return factor * power;
    return 10.0 * power;
}

std::vector<STick> ticksEvery(double step, double low, double high, const Label &label) {
    constexpr double tolerance = 1e-6;  // of a step
    std::vector<STick> ticks;
    const auto first = std::llround(std::ceil(low / step - tolerance));
    const auto last = std::llround(std::floor(high / step + tolerance));
    for (long long number = first; number <= last; ++number) {
        const double value = static_cast<double>(number) * step;
        ticks.push_back({value, label(value)});
    }
    return ticks;
}

// As many decimals as the step needs
Label numbersWith(double step) {
    const int places = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-6)));
    return [places](double value) { return decimal(value, places); };
}

std::string twoDigits(long long number) {
    return std::string(number < 10 ? 1 : 0, '0') + std::to_string(number);
}

std::string minutesText(double seconds) {
    const long long whole = std::llround(seconds);
    return std::to_string(whole / 60) + ":" + twoDigits(whole % 60);
}

std::string hoursText(double seconds) {
    const long long whole = std::llround(seconds);
    return std::to_string(whole / 3600) + ":" + twoDigits(whole / 60 % 60) + ":" +
           twoDigits(whole % 60);
}

bool isLabelled(int digit) {
    return digit == 1 || digit == 2 || digit == 5;
}

std::string frequencyLabel(double frequency) {
    return frequency >= 1000.0 ? decimal(frequency / 1000.0, 0) + "k" : decimal(frequency, 0);
}

}  // namespace

double SAxis::position(double value) const {
    const double exact = scale == EScale::Linear
                             ? (value - low) / (high - low)
                             : (value > 0.0 ? std::log(value / low) / std::log(high / low) : -1.0);
    return std::isnan(value) ? value : std::clamp(exact, -1.0, 2.0);
}

SAxis frequencyAxis(double low, double high) {
    SAxis axis{"Frequency (Hz)", low, high, EScale::Logarithmic, {}};
    const int lastPower = static_cast<int>(std::floor(std::log10(high)));
    for (int power = static_cast<int>(std::floor(std::log10(low))); power <= lastPower; ++power) {
        for (int digit = 1; digit < 10; ++digit) {
            const double value = digit * std::pow(10.0, power);
            if (value >= low && value <= high)
                axis.ticks.push_back({value, isLabelled(digit) ? frequencyLabel(value) : ""});
        }
    }
    return axis;
}

SAxis decibelAxis(const std::string &title, double low, double high, int maxTicks) {
    // Six decibels are a factor of two.
    static constexpr double steps[] = {0.1, 0.2, 0.5, 1.0, 2.0, 3.0, 6.0, 12.0, 24.0, 48.0};
    const double step = stepFor(high - low, maxTicks, steps);
    return {title + " (dB)", low, high, EScale::Linear,
            ticksEvery(step, low, high, numbersWith(step))};
}

SAxis timeAxis(double low, double high, int maxTicks) {
    static constexpr double steps[] = {1.0,   2.0,    5.0,    10.0,   15.0,    30.0,    60.0,
                                       120.0, 300.0,  600.0,  900.0,  1800.0,  3600.0,  7200.0,
                                       14400, 28800., 43200., 86400., 172800., 604800., 2419200.};
    constexpr double minute = 60.0, hour = 3600.0;
    SAxis axis{"", low, high, EScale::Linear, {}};
    if (high < 1.0) {
        const double step = roundStep((high - low) * 1000.0, maxTicks) / 1000.0;
        axis.title = "Time (ms)";
        axis.ticks = ticksEvery(step, low, high, [inMs = numbersWith(step * 1000.0)](double value) {
            return inMs(value * 1000.0);
        });
    } else if (high < 2.0 * minute) {
        const double step = roundStep(high - low, maxTicks);
        axis.title = "Time (s)";
        axis.ticks = ticksEvery(step, low, high, numbersWith(step));
    } else {
        const double step = stepFor(high - low, maxTicks, steps);
        const bool isLong = high >= hour;
        axis.title = isLong ? "Time (h:min:s)" : "Time (min:s)";
        axis.ticks = ticksEvery(step, low, high, isLong ? hoursText : minutesText);
    }
    return axis;
}

SAxis plainAxis(const std::string &title, double low, double high, int maxTicks) {
    const double step = roundStep(high - low, maxTicks);
    return {title, low, high, EScale::Linear, ticksEvery(step, low, high, numbersWith(step))};
}

}  // namespace Tessitor::Tool
