#include "corvel/commandline/ListOptions.h"

#include "corvel/commandline/CommonOptions.h"

namespace Tessitor::Tool {

SCommand addPrograms(CLI::App &app, SProgramsCall &call) {
    CLI::App &programs = *app.add_subcommand("programs", "List the effect's programs");
    programs.add_flag("--describe", call.describe, "Say what each program is for");
    addPlugin(programs, call.plugin);
    addJson(programs, call.json);
    return {&programs, [&call] { return runPrograms(call); }};
}

SCommand addParams(CLI::App &app, SParamsCall &call) {
    CLI::App &params = *app.add_subcommand("params", "List the effect's parameters");
    params.add_option("--program", call.program, "Show the values of this program")
        ->type_name("N|NAME");
    addPlugin(params, call.plugin);
    addJson(params, call.json);
    return {&params, [&call] { return runParams(call); }};
}

SCommand addInfo(CLI::App &app, SInfoCall &call) {
    CLI::App &info = *app.add_subcommand("info", "Show what a host sees of an effect");
    CLI::Option *file = info.add_option("FILE", call.plugin,
                                        "The effect's file; by default the one that corvel finds")
                            ->type_name("");
    info.add_option("--plugin", call.plugin, "The same")->type_name("FILE")->excludes(file);
    addJson(info, call.json);
    return {&info, [&call] { return runInfo(call); }};
}

}  // namespace Tessitor::Tool
