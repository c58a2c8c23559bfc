#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// A text that a shell may put in the place of the word that is being typed.
struct SSuggestion {
    std::string text;
    std::string about;  // one line; may be empty
};

using Suggestions = std::vector<SSuggestion>;

// What may be given to the options that name something of the effect. The argument `plugin` is the
// effect's file; by default it is the one that the commands use. All throw CJobError if there is no
// usable effect.

/// @return the names of the programs, with their descriptions.
Suggestions suggestPrograms(const std::optional<std::string> &plugin);

/// @param typed  as for --set, NAME=VALUE, as far as it has been typed.
/// @return until the equals sign is typed, each parameter's name with the sign, and its range; then
///         the names of the parameter's values, or nothing if they are numbers.
Suggestions suggestSettings(const std::optional<std::string> &plugin, std::string_view typed);

/// @param typed  labels separated by commas; the last one may be incomplete.
/// @return the list with each module in the last place that it does not have yet.
Suggestions suggestChains(std::string_view typed);

}  // namespace Tessitor::Tool
