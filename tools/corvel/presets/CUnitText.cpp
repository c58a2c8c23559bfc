#include "corvel/presets/CUnitText.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/presets/Encoding.h"
#include "dspclasses/parameters/ParameterTable.h"
#include "dspclasses/parameters/ParameterTexts.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <charconv>
#include <cmath>
#include <iterator>

namespace Tessitor::Tool {

namespace {

namespace Texts = ParameterTexts;

/// A display that consists of one number and perhaps something after it: how the number is
/// calculated from the module's value.
struct SNumberText {
    std::string (*text)(float g);
    double (*number)(double g);
    const char *after;
};

double itself(double g) {
    return g;
}

double inPercent(double g) {
    return 100.0 * g;
}

double reversedPercent(double g) {
    return 100.0 - 100.0 * g;
}

double inDecibels(double g) {
    return 20.0 * std::log10(g);
}

constexpr SNumberText numberTexts[] = {
    {Texts::whole, itself, ""},
    {Texts::twoDecimals, itself, ""},
    {Texts::decibels, itself, ""},
    {Texts::roomSize, itself, ""},
    {Texts::ratio, itself, ":1"},
    {Texts::percent, inPercent, ""},
    {Texts::deEsserSpeed, reversedPercent, ""},
    {Texts::level, inDecibels, ""},
};

// Nine significant digits tell any two floats apart; small ones have zeros in front.
constexpr int mostDigits = 12;

const SParameter &parameterOf(int id) {
    return parameterTable[static_cast<std::size_t>(id)];
}

bool isOnlyNumber(std::string_view text) {
    std::string tight;
    std::copy_if(text.begin(), text.end(), std::back_inserter(tight),
                 [](unsigned char letter) { return std::isspace(letter) == 0; });
    const char *const last = tight.data() + tight.size();
    double number = 0.0;
    const auto result =
        std::from_chars(tight.data() + (tight.starts_with('+') ? 1 : 0), last, number);
    return result.ptr == last && !tight.empty();
}

int decimalsIn(std::string_view text) {
    const std::size_t point = text.find_first_of(".,");
    if (point == std::string_view::npos)
        return 0;
    const std::size_t end = std::min(text.find_first_not_of("0123456789", point + 1), text.size());
    return static_cast<int>(end - point - 1);
}

bool isSame(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

/// @return the number with that many digits after the point that is closest.
float rounded(float value, int digits) {
    const std::string text = decimal(static_cast<double>(value), digits);
    float result = 0.0f;
    std::from_chars(text.data(), text.data() + text.size(), result);
    return result;
}

float withOneDigitLess(float value) {
    int digits = 0;
    while (digits < mostDigits && rounded(value, digits) != value)
        ++digits;
    return rounded(value, std::max(digits - 1, 0));
}

}  // namespace

std::string parameterDisplay(int id, float value) {
    const SParameter &parameter = parameterOf(id);
    float inUnit = parameter.law(value);
    if (id == kDlyTime)
        inUnit = std::trunc(inUnit);  // the delay is set to whole milliseconds
    std::string text = parameter.text(inUnit);
    return text == "-0.00" ? "0.00" : text;
}

CUnitText::CUnitText(int id) : m_id(id) {
    const std::string middle = parameterDisplay(id, 0.5f);
    m_ownDecimals = decimalsIn(middle);
    m_isBareNumber = *parameterOf(id).unit == '\0' && isOnlyNumber(middle);
}

std::string CUnitText::inUnit(const std::string &text) const {
    const std::string unit = parameterOf(m_id).unit;
    return unit.empty() ? text : text + " " + unit;
}

std::string CUnitText::display(float value) const {
    return inUnit(parameterDisplay(m_id, value));
}

std::string CUnitText::finerDisplay(float value, int decimals) const {
    const SParameter &parameter = parameterOf(m_id);
    std::string own = parameterDisplay(m_id, value);
    const auto *const found =
        std::find_if(std::begin(numberTexts), std::end(numberTexts),
                     [&](const SNumberText &kind) { return kind.text == parameter.text; });
    if (decimals <= decimalsIn(own) || own == "-oo" || found == std::end(numberTexts))
        return own;
    return decimal(found->number(static_cast<double>(parameter.law(value))), decimals) +
           found->after;
}

const CParameterText &CUnitText::reader(int decimals) const {
    const int place = std::max(decimals, m_ownDecimals);
    std::unique_ptr<CParameterText> &slot = m_readers[static_cast<std::size_t>(place)];
    if (slot == nullptr) {
        // Without a unit, it would take a bare number for the normalised value.
        slot = std::make_unique<CParameterText>(
            m_isBareNumber ? "%" : parameterOf(m_id).unit,
            [this, place](float value) { return finerDisplay(value, place); });
    }
    return *slot;
}

float CUnitText::valueOf(std::string_view text) const {
    std::string asked(text);
    if (isOnlyNumber(text)) {
        if (!m_isBareNumber)
            throw CCallError(shortQuote(asked) + " is only a number; expected a text like " +
                             shortQuote(display(0.5f)));
        asked += "%";
    }
    const int decimals = std::min(decimalsIn(text), mostDecimals);
    return simplestLike(reader(decimals).valueOf(asked), decimals);
}

float CUnitText::simplestLike(float value, int decimals) const {
    const std::string shown = finerDisplay(value, decimals);
    for (int digits = 0; digits < mostDigits; ++digits) {
        const float simple = rounded(value, digits);
        if (finerDisplay(simple, decimals) == shown)
            return simple;
    }
    return value;
}

std::optional<std::string> CUnitText::exactText(float value) const {
    const float shorter = withOneDigitLess(value);
    std::string previous;
    for (int decimals = m_ownDecimals; decimals <= mostDecimals; ++decimals) {
        const std::string shown = finerDisplay(value, decimals);
        if (shown == previous)
            continue;
        previous = shown;
        // A quick test that saves most of the readings: valueOf() would prefer the shorter value.
        if (shorter != value && finerDisplay(shorter, decimals) == shown)
            continue;
        std::string text = inUnit(shown);
        if (isSame(valueOf(text), value))
            return text;
    }
    return std::nullopt;
}

}  // namespace Tessitor::Tool
