#pragma once

#include "foundation/CString.h"

namespace Tessitor::Basics {

/// Splits a text at each place of a delimiter, so that two delimiters in a row have an empty token
/// between them. Counting is another matter: it skips what is empty, and reading ends when as many
/// tokens have been read as were counted, whatever is left of the text.
///
/// The text is held in the object. One of 2,048 bytes or more is cut to 2,047, so a longer path is
/// split as though it ended there.
class CStringTokeniser : public CCountedObject {
public:
    /// These two split at "," and count nothing: there are no tokens until countTokens() is called.
    explicit CStringTokeniser(const char *text);
    explicit CStringTokeniser(const CString &text);
    /// These two count the tokens.
    CStringTokeniser(const CString &text, char delimiter);
    CStringTokeniser(const char *text, char delimiter);
    CStringTokeniser(const CStringTokeniser &) = delete;
    CStringTokeniser &operator=(const CStringTokeniser &) = delete;
    ~CStringTokeniser() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    /// Counts and remembers the runs of other characters between delimiters. What stands before the
    /// first delimiter is not counted if it begins with "_".
    /// @return their number, from the text's start, however many have been read.
    virtual std::int32_t countTokens();
    virtual bool hasMoreTokens() const;
    virtual void setDelimiter(char delimiter);  ///< the count stays as it is
    /// A new text, read from its start. No tokens until countTokens() is called.
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
