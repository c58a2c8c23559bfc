#include "corvel/commandline/LoudnessOptions.h"

namespace Tessitor::Tool {

void addLoudness(CLI::App &render, SRenderOptions &options) {
    render.add_flag("--loudness", options.loudness,
                    "Report the integrated loudness and the true peak of inputs and outputs");
    render
        .add_option_function<std::string>(
            "--normalize",
            [&options](const std::string &text) { options.normalize = targetFromText(text); },
            "Bring the output to a loudness or a true peak: -16LUFS, -1dBTP")
        ->type_name("TARGET");
    render
        .add_option_function<std::string>(
            "--clip", [&options](const std::string &text) { options.clip = clipFromText(text); },
            "If samples would clip: warn (default), fail, or turn the output down")
        ->type_name("warn|fail|headroom");
    render.add_flag("--dither", options.dither, "Dither outputs of 8 and 16 bits");
}

}  // namespace Tessitor::Tool
