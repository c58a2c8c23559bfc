#pragma once

#include <nlohmann/json.hpp>

/// What the manual says about parameters, modules and programs, read from the effect's own tables.
/// All values are the texts that the effect displays. Parameters are named by id:
///
///     {"parameters": [{"id", "name", "label", "unit", "low", "middle", "high", "choices"}],
///      "modules": [{"name", "parameters": [id]}],
///      "programs": [{"name", "chain": [module name], "values": [text by id]}]}
///
/// "label" is the text in the editor, empty for the controls outside the panels. "choices" lists
/// all texts of a parameter that has no more than four, and is empty for others.
nlohmann::ordered_json manualFacts();
