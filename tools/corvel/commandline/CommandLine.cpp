#include "corvel/commandline/CommandLine.h"

#include "corvel/commandline/CallErrors.h"
#include "corvel/commandline/Completion.h"
#include "corvel/commandline/ListOptions.h"
#include "corvel/commandline/LiveOptions.h"
#include "corvel/commandline/PlotOptions.h"
#include "corvel/commandline/PresetOptions.h"
#include "corvel/commandline/RenderOptions.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Print.h"

#include <string_view>

namespace Tessitor::Tool {

namespace {

constexpr const char *generalHelp = R"(
The effect is the file named with --plugin. By default Corvel.so is looked for near this
program (../plugin, its own folder, ../lib/vst), then in the folders listed in VST_PATH or, if
that is not set, in ~/.vst, /usr/local/lib/vst and /usr/lib/vst.

Exit status: 0 on success, 1 if a job failed, 2 if the command line was wrong, 130 if it was
interrupted.

See corvel COMMAND --help for the options of a command.
)";

}  // namespace

int parseAndRun(int argc, char **argv) {
    CLI::App app("Runs the Corvel channel strip without a host program.", "corvel");
    app.require_subcommand(0, 1);
    app.set_version_flag("--version", "corvel " CORVEL_VERSION);
    app.footer(generalHelp);

    SRenderCall render;
    SPlotCall plot;
    SLiveCall live;
    SProgramsCall programs;
    SParamsCall params;
    SInfoCall info;
    CPresetOptions preset(app);
    const SCommand commands[] = {
        addRender(app, render),
        addLive(app, live),
        addPlot(app, plot),
        addPrograms(app, programs),
        addParams(app, params),
        addInfo(app, info),
        {preset.app(), [&preset] { return preset.run(); }},
    };
    try {
        if (argc > 1 && std::string_view(argv[1]) == "complete") {
            print(completionsOf(app, {argv + 2, argv + argc}));
            return 0;
        }
        app.parse(argumentsForParser(argc, argv));
    } catch (const CLI::Success &help) {
        return app.exit(help);
    } catch (const CLI::ParseError &error) {
        throw CCallError(describe(error, app));
    }
    for (const SCommand &command : commands)
        if (command.app->parsed())
            return command.run();
    throw CCallError("no command; use render, live, plot, programs, params, info or preset (see "
                     "corvel --help)");
}

}  // namespace Tessitor::Tool
