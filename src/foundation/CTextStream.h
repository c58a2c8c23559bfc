#pragma once

#include "foundation/CSystemString.h"
#include "foundation/EStreamMode.h"

#include <fstream>

namespace Tessitor::IO {

/// Reads or writes a text file. Nothing throws. Writing to a stream that is not open for writing is
/// ignored, and so is reading from one that is not open for reading. Numbers have the default
/// format of the standard stream in the classic locale, and line ends are not translated, so a file
/// has the same bytes on every system. [one thread at a time]
class CTextStream : public Basics::CCountedObject {
public:
    CTextStream();
    CTextStream(const Basics::CSystemString &path, EStreamMode mode);  ///< opens at once
    CTextStream(const CTextStream &) = delete;
    CTextStream &operator=(const CTextStream &) = delete;
    ~CTextStream() override;  ///< closes
    Basics::CClass &getClass() const override { return s_class; }

    /// Closes the open file. In write mode the new file is created or emptied.
    /// @return false if the system refuses, or if the path is a folder.
    bool open(const Basics::CSystemString &path, EStreamMode mode);
    void close();
    bool isOpenForWriting() const { return m_isOpen && m_mode == EStreamMode::Write; }
    bool isOpenForReading() const { return m_isOpen && m_mode == EStreamMode::Read; }
    bool isEndOfFile() const;  ///< true if not open; false while writing
    /// True after a line that was too long, a text that was not a number, or a system error. A full
    /// disk is only noticed when the stream is flushed. The end of the file is not a failure.
    bool hasFailed() const;
    void flush();

    CTextStream &operator<<(const char *text);  ///< flushes; null is ignored
    CTextStream &operator<<(const Basics::CString &text);
    CTextStream &operator<<(const Basics::CSystemString &text);
    /// Up to 256 bytes of the object's description.
    CTextStream &operator<<(const Basics::ICountedObject &object);
    CTextStream &operator<<(bool value);  ///< "true" or "false"
    CTextStream &operator<<(int value);
    CTextStream &operator<<(long value);
    CTextStream &operator<<(float value);
    CTextStream &operator<<(double value);

    /// Reads a line, without its line feed and a carriage return before that. Of a line of more
    /// than 2047 bytes it reads the first 2047, and the stream fails. A stream that has failed or
    /// ended returns the last line again, or "Empty string" if it has read none.
    CTextStream &operator>>(Basics::CString &line);
    CTextStream &operator>>(Basics::CSystemString &line);
    /// Skips white space and reads a number. If there is none, the value becomes 0 and the stream
    /// fails. A stream that has already failed leaves the value alone.
    CTextStream &operator>>(int &value);
    CTextStream &operator>>(long &value);
    CTextStream &operator>>(float &value);
    CTextStream &operator>>(double &value);

private:
    template <typename Value>
    CTextStream &write(const Value &value);
    template <typename Value>
    CTextStream &readNumber(Value &value);
    CTextStream &readLine(Basics::CString &line);

    static Basics::TClassRecord<CTextStream> s_class;

    bool m_isOpen = false;
    EStreamMode m_mode = EStreamMode::Read;
    Basics::CSystemString m_path;
    std::ofstream m_output;
    std::ifstream m_input;
    char m_lineBuffer[2048] = "Empty string";
};

}  // namespace Tessitor::IO
