#pragma once

#include "foundation/CCountedObject.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace Tessitor::Basics {

class CPascalString;

/// A string of bytes on the heap, in the system's narrow character set.
///
/// The number of characters includes the terminator: it is 1 for "", and the terminator has index
/// getNumberOfCharacters() - 1. It is the size of the block. Once a terminator has been written
/// into the middle (see CSystemString::removeExtension()), the block is larger than its text, and
/// operations that work on positions also see the bytes after that terminator.
///
/// Text arguments may point into the string itself. They must not be null unless the operation
/// allows it. For a bad index, operations return a blank or ""; for a failed search, -1.
///
/// When memory runs out, or a text would exceed 2 GiB, an operation throws CException. Its reason
/// lists every operation that the failure passed through. If there is no memory for that reason
/// either, std::bad_alloc is thrown. Every string stays valid, but an operation of several steps
/// may have done some of them.
///
/// A string belongs to one thread at a time.
class CString : public CCountedObject {
public:
    CString(const char *text = "");  ///< null counts as ""
    CString(const CString &other);
    ~CString() override;

    /// Same as getString(array, size).
    void getObjectDescription(char *array, long size) const override;
    CClass &getClass() const override { return s_class; }

    virtual CString &operator=(bool value);   ///< "True" or "False"
    virtual CString &operator=(long value);   ///< "%.3li": 7 becomes "007"
    virtual CString &operator=(int value);    ///< as for long
    virtual CString &operator=(float value);  ///< "%.3f"
    virtual CString &operator=(const char *text);
    /// Does nothing if the texts are equal.
    virtual CString &operator=(const CString &other);
    /// Overload for a string that is not const. Copies even an equal text; does nothing only if
    /// other is this object.
    virtual CString &operator=(CString &other);
    virtual CString &operator+=(const char *text);
    virtual CString &operator+=(const CString &other);
    virtual bool operator==(const CString &other) const;
    virtual bool operator==(const char *text) const;
    virtual bool operator!=(const CString &other) const;
    virtual bool operator!=(const char *text) const;
    /// True if the number of characters is 0. Kept: that is never so, since "" has a terminator.
    virtual bool operator!() const;
    virtual char operator[](long index) const;  ///< characterAt()
    virtual operator CPascalString() const;     ///< in a block of 256 bytes

    virtual void setString(const CString &other);
    virtual void setString(const char *text);  ///< null is ignored
    /// Stores what printf would write. If the C library rejects the format, nothing changes.
    [[gnu::format(printf, 2, 3)]] virtual void setStringWithFormat(const char *format, ...);
    virtual void appendString(const CString &other);
    virtual void appendString(const char *text);
    virtual void appendString(char character);
    virtual const char *getString() const;  ///< owned by the string, valid until it next changes
    /// Same as getString(buffer, 8), so at most seven characters are copied.
    virtual void getString(char *buffer) const;
    /// Fills the buffer with zeros, then copies the text, cut to size - 1 bytes if it is longer.
    /// @param buffer  of size bytes; null is ignored, and so is a size below 1.
    virtual void getString(char *buffer, long size) const;
    /// The text from start to end, both included. "" unless 0 <= start < end <= number of
    /// characters. Kept: getSubString(2, 2) is therefore "".
    virtual CString getSubString(long start, long end) const;
    virtual std::int32_t getNumberOfCharacters() const;  ///< including the terminator
    virtual char characterAt(long index) const;          ///< a blank outside the string
    virtual void toUpperCase();
    virtual void toLowerCase();
    virtual void removeTrailingAndLeadingWhiteSpace();
    virtual void removeLeadingWhiteSpace();
    /// Kept: a text of white space alone stays unchanged. A text with nothing but white space after
    /// its first character becomes "", so a single letter is lost.
    virtual void removeTrailingWhiteSpace();
    virtual void removeLastCharacter();
    /// Replaces at every position before the final terminator.
    virtual void replaceCharWithChar(char find, char replacement);
    virtual void replaceCharWithString(char find, const CString &replacement);
    /// Replaces what findSubString() finds, then searches the new text again, until nothing is
    /// found. Kept: if exactly one character comes before an occurrence, that character is lost.
    /// Does nothing if find is "" or equals the replacement, since the search would never end.
    virtual void replaceStringWithChar(char replacement, const CString &find);
    virtual bool equals(const CString &other) const;
    virtual bool equals(const char *text) const;
    virtual bool equalsIgnoringCase(const CString &other) const;
    virtual bool equalsIgnoringCase(const char *text) const;
    virtual std::int32_t findForward(char character) const;    ///< first index, terminator included
    virtual std::int32_t findBackwards(char character) const;  ///< last index, terminator included

    /// Index of needle, or -1. Kept: only the first place where needle's first character occurs is
    /// tried, so "ab" is not found in "aab".
    std::int32_t findSubString(const CString &needle) const;
    static bool isWhiteSpace(char character);  ///< a blank, or a code from 9 to 13
    /// True if every position is white space. Kept: that is never so, since the terminator is not.
    bool isWhiteSpace() const;

    static CString toString(double value);  ///< "%.3f"
    static CString toString(float value);   ///< "%.3f"
    static CString toString(int value);     ///< "%03i"
    static CString toString(long value);    ///< "%03li"

    /// The number at the start of the text, or 0 if there is none. An integer outside the range of
    /// its type becomes the nearest one in range; a floating-point number becomes infinite.
    static double toDouble(const char *text);
    static double toDouble(const CString &text);
    static float toFloat(const char *text);
    static float toFloat(const CString &text);
    static long toLong(const char *text);
    static long toLong(const CString &text);
    static int toInt(const char *text);
    static int toInt(const CString &text);

protected:
    /// Writes a terminator at an index of the string. The number of characters does not change.
    void terminateAt(std::int32_t index);
    /// The `number` characters from an index on, cut at the first terminator among them. Unlike
    /// getSubString(), it can return one character. The range is not checked.
    CString charactersFrom(long index, long number) const;

private:
    static TClassRecord<CString> s_class;

    CString(const char *text, std::size_t length);

    void store(std::size_t size, std::string_view text, std::string_view appended);

    std::unique_ptr<char[]> m_text;         // never null once constructed
    std::int32_t m_numberOfCharacters = 0;  // bytes in the block
};

}  // namespace Tessitor::Basics
