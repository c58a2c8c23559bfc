#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace Tessitor::Tool {

/// Reads JSON that nobody has checked.
/// @throws CPresetError if the text is not JSON, is nested more deeply than presets are, or gives
///         the same entry of an object twice.
nlohmann::ordered_json strictJson(std::string_view text);

/// @throws CPresetError if it is no object, or has other entries than these.
void requireEntries(const nlohmann::ordered_json &json, const std::string &what,
                    std::initializer_list<std::string_view> known);

/// @return the entry of an object.  @throws CPresetError if there is none.
const nlohmann::ordered_json &entryOf(const nlohmann::ordered_json &object, const char *name);

/// @return the text of that entry.  @throws CPresetError if there is none or it is not a text.
const std::string &textOf(const nlohmann::ordered_json &object, const char *name);

/// @return indented JSON, with lists and small objects in one line each.
std::string laidOut(const nlohmann::ordered_json &json);

}  // namespace Tessitor::Tool
