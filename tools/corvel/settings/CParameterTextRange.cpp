#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/settings/CParameterText.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

/// @return true for ratios: "1.0:1" to "8.0:1".
bool CParameterText::hasFixedSecond() const {
    const auto &first = m_grid.front().shown.second;
    return first && std::all_of(m_grid.begin(), m_grid.end(),
                                [&](const SPoint &point) { return point.shown.second == first; });
}

/// @return the points with the lowest and the highest number, without silence.
std::pair<CParameterText::SPoint, CParameterText::SPoint> CParameterText::ends() const {
    const auto isSilent = [](const SPoint &point) { return !std::isfinite(*point.shown.number); };
    const auto isLower = [](const SPoint &a, const SPoint &b) {
        return *a.shown.number < *b.shown.number;
    };
    std::vector<SPoint> points = m_grid;
    // The grid may miss the quietest sound, beside silence.
    for (std::size_t step = 0; step + 1 < m_grid.size(); ++step) {
        float silent = m_grid[step].value, sounding = m_grid[step + 1].value;
        if (!isSilent(m_grid[step]) || isSilent(m_grid[step + 1]))
            continue;
        for (;;) {
            const float middle = silent + (sounding - silent) / 2.0f;
            if (middle == silent || middle == sounding)
                break;
            (isSilent(pointAt(middle)) ? silent : sounding) = middle;
        }
        points.push_back(pointAt(sounding));
    }
    std::erase_if(points, isSilent);
    const auto [low, high] = std::minmax_element(points.begin(), points.end(), isLower);
    return {*low, *high};
}

std::vector<std::string> CParameterText::texts() const {
    std::vector<std::string> result;
    for (const SPoint &point : m_grid) {
        std::string text = m_display(point.value);
        if (std::find(result.begin(), result.end(), text) == result.end())
            result.push_back(std::move(text));
    }
    return result;
}

std::vector<std::string> CParameterText::choices() const {
    const auto hasNumber = [](const SPoint &point) { return point.shown.number.has_value(); };
    const auto isFinite = [](const SPoint &point) { return std::isfinite(*point.shown.number); };
    const bool areNumbers = std::all_of(m_grid.begin(), m_grid.end(), hasNumber) &&
                            std::any_of(m_grid.begin(), m_grid.end(), isFinite);
    return areNumbers ? std::vector<std::string>() : texts();
}

std::string CParameterText::withUnit(const std::string &text) const {
    return m_unit.empty() ? text : text + " " + m_unit;
}

bool CParameterText::isChoice() const {
    return std::none_of(m_grid.begin(), m_grid.end(),
                        [](const SPoint &point) { return point.shown.number.has_value(); });
}

std::string CParameterText::range() const {
    const auto isFinite = [](const SPoint &point) { return std::isfinite(*point.shown.number); };
    if (const std::vector<std::string> list = choices(); !list.empty()) {
        std::string text;
        for (const std::string &choice : list)
            text += (text.empty() ? "" : ", ") + choice;
        return text;
    }
    if (m_grid.front().shown.second && !hasFixedSecond())
        return m_display(0.0f) + " to " + m_display(1.0f);
    const auto [low, high] = ends();
    const bool allFinite = std::all_of(m_grid.begin(), m_grid.end(), isFinite);
    return withUnit(m_display(low.value) + " to " + m_display(high.value)) +
           (allFinite ? "" : " or -oo");
}

void CParameterText::refuse(std::string_view text, const SReading &asked) const {
    if (isComparable(m_grid.back().shown, asked) &&
        (!asked.second || (hasFixedSecond() && asked.second == m_grid.back().shown.second)))
        throw CCallError(std::string(trimmed(text)) + " is outside " + range());
    throw CCallError(inQuotes(text) + " is not possible; the effect shows " +
                     (range().empty() ? "nothing" : range()));
}

}  // namespace Tessitor::Tool
