#include "corvel/settings/CParameterText.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessitor::Tool {

namespace {

// Fine enough to find every text that is not a number, and to separate the branches of a law. The
// grid contains the exact tenths and hundredths: some pairs, such as "30:70", are only displayed at
// one of these.
constexpr int gridSteps = 1000;

bool isNormalised(double number) {
    return number >= 0.0 && number <= 1.0;
}

float normalisedOf(std::string_view text) {
    const SReading asked = readingOf(text);
    if (!asked.number || asked.second || !asked.rest.empty() || !isNormalised(*asked.number))
        throw CCallError(inQuotes("@" + std::string(text)) +
                         " is not a number from 0 to 1 after @");
    return static_cast<float>(*asked.number);
}

}  // namespace

CParameterText::CParameterText(std::string unit, Display display)
    : m_unit(std::move(unit)), m_display(std::move(display)) {
    m_grid.reserve(gridSteps + 1);
    for (int step = 0; step <= gridSteps; ++step)
        m_grid.push_back(pointAt(static_cast<float>(step) / gridSteps));
}

CParameterText::SPoint CParameterText::pointAt(float value) const {
    return {value, readingOf(m_display(value))};
}

bool CParameterText::isPlain(const SReading &asked) {
    return asked.number && !asked.second && asked.rest.empty() && std::isfinite(*asked.number);
}

float CParameterText::valueOf(std::string_view text) const {
    if (trimmed(text).starts_with('@'))
        return normalisedOf(trimmed(text).substr(1));
    SReading asked = readingOf(text);
    if (const auto converted = inUnit(asked, m_unit)) {
        asked = *converted;
    } else if (isPlain(asked)) {
        if (isNormalised(*asked.number))
            return static_cast<float>(*asked.number);
        if (!m_unit.empty()) {
            throw CCallError(inQuotes(text) + " needs a unit, as in " +
                             inQuotes(std::string(text) + m_unit) +
                             "; without one, a value is from 0 to 1");
        }
    }

    std::vector<SPoint> showing = pointsShowing(asked);
    if (showing.empty()) {
        const std::vector<SPoint> beside = pointsBeside(asked);
        if (beside.empty())
            refuse(text, asked);
        showing.push_back(
            *std::min_element(beside.begin(), beside.end(), [&](const SPoint &a, const SPoint &b) {
                return distance(a.shown, asked) < distance(b.shown, asked);
            }));
    }

    // If a law repeats itself, take the widest range of values: there the knob is least sensitive.
    SPoint within = showing.front();
    SSpan widest = spanAround(within);
    for (const SPoint &point : showing) {
        if (point.value >= widest.first && point.value <= widest.last)
            continue;
        const SSpan span = spanAround(point);
        if (span.last - span.first > widest.last - widest.first) {
            widest = span;
            within = point;
        }
    }
    return valueIn(widest, within);
}

/// @return at least one point of each range of values that the effect displays as asked.
std::vector<CParameterText::SPoint> CParameterText::pointsShowing(const SReading &asked) const {
    std::vector<SPoint> points;
    for (std::size_t step = 0; step <= gridSteps; ++step) {
        if (m_grid[step].shown == asked)
            points.push_back(m_grid[step]);
        if (step == gridSteps || !between(m_grid[step], m_grid[step + 1], asked))
            continue;
        const SPoint nearest = narrow(m_grid[step], m_grid[step + 1], asked).first;
        if (nearest.shown == asked)
            points.push_back(nearest);
    }
    return points;
}

