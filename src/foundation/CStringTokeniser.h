#pragma once

#include "foundation/CString.h"

namespace Tessitor::Basics {

/// Splits a text at every delimiter, so two delimiters in a row have an empty token between them.
/// Counting, however, skips empty tokens, and reading ends after as many tokens as were counted,
/// even if text is left.
///
/// The object keeps a copy of the text, cut to 2047 bytes; the rest is ignored.
class CStringTokeniser : public CCountedObject {
public:
    /// These two split at "," and do not count: there are no tokens until countTokens() is called.
    explicit CStringTokeniser(const char *text);
    explicit CStringTokeniser(const CString &text);
    /// These two count the tokens.
    CStringTokeniser(const CString &text, char delimiter);
    CStringTokeniser(const char *text, char delimiter);
    CStringTokeniser(const CStringTokeniser &) = delete;
    CStringTokeniser &operator=(const CStringTokeniser &) = delete;
    ~CStringTokeniser() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    /// Counts the non-empty tokens of the whole text and remembers the number. The token before the
    /// first delimiter is not counted if it begins with "_".
    /// @return the number, including tokens that have been read already.
    virtual std::int32_t countTokens();
    virtual bool hasMoreTokens() const;
    virtual void setDelimiter(char delimiter);  ///< does not count again
    /// Sets a new text. There are no tokens until countTokens() is called.
    virtual void setText(const char *text);
    /// @return the next token on the heap, for the caller to free with delete[]; null if
    ///         hasMoreTokens() is false.
    virtual char *getNextToken();
    /// Stores the next token in the string.
    /// @return false, and the string unchanged, if there is none.
    bool getNextToken(CString &token);

private:
    static TClassRecord<CStringTokeniser> s_class;

    std::int32_t m_numberOfTokens = 0;
    std::int32_t m_numberOfTokensRead = 0;
    std::int32_t m_readPosition = 0;
    char m_text[2048];
    char m_delimiter = ',';
};

}  // namespace Tessitor::Basics
