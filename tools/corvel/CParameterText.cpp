#include "corvel/CParameterText.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "corvel/Errors.h"

namespace Tessitor::Tool {

namespace {

// Fine enough to meet every text that is not a number, and to part the branches of a law.
constexpr int gridSteps = 1024;

constexpr double infinity = std::numeric_limits<double>::infinity();

std::string smallAndTight(std::string_view text) {
    std::string result;
    for (const char letter : text)
        if (std::isspace(static_cast<unsigned char>(letter)) == 0)
            result += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return result;
}

bool beginsNumber(std::string_view text) {
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    return text.size() > sign &&
           (std::isdigit(static_cast<unsigned char>(text[sign])) != 0 || text[sign] == '.');
}

std::string quoted(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

}  // namespace

CParameterText::CParameterText(std::string unit, Display display)
    : m_unit(std::move(unit)), m_display(std::move(display)), m_unitAsRead(smallAndTight(m_unit)) {
    m_grid.reserve(gridSteps + 1);
    for (int step = 0; step <= gridSteps; ++step)
        m_grid.push_back(pointAt(static_cast<float>(step) / gridSteps));
}

CParameterText::SReading CParameterText::take(std::string_view text) {
    SReading reading{std::nullopt, smallAndTight(text)};
    std::string_view letters = reading.rest;
    if (letters.starts_with('+'))
        letters.remove_prefix(1);
    for (const char *silence : {"-oo", "-inf"})
        if (letters.starts_with(silence))
            return {-infinity, std::string(letters.substr(std::string_view(silence).size()))};
    if (!beginsNumber(letters))
        return reading;
    double number = 0.0;
    const auto [end, error] =
        std::from_chars(letters.data(), letters.data() + letters.size(), number);
    if (error != std::errc())
        return reading;
    return {number, std::string(end, letters.data() + letters.size())};
}

CParameterText::SPoint CParameterText::pointAt(float value) const {
    return {value, take(m_display(value))};
}

float CParameterText::valueOf(std::string_view text) const {
    SReading asked = take(text);
    if (asked.number && !m_unit.empty() && asked.rest == m_unitAsRead) {
        asked.rest.clear();
    } else if (asked.number && asked.rest.empty() && std::isfinite(*asked.number)) {
        if (*asked.number >= 0.0 && *asked.number <= 1.0)
            return static_cast<float>(*asked.number);
        if (!m_unit.empty())
            throw CCallError(quoted(text) + " is not from 0 to 1 and has no unit, as " +
                             quoted(std::string(text) + m_unit) + " has");
    }

    std::vector<SPoint> showing;
    std::vector<SPoint> beside;
    for (std::size_t step = 0; step <= gridSteps; ++step) {
        if (m_grid[step].shown == asked)
            showing.push_back(m_grid[step]);
        if (step == gridSteps || !between(m_grid[step], m_grid[step + 1], asked))
            continue;
        const auto [low, high] = narrow(m_grid[step], m_grid[step + 1], asked);
        if (low.shown == asked)
            showing.push_back(low);
        else if (std::isfinite(*low.shown.number) && std::isfinite(*high.shown.number))
            beside.insert(beside.end(), {low, high});
    }

    if (showing.empty()) {
        if (beside.empty())
            refuse(text);
        const auto distance = [&](const SPoint &point) {
            return std::abs(*point.shown.number - *asked.number);
        };
        showing.push_back(
            *std::min_element(beside.begin(), beside.end(), [&](const SPoint &a, const SPoint &b) {
                return distance(a) < distance(b);
            }));
    }

    // A law that repeats itself: where the text is shown longest, the knob is least delicate.
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

bool CParameterText::between(const SPoint &low, const SPoint &high, const SReading &asked) {
    const auto comparable = [&](const SReading &shown) {
        return asked.number && shown.number && shown.rest == asked.rest && shown != asked;
    };
    return comparable(low.shown) && comparable(high.shown) &&
           (*low.shown.number < *asked.number) != (*high.shown.number < *asked.number);
}

/// @return twice a point that shows what is asked, or the two nearest points around it.
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
    // From a value that shows the text towards one that does not: the last that does.
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
    // The ends are what a switch is set to, the middle what a knob rests at.
    for (const float plain : {0.0f, 1.0f, 0.5f})
        if (plain >= span.first && plain <= span.last && pointAt(plain).shown == within.shown)
            return plain;
    const float middle = span.first + (span.last - span.first) / 2.0f;
    return pointAt(middle).shown == within.shown ? middle : within.value;
}

void CParameterText::refuse(std::string_view text) const {
    std::vector<std::string> texts;
    for (const SPoint &point : m_grid) {
        std::string shown = m_display(point.value);
        if (std::find(texts.begin(), texts.end(), shown) == texts.end())
            texts.push_back(std::move(shown));
    }
    constexpr std::size_t fewEnoughToList = 8;
    std::string reason = quoted(text) + " is not shown; it shows ";
    if (texts.size() <= fewEnoughToList) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            reason += (i == 0 ? "" : i + 1 == texts.size() ? " and " : ", ") + quoted(texts[i]);
    } else {
        reason += quoted(texts.front() + m_unit) + " to " + quoted(texts.back() + m_unit);
    }
    throw CCallError(reason);
}

}  // namespace Tessitor::Tool
