#include "corvel/commandline/Completion.h"

#include "corvel/audio/OutputFormat.h"
#include "corvel/commands/Suggestions.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <exception>
#include <set>

namespace Tessitor::Tool {

namespace {

const Suggestions files = {{"@files", ""}};
const Suggestions folders = {{"@folders", ""}};

/// What the words before the unfinished one mean.
struct STyped {
    const CLI::App *command;
    const CLI::Option *awaiting = nullptr;  // the option whose value comes next
    bool onlyFiles = false;                 // "--" was given
    std::set<const CLI::Option *> given;
    std::optional<std::string> plugin;
};

std::vector<const CLI::App *> commandsIn(const CLI::App &app) {
    return app.get_subcommands(
        [](const CLI::App *command) { return !command->get_group().empty(); });
}

bool isShown(const CLI::Option *option) {
    return option->nonpositional() && !option->get_group().empty();
}

bool takesValue(const CLI::Option *option) {
    return option->get_items_expected_max() > 0;
}

bool mayBeRepeated(const CLI::Option *option) {
    return option->get_items_expected_max() > 1;
}

void readOption(STyped &typed, const std::string &word) {
    const std::size_t equals = word.find('=');
    const CLI::Option *option = typed.command->get_option_no_throw(word.substr(0, equals));
    if (option == nullptr)
        return;
    typed.given.insert(option);
    if (takesValue(option) && equals == std::string::npos)
        typed.awaiting = option;
}

void readValue(STyped &typed, const std::string &word) {
    if (typed.awaiting->check_name("--plugin"))
        typed.plugin = word;
    typed.awaiting = nullptr;
}

void readName(STyped &typed, const std::string &word) {
    for (const CLI::App *inner : commandsIn(*typed.command))
        if (inner->get_name() == word)
            typed.command = inner;
}

STyped readBefore(const CLI::App &app, const std::vector<std::string> &words) {
    STyped typed = {.command = &app, .given = {}, .plugin = {}};
    for (auto word = words.begin(); word + 1 != words.end(); ++word) {
        if (typed.awaiting != nullptr)
            readValue(typed, *word);
        else if (typed.onlyFiles)
            continue;
        else if (*word == "--")
            typed.onlyFiles = true;
        else if (word->starts_with('-'))
            readOption(typed, *word);
        else
            readName(typed, *word);
    }
    return typed;
}

// The parts of "warn|fail" and "TIME|auto" that are typed as they are
Suggestions wordsIn(const std::string &type) {
    Suggestions words;
    const auto isSmall = [](char letter) { return letter >= 'a' && letter <= 'z'; };
    for (const std::string_view part : split(type, '|'))
        if (std::ranges::all_of(part, isSmall))
            words.push_back({std::string(part), ""});
    return words;
}

Suggestions formats() {
    Suggestions texts;
    for (const std::string &format : formatTexts())
        texts.push_back({format, ""});
    return texts;
}

Suggestions valuesOf(const CLI::Option &option, const STyped &typed, const std::string &word) {
    const std::string type = option.get_type_name();
    if (type == "N|NAME")
        return suggestPrograms(typed.plugin);
    if (type == "NAME=VALUE")
        return suggestSettings(typed.plugin, word);
    if (type == "LABEL,...")
        return suggestChains(word);
    if (type == "DIR")
        return folders;
    if (type.starts_with("FILE"))
        return files;
    if (type == "CONTAINER[:TYPE]")
        return formats();
    return wordsIn(type);
}

Suggestions optionsOf(const STyped &typed) {
    Suggestions options;
    for (const CLI::Option *option : typed.command->get_options()) {
        if (!isShown(option) || (typed.given.contains(option) && !mayBeRepeated(option)))
            continue;
        for (const std::string &name : option->get_lnames())
            options.push_back({"--" + name, option->get_description()});
    }
    return options;
}

Suggestions commandsOf(const CLI::App &app) {
    Suggestions commands;
    for (const CLI::App *command : commandsIn(app))
        commands.push_back({command->get_name(), command->get_description()});
    return commands.empty() ? files : commands;
}

// The value of an option that is written as one word, --program=Choir.
Suggestions valuesAfterEquals(const STyped &typed, const std::string &word, std::size_t equals) {
    const CLI::Option *option = typed.command->get_option_no_throw(word.substr(0, equals));
    if (option == nullptr || !takesValue(option))
        return {};
    Suggestions values = valuesOf(*option, typed, word.substr(equals + 1));
    for (SSuggestion &value : values)
        if (!value.text.starts_with('@'))
            value.text.insert(0, word, 0, equals + 1);
    return values;
}

Suggestions suggestionsFor(const STyped &typed, const std::string &word) {
    const std::size_t equals = word.find('=');
    if (typed.awaiting != nullptr)
        return valuesOf(*typed.awaiting, typed, word);
    if (typed.onlyFiles || !word.starts_with('-'))
        return commandsOf(*typed.command);
    return equals == std::string::npos ? optionsOf(typed) : valuesAfterEquals(typed, word, equals);
}

bool fits(const std::string &text, const std::string &word) {
    return text.starts_with('@') || beginsInAnyCapitals(text, word);
}

}  // namespace

std::string completionsOf(const CLI::App &app, const std::vector<std::string> &words) {
    if (words.empty())
        return "";
    std::string lines;
    try {
        for (const auto &[text, about] : suggestionsFor(readBefore(app, words), words.back()))
            if (fits(text, words.back()))
                lines.append(text).append(about.empty() ? "" : "\t").append(about).append("\n");
    } catch (const std::exception &) {
        // Without an effect there is nothing to suggest, and an error would appear amid the typing.
    }
    return lines;
}

}  // namespace Tessitor::Tool
