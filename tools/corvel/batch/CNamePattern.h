#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Tessitor::Tool {

/// What the fields of a pattern are replaced with.
struct SNameFields {
    std::filesystem::path in;  // {stem} and {ext}
    std::string program;       // {program}
    std::size_t index = 1;     // {index}: number of the input, from 1
    std::size_t count = 1;     // all inputs; gives the number its width
};

/// A pattern for the names of outputs, such as "{stem}-{program}". "{{" is a brace.
class CNamePattern {
public:
    /// @throws CCallError if a field is unknown, a brace is open, or no name would remain.
    explicit CNamePattern(std::string_view text);

    /// @return false if the name still needs an ending.
    bool hasEnding() const { return m_hasEnding; }

    /// @return the ending that all names have, such as ".flac"; empty if they differ.
    const std::string &commonEnding() const { return m_commonEnding; }

    /// @return a name relative to the folder of the outputs. In a program's name, characters that
    ///         no file name can have on all systems become "-".
    /// @throws CCallError if it would lead out of the folder.
    std::filesystem::path nameFor(const SNameFields &fields) const;

private:
    struct SPart {
        std::string text;
        bool isField;
    };

    void addField(std::string_view field);
    void addLetter(char letter);
    static std::string valueOf(const std::string &field, const SNameFields &fields);

    std::string m_text;
    std::vector<SPart> m_parts;
    std::string m_commonEnding;
    bool m_hasEnding = false;
};

}  // namespace Tessitor::Tool
