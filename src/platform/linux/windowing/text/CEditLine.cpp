#include "platform/linux/windowing/text/CEditLine.h"

#include "platform/linux/drawing/Utf8.h"

#include <algorithm>
#include <utility>

namespace {

/// The length in bytes of the first character of a text that is not empty.
std::size_t firstLength(std::string_view text) {
    // A copy, since reading needs a terminator.
    const std::string bytes(text.substr(0, 4));
    const char *next = bytes.c_str();
    readUtf8(next);
    return static_cast<std::size_t>(next - bytes.c_str());
}

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

std::string typeable(std::string_view text) {
    const std::size_t last = text.find_last_not_of("\r\n");
    text = text.substr(0, last == text.npos ? 0 : last + 1);
    std::string line;
    for (std::size_t i = 0; i < text.size();) {
        const std::string character(text.substr(i, firstLength(text.substr(i))));
        const char *next = character.c_str();
        const bool isSecondOfBreak = character == "\n" && i > 0 && text[i - 1] == '\r';
        if (character == "\t" || character == "\r" || (character == "\n" && !isSecondOfBreak))
            line += ' ';
        else if (!isControl(readUtf8(next)))
            line += character;
        i += character.size();
    }
    return line;
}

}  // namespace

CEditLine::CEditLine(std::string text, std::size_t maximumLength)
    : m_text(std::move(text)), m_maximumLength(maximumLength) {
    selectAll();
}

std::string_view CEditLine::getText(std::size_t length) const {
    return std::string_view(m_text).substr(0, startOf(length));
}

std::size_t CEditLine::getSelectionStart() const {
    return std::min(m_anchor, m_caret);
}

std::size_t CEditLine::getSelectionEnd() const {
    return std::max(m_anchor, m_caret);
}

std::string CEditLine::getSelectedText() const {
    return m_text.substr(getSelectionStart(), getSelectionEnd() - getSelectionStart());
}

// Editing

void CEditLine::insert(std::string_view text) {
    const std::string line = typeable(text);
    std::size_t length = line.size();
    if (m_maximumLength > 0) {
        const std::size_t kept = m_text.size() - (getSelectionEnd() - getSelectionStart());
        const std::size_t room = m_maximumLength - std::min(kept, m_maximumLength);
        for (length = 0; length < line.size();) {
            const std::size_t next = length + firstLength(std::string_view(line).substr(length));
            if (next > room)
                break;
            length = next;
        }
    }
    if (length == 0)
        return;
    eraseSelection();
    m_text.insert(m_caret, line, 0, length);
    // Broken bytes on both sides of the caret may now make a character.
    m_caret = m_anchor = startOf(m_caret + length);
}

void CEditLine::eraseBefore(EEditReach reach) {
    if (hasSelection())
        eraseSelection();
    else
        erase(left(reach), m_caret);
}

void CEditLine::eraseAfter(EEditReach reach) {
    if (hasSelection())
        eraseSelection();
    else
        erase(m_caret, right(reach));
}

void CEditLine::eraseSelection() {
    erase(getSelectionStart(), getSelectionEnd());
}

void CEditLine::erase(std::size_t from, std::size_t to) {
    m_text.erase(from, to - from);
    m_caret = m_anchor = startOf(from);
}

// Caret and selection

void CEditLine::moveLeft(EEditReach reach, bool isExtending) {
    const bool isLeaving = hasSelection() && !isExtending && reach == EEditReach::Character;
    moveTo(isLeaving ? getSelectionStart() : left(reach), isExtending);
}

void CEditLine::moveRight(EEditReach reach, bool isExtending) {
    const bool isLeaving = hasSelection() && !isExtending && reach == EEditReach::Character;
    moveTo(isLeaving ? getSelectionEnd() : right(reach), isExtending);
}

void CEditLine::moveTo(std::size_t position, bool isExtending) {
    m_caret = startOf(position);
    if (!isExtending)
        m_anchor = m_caret;
}

void CEditLine::selectAll() {
    m_anchor = 0;
    m_caret = m_text.size();
}

void CEditLine::selectWord(std::size_t position) {
    position = startOf(position);
    if (position == m_text.size())
        position = before(position);
    m_anchor = m_text.empty() ? 0 : wordStart(after(position));
    m_caret = wordEnd(position);
}

// Places in the text

std::size_t CEditLine::startOf(std::size_t position) const {
    std::size_t start = 0;
    while (start < m_text.size() && after(start) <= position)
        start = after(start);
    return start;
}

std::size_t CEditLine::before(std::size_t position) const {
    return position == 0 ? 0 : startOf(position - 1);
}

std::size_t CEditLine::after(std::size_t position) const {
    if (position >= m_text.size())
        return m_text.size();
    return position + firstLength(std::string_view(m_text).substr(position));
}

std::size_t CEditLine::left(EEditReach reach) const {
    if (reach == EEditReach::Line)
        return 0;
    return reach == EEditReach::Word ? wordStart(m_caret) : before(m_caret);
}

std::size_t CEditLine::right(EEditReach reach) const {
    if (reach == EEditReach::Line)
        return m_text.size();
    return reach == EEditReach::Word ? wordEnd(m_caret) : after(m_caret);
}

// The start of the last word that begins before a position. A blank is a byte of its own, so that
// bytes can be compared.
std::size_t CEditLine::wordStart(std::size_t position) const {
    while (position > 0 && isBlankAt(position - 1))
        --position;
    while (position > 0 && !isBlankAt(position - 1))
        --position;
    return position;
}

// The start of the first word that begins after a position
std::size_t CEditLine::wordEnd(std::size_t position) const {
    while (position < m_text.size() && !isBlankAt(position))
        ++position;
    while (position < m_text.size() && isBlankAt(position))
        ++position;
    return position;
}
