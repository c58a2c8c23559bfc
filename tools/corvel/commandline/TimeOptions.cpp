#include "corvel/commandline/TimeOptions.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/console/TimeText.h"
#include "corvel/render/RenderLengths.h"

#include <functional>

namespace Tessitor::Tool {

namespace {

constexpr double longestInput = 1000.0 * 3600.0;  // seconds

double secondsOf(const std::string &option, const std::string &text) {
    if (const auto seconds = secondsFromText(text))
        return *seconds;
    throw CCallError(option + ": " + inQuotes(text) +
                     " is not a time, such as 90, 1.5s, 250ms or 1:02:03.5");
}

void readStart(const std::string &text, SExcerpt &excerpt) {
    excerpt.startSeconds = secondsOf("--start", text);
    if (excerpt.startSeconds > longestInput)
        throw CCallError("--start: must not exceed 1000 hours");
}

void readLength(const std::string &text, SExcerpt &excerpt) {
    excerpt.lengthSeconds = secondsOf("--length", text);
    if (*excerpt.lengthSeconds <= 0.0 || *excerpt.lengthSeconds > longestInput)
        throw CCallError("--length: must be more than 0 and at most 1000 hours");
}

void readTail(const std::string &text, SRenderOptions &options) {
    if (equalInAnyCapitals(text, "auto")) {
        options.tailAuto = true;
        return;
    }
    options.tailSeconds = secondsOf("--tail", text);
    if (options.tailSeconds > longestTail)
        throw CCallError("--tail: must not exceed an hour");
}

}  // namespace

void addTime(CLI::App &command, SRenderOptions &options) {
    command
        .add_option_function<std::string>(
            "--start", [&options](const std::string &text) { readStart(text, options.excerpt); },
            "Begin at this time of the input")
        ->type_name("TIME");
    command
        .add_option_function<std::string>(
            "--length", [&options](const std::string &text) { readLength(text, options.excerpt); },
            "Render only this much of the input")
        ->type_name("TIME");
    command
        .add_option_function<std::string>(
            "--tail", [&options](const std::string &text) { readTail(text, options); },
            "Keep rendering past the end of the input, up to an hour; auto: until silence")
        ->type_name("TIME|auto");
}

}  // namespace Tessitor::Tool
