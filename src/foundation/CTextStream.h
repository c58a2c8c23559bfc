#pragma once

#include "foundation/CSystemString.h"
#include "foundation/EStreamMode.h"

#include <fstream>

namespace Tessitor::IO {

/// A file of text, read or written. Failures throw nothing: opening reports its own, and what does
/// not fit the state of the stream is ignored. Numbers go by the standard stream's defaults in the
/// classic locale, whatever the host has set, and line ends are not translated: a file has the same
/// bytes on every system. [one thread at a time]
class CTextStream : public Basics::CCountedObject {
public:
    CTextStream();
    CTextStream(const Basics::CSystemString &path, EStreamMode mode);  ///< opens at once
    CTextStream(const CTextStream &) = delete;
    CTextStream &operator=(const CTextStream &) = delete;
    ~CTextStream() override;  ///< closes
    Basics::CClass &getClass() const override { return s_class; }

    /// Closes what is open. Writing makes the file, or empties it.
    /// @return false if the system refuses, or if a folder is to be read.
    bool open(const Basics::CSystemString &path, EStreamMode mode);
    void close();
    bool isOpenForWriting() const { return m_isOpen && m_mode == EStreamMode::Write; }
    bool isOpenForReading() const { return m_isOpen && m_mode == EStreamMode::Read; }
    bool isEndOfFile() const;  ///< true if not open; false while writing
    /// Whether what is open has met a line too long, a text that is no number, or the system's
    /// refusal, a full disk for one, as far as it has been flushed. The end of the file is none.
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

    /// Reads a line without its line feed and a carriage return before that. A line above 2047
    /// bytes gives its first 2047 and fails the stream; a stream that has failed or ended gives the
    /// last line again.
    CTextStream &operator>>(Basics::CString &line);
    CTextStream &operator>>(Basics::CSystemString &line);
    /// Skips white space and reads a number: 0, and a failed stream, if there is none.
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
