#include "corvel/commandline/CommonOptions.h"

namespace Tessitor::Tool {

void addPlugin(CLI::App &command, std::optional<std::string> &plugin) {
    command.add_option("--plugin", plugin, "The effect's file")->type_name("FILE");
}

void addJson(CLI::App &command, bool &json) {
    command.add_flag("--json", json, "Print the result as JSON");
}

}  // namespace Tessitor::Tool