/// @return the points nearest to what is asked. Used if no value is displayed as asked.
std::vector<CParameterText::SPoint> CParameterText::pointsBeside(const SReading &asked) const {
    constexpr double oneDigit = 1.0;  // both numbers of a pair are truncated and may not add up
    const bool fixedSecond = hasFixedSecond();
    std::vector<SPoint> points;
    for (std::size_t step = 0; step <= gridSteps; ++step) {
        const SPoint &point = m_grid[step];
        if (asked.second && !fixedSecond && isComparable(point.shown, asked) &&
            distance(point.shown, asked) <= oneDigit)
            points.push_back(point);
        if (step == gridSteps || !between(point, m_grid[step + 1], asked))
            continue;
        const auto [low, high] = narrow(point, m_grid[step + 1], asked);
        // "-oo" is not near any number.
        if (std::isfinite(*low.shown.number) && std::isfinite(*high.shown.number))
            points.insert(points.end(), {low, high});
    }
    return points;
}

bool CParameterText::isComparable(const SReading &shown, const SReading &asked) {
    return shown.number && asked.number && shown.second.has_value() == asked.second.has_value() &&
           shown.rest == asked.rest;
}

double CParameterText::distance(const SReading &shown, const SReading &asked) {
    const double first = std::abs(*shown.number - *asked.number);
    return asked.second ? first + std::abs(*shown.second - *asked.second) : first;
}

/// @return true if a continuous law would display what is asked somewhere between the two.
bool CParameterText::between(const SPoint &low, const SPoint &high, const SReading &asked) {
    const auto isUsable = [&](const SReading &shown) {
        return isComparable(shown, asked) && shown.second == asked.second && shown != asked;
    };
    return isUsable(low.shown) && isUsable(high.shown) &&
           (*low.shown.number < *asked.number) != (*high.shown.number < *asked.number);
}

/// Bisects between two points for one that is displayed as asked.
/// @return that point twice; if there is none, the nearest points on both sides.
std::pair<CParameterText::SPoint, CParameterText::SPoint>
CParameterText::narrow(SPoint low, SPoint high, const SReading &asked) const {
    for (;;) {
        const SPoint middle = pointAt(low.value + (high.value - low.value) / 2.0f);
        if (middle.shown == asked)
            return {middle, middle};
        if (middle.value == low.value || middle.value == high.value)
            return {low, high};
        if (between(low, middle, asked))
            high = middle;
        else if (between(middle, high, asked))
            low = middle;
        else
            return {low, high};
    }
}

CParameterText::SSpan CParameterText::spanAround(const SPoint &point) const {
    // Bisects for the last value that is displayed like the point.
    const auto edge = [&](float inside, float outside) {
        for (;;) {
            const float middle = inside + (outside - inside) / 2.0f;
            if (middle == inside || middle == outside)
                return inside;
            (pointAt(middle).shown == point.shown ? inside : outside) = middle;
        }
    };
    const auto above = std::find_if(m_grid.begin(), m_grid.end(), [&](const SPoint &other) {
        return other.value > point.value && other.shown != point.shown;
    });
    const auto below = std::find_if(m_grid.rbegin(), m_grid.rend(), [&](const SPoint &other) {
        return other.value < point.value && other.shown != point.shown;
    });
    return {below == m_grid.rend() ? 0.0f : edge(point.value, below->value),
            above == m_grid.end() ? 1.0f : edge(point.value, above->value)};
}

float CParameterText::valueIn(const SSpan &span, const SPoint &within) const {
    // A switch is set to an end of its range, and many knobs are neutral in the middle.
    for (const float plain : {0.0f, 1.0f, 0.5f})
        if (plain >= span.first && plain <= span.last && pointAt(plain).shown == within.shown)
            return plain;
    const float middle = span.first + (span.last - span.first) / 2.0f;
    return pointAt(middle).shown == within.shown ? middle : within.value;
}

std::string CParameterText::otherMeaningOf(std::string_view text) const {
    const SReading asked = readingOf(text);
    if (!isPlain(asked) || !isNormalised(*asked.number))
        return "";
    const auto value = static_cast<float>(*asked.number);
    const bool isDisplayed = !pointsShowing(asked).empty() || !pointsBeside(asked).empty();
    if (!isDisplayed || readingOf(m_display(value)) == asked)
        return "";
    return withUnit(std::string(trimmed(text)));
}

}  // namespace Tessitor::Tool
