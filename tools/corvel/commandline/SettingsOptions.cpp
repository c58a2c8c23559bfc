#include "corvel/commandline/SettingsOptions.h"

namespace Tessitor::Tool {

void addSettings(CLI::App &command, SSettingsRequest &request) {
    CLI::Option *program =
        command.add_option("--program", request.program, "Program to start from")
            ->type_name("N|NAME");
    command.add_option("--preset", request.preset, "Preset to start from, instead of a program")
        ->type_name("FILE[:N]")
        ->excludes(program);
    command.add_option("--set", request.set, "Set a parameter")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    command.add_option("--chain", request.chain, "Modules in running order")
        ->type_name("LABEL,...");
}

}  // namespace Tessitor::Tool
