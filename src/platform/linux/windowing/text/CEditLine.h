#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// How far an edit or a movement goes.
enum class EEditReach { Character, Word, Line };

/// A line of text with a caret and a selection: what an edit field does, without a system. The text
/// is UTF-8; a byte that belongs to no valid character counts as a character and is kept. Positions
/// are in bytes; one inside a character means the start of that character.
class CEditLine {
public:
    /// All of the text is selected, with the caret at its end.
    /// @param maximumLength  of what insert() can make, in bytes; 0 for no limit.
    CEditLine(std::string text, std::size_t maximumLength);

    const std::string &getText() const { return m_text; }
    /// @return as many whole characters from the start as fit into a length in bytes.
    std::string_view getText(std::size_t length) const;
    std::size_t getCaret() const { return m_caret; }
    std::size_t getSelectionStart() const;
    std::size_t getSelectionEnd() const;
    bool hasSelection() const { return m_caret != m_anchor; }
    std::string getSelectedText() const;

    /// Replaces the selection. Line breaks and tabs become blanks, except line breaks at the end;
    /// other control characters are left out. As many whole characters are taken as the limit
    /// allows; if not even one fits, nothing changes.
    void insert(std::string_view text);
    // Delete the selection, or without one, what lies before or after the caret.
    void eraseBefore(EEditReach reach);
    void eraseAfter(EEditReach reach);
    void eraseSelection();

    // Move the caret. Without extending, the selection ends, and a step by a character goes to the
    // edge of what was selected.
    void moveLeft(EEditReach reach, bool isExtending);
    void moveRight(EEditReach reach, bool isExtending);
    void moveTo(std::size_t position, bool isExtending);

    void selectAll();
    /// Selects the word at a position, with the blanks behind it; caret at the end.
    void selectWord(std::size_t position);

private:
    std::size_t before(std::size_t position) const;
    std::size_t after(std::size_t position) const;
    std::size_t startOf(std::size_t position) const;
    bool isBlankAt(std::size_t position) const { return m_text[position] == ' '; }
    std::size_t left(EEditReach reach) const;
    std::size_t right(EEditReach reach) const;
    std::size_t wordStart(std::size_t position) const;
    std::size_t wordEnd(std::size_t position) const;
    void erase(std::size_t from, std::size_t to);

    std::string m_text;
    std::size_t m_maximumLength;
    std::size_t m_anchor = 0;  // where the selection began
    std::size_t m_caret = 0;   // where it ends
};
