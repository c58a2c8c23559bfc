#include "corvel/commandline/StreamOptions.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

namespace Tessitor::Tool {

namespace {

int channelsFromText(const std::string &text) {
    if (equalInAnyCapitals(text, "mono"))
        return 1;
    if (equalInAnyCapitals(text, "stereo"))
        return 2;
    throw CCallError("--channels: " + inQuotes(text) + " is neither mono nor stereo");
}

}  // namespace

void addStream(CLI::App &command, SRenderOptions &options) {
    command
        .add_option_function<std::string>(
            "--raw", [&options](const std::string &text) { options.raw = rawFormatFromText(text); },
            "Samples without a header on standard input and output")
        ->type_name("RATE:CHANNELS:FORMAT");
    command
        .add_option_function<std::string>(
            "--channels",
            [&options](const std::string &text) { options.channels = channelsFromText(text); },
            "Channels of the output: stereo, or mono as the sum of both")
        ->type_name("mono|stereo");
    command.add_flag_callback(
        "--mono", [&options] { options.channels = 1; }, "The same as --channels mono");
}

}  // namespace Tessitor::Tool
