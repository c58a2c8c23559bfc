#pragma once

#include "foundation/CCountedObject.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace Tessitor::Basics {

class CPascalString;

/// A byte string on the heap. Characters are 8-bit and mean what the system's narrow character set
/// says.
///
/// The number of characters counts the terminator: it is 1 for "", and index
/// getNumberOfCharacters() - 1 is the terminator. It is the size of the block, and can be larger
/// than the text needs where a terminator was written into the middle
/// (CSystemString::removeExtension()); the operations that run over positions see what lies behind.
///
/// Text arguments may point into the string itself, and are not null unless the operation says so.
/// Bad indices give a blank or "", searches that fail give -1.
/// Where memory runs out, or a text would pass 2 GiB, an operation throws CException, whose reason
/// tells the operations that the failure passed through, or std::bad_alloc if that cannot be told.
/// Every string stays whole; an operation of several steps may have taken some of them.
///
/// A string belongs to one thread at a time.
class CString : public CCountedObject {
public:
    CString(const char *text = "");  ///< null is taken as ""
    CString(const CString &other);
    ~CString() override;

    /// The text, as getString(array, size) gives it.
    void getObjectDescription(char *array, long size) const override;
    CClass &getClass() const override { return s_class; }

    virtual CString &operator=(bool value);   ///< "True" or "False"
    virtual CString &operator=(long value);   ///< "%.3li": 7 gives "007"
    virtual CString &operator=(int value);    ///< as for long
    virtual CString &operator=(float value);  ///< "%.3f"
    virtual CString &operator=(const char *text);
    /// Does nothing if the texts are equal.
    virtual CString &operator=(const CString &other);
    /// The form for a string that is not const: does nothing only if other is this very object.
    virtual CString &operator=(CString &other);
    virtual CString &operator+=(const char *text);
    virtual CString &operator+=(const CString &other);
    virtual bool operator==(const CString &other) const;
    virtual bool operator==(const char *text) const;
    virtual bool operator!=(const CString &other) const;
    virtual bool operator!=(const char *text) const;
    /// True if the number of characters is 0, so never: "" still has its terminator.
    virtual bool operator!() const;
    virtual char operator[](long index) const;  ///< characterAt()
    virtual operator CPascalString() const;     ///< in a block of 256 bytes

    virtual void setString(const CString &other);
    virtual void setString(const char *text);  ///< null is ignored
    /// As printf writes it; a format that the library refuses leaves the string alone.
    [[gnu::format(printf, 2, 3)]] virtual void setStringWithFormat(const char *format, ...);
    virtual void appendString(const CString &other);
    virtual void appendString(const char *text);
    virtual void appendString(char character);
    virtual const char *getString() const;  ///< owned by the string, valid until it next changes
    /// getString(buffer, 8): at most seven characters arrive.
    virtual void getString(char *buffer) const;
    /// Fills the buffer with zeros, then copies the text, cut to size - 1 bytes if it is longer.
    /// @param buffer  of size bytes; null is ignored, and so is a size below 1.
    virtual void getString(char *buffer, long size) const;
    /// The text from start to end, end included. "" unless 0 <= start < end <= number of
    /// characters: a single character cannot be taken this way.
    virtual CString getSubString(long start, long end) const;
    virtual std::int32_t getNumberOfCharacters() const;  ///< with the terminator
    virtual char characterAt(long index) const;          ///< a blank outside the string
    virtual void toUpperCase();
    virtual void toLowerCase();
    virtual void removeTrailingAndLeadingWhiteSpace();
    virtual void removeLeadingWhiteSpace();
    /// Leaves a text of nothing but white space as it is, and empties one whose last other
    /// character is its first.
    virtual void removeTrailingWhiteSpace();
    virtual void removeLastCharacter();
    /// At every position before the final terminator.
    virtual void replaceCharWithChar(char find, char replacement);
    virtual void replaceCharWithString(char find, const CString &replacement);
    /// Replaces one occurrence after the other, each looked for by findSubString() in the text that
    /// the last one left. A character that stands alone before an occurrence is lost with it.
    /// Does nothing where there would be no end: if find is "" or is the replacement itself.
    virtual void replaceStringWithChar(char replacement, const CString &find);
    virtual bool equals(const CString &other) const;
    virtual bool equals(const char *text) const;
    virtual bool equalsIgnoringCase(const CString &other) const;
    virtual bool equalsIgnoringCase(const char *text) const;
    virtual std::int32_t findForward(char character) const;    ///< first index, terminator included
    virtual std::int32_t findBackwards(char character) const;  ///< last index, terminator included

    /// Index of needle, or -1. Only the first place where needle's first character stands is tried,
    /// so "ab" is not found in "aab".
    std::int32_t findSubString(const CString &needle) const;
    static bool isWhiteSpace(char character);  ///< a blank, or 9 to 13
    /// True if every position is white space. The terminator is one and is not, so always false.
    bool isWhiteSpace() const;

    static CString toString(double value);  ///< "%.3f"
    static CString toString(float value);   ///< "%.3f"
    static CString toString(int value);     ///< "%03i"
    static CString toString(long value);    ///< "%03li"

    /// Text to number, as far as the text can be read and 0 if not at all. What the type cannot
    /// hold becomes the nearest whole number that it can, or an infinity.
    static double toDouble(const char *text);
    static double toDouble(const CString &text);
    static float toFloat(const char *text);
    static float toFloat(const CString &text);
    static long toLong(const char *text);
    static long toLong(const CString &text);
    static int toInt(const char *text);
    static int toInt(const CString &text);

protected:
    /// Writes a terminator at an index of the string. The number of characters stays as it is.
    void terminateAt(std::int32_t index);
    /// The text of so many characters from an index on, or up to a terminator among them. Unlike
    /// getSubString(), it can take one character. Not checked: all must lie inside the string.
    CString charactersFrom(long index, long number) const;

private:
    static TClassRecord<CString> s_class;

    CString(const char *text, std::size_t length);

    void store(std::size_t size, std::string_view text, std::string_view appended);

    std::unique_ptr<char[]> m_text;         // never null once constructed
    std::int32_t m_numberOfCharacters = 0;  // bytes in the block
};

}  // namespace Tessitor::Basics
