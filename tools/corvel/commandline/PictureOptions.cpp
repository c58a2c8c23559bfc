#include "corvel/commandline/PictureOptions.h"

namespace Tessitor::Tool {

void addPicture(CLI::App &render, SRenderCall &call) {
    CLI::Option *plot =
        render
            .add_option("--plot", call.plot,
                        "Draw waveform and loudness before and after; \"svg\" or \"png\" names the "
                        "picture after the output")
            ->type_name("FILE|svg|png");
    CLI::Option *light = render
                             .add_flag_callback(
                                 "--light", [&call] { call.options.theme = ETheme::Light; },
                                 "Always draw light colours")
                             ->needs(plot);
    render
        .add_flag_callback(
            "--dark", [&call] { call.options.theme = ETheme::Dark; }, "Always draw dark colours")
        ->needs(plot)
        ->excludes(light);
}

}  // namespace Tessitor::Tool
