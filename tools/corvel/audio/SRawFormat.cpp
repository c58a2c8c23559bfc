#include "corvel/audio/SRawFormat.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <charconv>
#include <sndfile.h>

namespace Tessitor::Tool {

namespace {

struct SRawType {
    std::string_view name;
    int sampleType;
};

constexpr SRawType rawTypes[] = {{"s16", SF_FORMAT_PCM_16},
                                 {"s24", SF_FORMAT_PCM_24},
                                 {"s32", SF_FORMAT_PCM_32},
                                 {"f32", SF_FORMAT_FLOAT},
                                 {"f64", SF_FORMAT_DOUBLE}};

constexpr int highestRate = 1000000;  // Hz

// @return 0 if the text is not a number in the range.
int numberUpTo(int highest, std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool understood = error == std::errc() && end == text.data() + text.size();
    return understood && number > 0 && number <= highest ? number : 0;
}

int sampleTypeOf(std::string_view name) {
    for (const SRawType &type : rawTypes) {
        if (equalInAnyCapitals(name, type.name) ||
            equalInAnyCapitals(name, std::string(type.name).append("le")))
            return type.sampleType;
    }
    return 0;
}

}  // namespace

SRawFormat rawFormatFromText(std::string_view text) {
    const auto parts = split(text, ':');
    if (parts.size() != 3) {
        throw CCallError("--raw: " + inQuotes(text) +
                         " is not RATE:CHANNELS:FORMAT, such as 44100:2:s16");
    }
    const SRawFormat format = {numberUpTo(highestRate, parts[0]), numberUpTo(2, parts[1]),
                               sampleTypeOf(parts[2])};
    if (format.sampleRate == 0)
        throw CCallError("--raw: " + inQuotes(parts[0]) + " is not a sample rate in Hz");
    if (format.channels == 0)
        throw CCallError("--raw: " + inQuotes(parts[1]) + " channels; use 1 or 2");
    if (format.sampleType == 0)
        throw CCallError("--raw: no sample format " + inQuotes(parts[2]) +
                         "; use s16, s24, s32, f32 or f64");
    return format;
}

}  // namespace Tessitor::Tool
