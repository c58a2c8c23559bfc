#include "corvel/batch/CNamePattern.h"

#include "corvel/audio/OutputFormat.h"
#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <iterator>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

constexpr std::string_view fieldNames[] = {"stem", "ext", "program", "index"};

// Without characters that are not allowed in names on Linux or Windows.
std::string asName(std::string text) {
    constexpr std::string_view forbidden = "/\\:*?\"<>|\x7F";
    for (char &letter : text) {
        if (forbidden.find(letter) != std::string_view::npos ||
            static_cast<unsigned char>(letter) < ' ')
            letter = '-';
    }
    text = trimmed(text);
    return text.empty() ? "unnamed" : text;
}

std::string padded(std::size_t number, std::size_t largest) {
    const std::string text = std::to_string(number);
    const std::size_t width = std::to_string(largest).size();
    return std::string(width - std::min(width, text.size()), '0') + text;
}

// @return the ending if it is one of the formats that are written; else empty.
std::string endingIn(const std::string &text) {
    const fs::path name = std::string("x").append(text);  // ".wav" alone would be a hidden file
    return problemOfName(name, {}).empty() ? name.extension().string() : "";
}

}  // namespace

CNamePattern::CNamePattern(std::string_view text) : m_text(text) {
    while (!text.empty()) {
        if (text.starts_with("{{") || text.starts_with("}}")) {
            addLetter(text.front());
            text.remove_prefix(2);
        } else if (text.starts_with('{')) {
            const std::size_t end = text.find('}');
            if (end == text.npos)
                throw CCallError("--name: a brace is not closed in " + inQuotes(m_text) +
                                 "; write {{ for a brace");
            addField(text.substr(1, end - 1));
            text.remove_prefix(end + 1);
        } else if (text.starts_with('}')) {
            throw CCallError("--name: a brace is not opened in " + inQuotes(m_text) +
                             "; write }} for a brace");
        } else {
            addLetter(text.front());
            text.remove_prefix(1);
        }
    }
    if (m_text.empty() || m_text.ends_with('/'))
        throw CCallError("--name: " + inQuotes(m_text) + " leaves no name for the file");
    const SPart &last = m_parts.back();
    if (!last.isField)
        m_commonEnding = endingIn(last.text);
    const bool isDotBefore = m_parts.size() > 1 && m_parts[m_parts.size() - 2].text.ends_with('.');
    m_hasEnding = !m_commonEnding.empty() || (last.isField && last.text == "ext" && isDotBefore);
}

void CNamePattern::addField(std::string_view field) {
    if (std::find(std::begin(fieldNames), std::end(fieldNames), field) == std::end(fieldNames))
        throw CCallError("--name: no field {" + std::string(field) +
                         "}; use {stem}, {ext}, {program} or {index}");
    m_parts.push_back({std::string(field), true});
}

void CNamePattern::addLetter(char letter) {
    if (m_parts.empty() || m_parts.back().isField)
        m_parts.push_back({"", false});
    m_parts.back().text += letter;
}

std::string CNamePattern::valueOf(const std::string &field, const SNameFields &fields) {
    if (field == "stem")
        return fields.in.stem().string();
    if (field == "ext")
        return fields.in.has_extension() ? fields.in.extension().string().substr(1) : "";
    if (field == "program")
        return asName(fields.program);
    return padded(fields.index, fields.count);
}

fs::path CNamePattern::nameFor(const SNameFields &fields) const {
    std::string text;
    for (const SPart &part : m_parts)
        text += part.isField ? valueOf(part.text, fields) : part.text;
    fs::path name = text;
    if (name.is_absolute() || std::find(name.begin(), name.end(), "..") != name.end())
        throw CCallError("--name: " + inQuotes(text) + " leads out of the folder for the outputs");
    return name;
}

}  // namespace Tessitor::Tool
