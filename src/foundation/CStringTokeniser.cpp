#include "foundation/CStringTokeniser.h"

#include "foundation/CopyText.h"

#include <algorithm>
#include <memory>

namespace Tessitor::Basics {

TClassRecord<CStringTokeniser> CStringTokeniser::s_class("CStringTokeniser", "CCountedObject");

CStringTokeniser::CStringTokeniser(const char *text) {
    CStringTokeniser::setText(text);
    s_class.incrementInstanceCount();
}

CStringTokeniser::CStringTokeniser(const CString &text) : CStringTokeniser(text.getString()) {}

CStringTokeniser::CStringTokeniser(const CString &text, char delimiter)
    : CStringTokeniser(text.getString(), delimiter) {}

CStringTokeniser::CStringTokeniser(const char *text, char delimiter) : CStringTokeniser(text) {
    m_delimiter = delimiter;
    CStringTokeniser::countTokens();
}

std::int32_t CStringTokeniser::countTokens() {
    m_numberOfTokens = 0;
    // Kept: a leading "_" is special whatever the delimiter is.
    bool isAfterDelimiter = m_text[0] != '_';
    for (const char *character = m_text; *character != '\0'; ++character) {
        if (*character == m_delimiter) {
            isAfterDelimiter = true;
        } else if (isAfterDelimiter) {
            ++m_numberOfTokens;
            isAfterDelimiter = false;
        }
    }
    return m_numberOfTokens;
}

bool CStringTokeniser::hasMoreTokens() const {
    return m_numberOfTokensRead < m_numberOfTokens;
}

void CStringTokeniser::setDelimiter(char delimiter) {
    m_delimiter = delimiter;
}

void CStringTokeniser::setText(const char *text) {
    copyText(m_text, sizeof m_text, text);
    m_numberOfTokens = 0;
    m_numberOfTokensRead = 0;
    m_readPosition = 0;
}

char *CStringTokeniser::getNextToken() {
    if (!hasMoreTokens())
        return nullptr;

    std::int32_t end = m_readPosition;
    while (m_text[end] != '\0' && m_text[end] != m_delimiter)
        ++end;
    auto token = std::make_unique<char[]>(static_cast<std::size_t>(end - m_readPosition) + 1);
    std::copy(m_text + m_readPosition, m_text + end, token.get());

    // At the end of the text the position does not move: the count ends the reading.
    if (m_text[end] != '\0')
        m_readPosition = end + 1;
    ++m_numberOfTokensRead;
    return token.release();
}

bool CStringTokeniser::getNextToken(CString &token) {
    const std::unique_ptr<char[]> text(getNextToken());
    if (text == nullptr)
        return false;
    token = text.get();
    return true;
}

}  // namespace Tessitor::Basics
