#include "corvel/presets/StrictJson.h"

#include "corvel/presets/Encoding.h"
#include "corvel/presets/Preset.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace Tessitor::Tool {

namespace {

using Json = nlohmann::ordered_json;

constexpr int deepest = 6;  // a bank's programs' parameters' values

/// Sees each part of a text as it is read.
class CJsonGuard {
public:
    bool operator()(int depth, Json::parse_event_t event, const Json &json) {
        using Event = Json::parse_event_t;
        if (depth > deepest)
            throw CPresetError("not a preset (nested too deeply)");
        if (event == Event::object_start)
            m_names.emplace_back();
        else if (event == Event::object_end)
            m_names.pop_back();
        else if (event == Event::key && !m_names.back().insert(json.get<std::string>()).second)
            throw CPresetError("has the entry " + shortQuote(json.get<std::string>()) + " twice");
        return true;
    }

private:
    std::vector<std::set<std::string>> m_names;  // of the objects that are open
};

std::string describePlace(std::string_view text, std::size_t byte) {
    const std::string_view before = text.substr(0, byte > 0 ? byte - 1 : 0);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    return "line " + std::to_string(lines + 1) + ", column " +
           std::to_string(before.size() - (before.rfind('\n') + 1) + 1);
}

bool fitsInLine(const Json &json) {
    constexpr std::size_t fewEntries = 2;
    return json.is_primitive() || json.empty() ||
           (json.is_array() && json.front().is_primitive()) ||
           (json.size() <= fewEntries && json.front().is_primitive());
}

std::string inLine(const Json &json) {
    if (json.is_primitive())
        return json.dump();
    std::string text(1, json.is_object() ? '{' : '[');
    bool isFirst = true;
    for (const auto &[name, value] : json.items()) {
        text.append(std::exchange(isFirst, false) ? "" : ", ");
        if (json.is_object())
            text.append(Json(name).dump()).append(": ");
        text.append(inLine(value));
    }
    return text.append(1, json.is_object() ? '}' : ']');
}

std::string laidOutBelow(const Json &json, const std::string &indent) {
    if (fitsInLine(json))
        return inLine(json);
    const std::string inner = indent + "    ";
    std::string text(1, json.is_object() ? '{' : '[');
    bool isFirst = true;
    for (const auto &[name, value] : json.items()) {
        text.append(std::exchange(isFirst, false) ? "\n" : ",\n").append(inner);
        if (json.is_object())
            text.append(Json(name).dump()).append(": ");
        text.append(laidOutBelow(value, inner));
    }
    return text.append("\n").append(indent).append(1, json.is_object() ? '}' : ']');
}

}  // namespace

Json strictJson(std::string_view text) {
    try {
        return Json::parse(text, CJsonGuard());
    } catch (const Json::parse_error &error) {
        throw CPresetError(describePlace(text, error.byte) + ": not valid JSON");
    } catch (const Json::exception &) {
        throw CPresetError("has a number that is too large");
    }
}

void requireEntries(const Json &json, const std::string &what,
                    std::initializer_list<std::string_view> known) {
    if (!json.is_object())
        throw CPresetError(what + " is not a JSON object");
    for (const auto &[name, value] : json.items())
        if (std::find(known.begin(), known.end(), name) == known.end())
            throw CPresetError(what + " has an unknown entry " + shortQuote(name));
}

const Json &entryOf(const Json &object, const char *name) {
    const auto found = object.find(name);
    if (found == object.end())
        throw CPresetError("the entry " + shortQuote(name) + " is missing");
    return *found;
}

const std::string &textOf(const Json &object, const char *name) {
    const Json &entry = entryOf(object, name);
    if (!entry.is_string())
        throw CPresetError("the entry " + shortQuote(name) + " is not a text");
    return entry.get_ref<const std::string &>();
}

std::string laidOut(const Json &json) {
    return laidOutBelow(json, "") + "\n";
}

}  // namespace Tessitor::Tool
