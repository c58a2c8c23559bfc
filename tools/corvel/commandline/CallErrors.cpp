#include "corvel/commandline/CallErrors.h"

#include <algorithm>
#include <string_view>

namespace Tessitor::Tool {

namespace {

constexpr std::string_view prefix = "./";

bool isOption(const std::string &argument) {
    return argument.size() > 1 && argument.starts_with('-');
}

// "++" ends a command, and brackets around a name would be removed.
bool isMisread(const std::string &name) {
    return isOption(name) || name == "++" || (name.starts_with('[') && name.ends_with(']'));
}

// The parser's texts name the option, but each in another place.
std::string optionIn(const std::string &text) {
    const std::size_t begin = text.find("--");
    if (begin == std::string::npos)
        return "";
    return text.substr(begin, text.find_first_of(" :,", begin) - begin);
}

std::string describeExtra(const CLI::App &app) {
    const std::string extra = app.remaining(true).front();
    std::string command = app.get_name();
    for (auto parsed = app.get_subcommands(); !parsed.empty();
         parsed = parsed.front()->get_subcommands())
        command += " " + parsed.front()->get_name();
    if (extra.starts_with('-'))
        return command + " has no option " + extra;
    const std::string name = "\"" + namesAsTyped({extra}).front() + "\"";
    if (command == app.get_name())
        return "there is no command " + name + "; corvel --help lists them";
    return command + " does not expect " + name;
}

}  // namespace

std::vector<std::string> argumentsForParser(int argc, char **argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    if (!arguments.empty() && arguments.front() == "help") {
        arguments.erase(arguments.begin());
        arguments.emplace_back("--help");
    }
    const auto mark = std::find(arguments.begin(), arguments.end(), "--");
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument)
        if (isMisread(*argument) && (argument > mark || !isOption(*argument)))
            argument->insert(0, prefix);
    if (mark != arguments.end())
        arguments.erase(mark);
    std::reverse(arguments.begin(), arguments.end());
    return arguments;
}

std::vector<std::string> namesAsTyped(std::vector<std::string> names) {
    for (std::string &name : names)
        if (name.starts_with(prefix) && isMisread(name.substr(prefix.size())))
            name.erase(0, prefix.size());
    return names;
}

std::string describe(const CLI::ParseError &error, const CLI::App &app) {
    std::string text = error.what();
    const std::string option = optionIn(text);
    if (dynamic_cast<const CLI::ExtrasError *>(&error) != nullptr)
        return describeExtra(app);
    if (dynamic_cast<const CLI::ExcludesError *>(&error) != nullptr)
        return text.replace(text.find(" excludes "), 10, " and ") + " exclude each other";
    if (dynamic_cast<const CLI::ValidationError *>(&error) != nullptr)
        return text;  // written by our own validators
    if (dynamic_cast<const CLI::RequiresError *>(&error) != nullptr)
        return text.replace(text.find(" requires "), 10, ": needs ");
    if (option.empty())
        return "the command line cannot be understood; see corvel --help";
    if (dynamic_cast<const CLI::ConversionError *>(&error) != nullptr)
        return option + ": the value is not possible; see corvel --help";
    if (text.find("missing") != std::string::npos)
        return option + ": needs a value";
    if (text.find("override") != std::string::npos)
        return option + ": takes no value";
    return option + ": may be given only once";
}

}  // namespace Tessitor::Tool
