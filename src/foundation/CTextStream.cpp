#include "foundation/CTextStream.h"

#include "foundation/FileExists.h"

#include <cstring>
#include <locale>

namespace Tessitor::IO {

using Basics::CString;
using Basics::CSystemString;

Basics::TClassRecord<CTextStream> CTextStream::s_class("CTextStream", "CCountedObject");

CTextStream::CTextStream() {
    m_output.imbue(std::locale::classic());
    m_input.imbue(std::locale::classic());
    s_class.incrementInstanceCount();
}

CTextStream::CTextStream(const CSystemString &path, EStreamMode mode) : CTextStream() {
    open(path, mode);
}

CTextStream::~CTextStream() {
    close();
    s_class.decrementInstanceCount();
}

bool CTextStream::open(const CSystemString &path, EStreamMode mode) {
    close();
    m_path.setString(path);
    m_mode = mode;
    if (mode == EStreamMode::Write) {
        m_output.open(m_path.getString(), std::ios::binary | std::ios::trunc);
        m_isOpen = m_output.is_open();
    } else if (!Host::folderExists(m_path)) {
        m_input.open(m_path.getString(), std::ios::binary);
        m_isOpen = m_input.is_open();
    }
    return m_isOpen;
}

void CTextStream::close() {
    if (isOpenForWriting())
        m_output.close();
    if (isOpenForReading())
        m_input.close();
    m_isOpen = false;
}

bool CTextStream::isEndOfFile() const {
    if (isOpenForWriting())
        return false;
    return !isOpenForReading() || m_input.eof();
}

bool CTextStream::hasFailed() const {
    return (isOpenForWriting() && m_output.fail()) ||
           (isOpenForReading() && m_input.fail() && !m_input.eof());
}

void CTextStream::flush() {
    if (isOpenForWriting())
        m_output.flush();
}

template <typename Value>
CTextStream &CTextStream::write(const Value &value) {
    if (isOpenForWriting())
        m_output << value;
    return *this;
}

CTextStream &CTextStream::operator<<(const char *text) {
    if (text == nullptr)
        return *this;
    write(text);
    flush();
    return *this;
}

CTextStream &CTextStream::operator<<(const CString &text) {
    return write(text.getString());
}

CTextStream &CTextStream::operator<<(const CSystemString &text) {
    return write(text.getString());
}

CTextStream &CTextStream::operator<<(const Basics::ICountedObject &object) {
    constexpr long size = 256;
    char description[size + 1] = {};  // one byte more, since a description may lack a terminator
    object.getObjectDescription(description, size);
    return write(description);
}

CTextStream &CTextStream::operator<<(bool value) {
    return write(value ? "true" : "false");
}

CTextStream &CTextStream::operator<<(int value) {
    return write(value);
}

CTextStream &CTextStream::operator<<(long value) {
    return write(value);
}

CTextStream &CTextStream::operator<<(float value) {
    return write(value);
}

CTextStream &CTextStream::operator<<(double value) {
    return write(value);
}

CTextStream &CTextStream::readLine(CString &line) {
    if (!isOpenForReading())
        return *this;
    if (m_input.good()) {
        m_input.getline(m_lineBuffer, sizeof m_lineBuffer);
        const std::size_t length = std::strlen(m_lineBuffer);
        if (length > 0 && m_lineBuffer[length - 1] == '\r')
            m_lineBuffer[length - 1] = '\0';
    }
    line.setString(m_lineBuffer);
    return *this;
}

CTextStream &CTextStream::operator>>(CString &line) {
    return readLine(line);
}

CTextStream &CTextStream::operator>>(CSystemString &line) {
    return readLine(line);
}

template <typename Value>
CTextStream &CTextStream::readNumber(Value &value) {
    if (isOpenForReading())
        m_input >> value;
    return *this;
}

CTextStream &CTextStream::operator>>(int &value) {
    return readNumber(value);
}

CTextStream &CTextStream::operator>>(long &value) {
    return readNumber(value);
}

CTextStream &CTextStream::operator>>(float &value) {
    return readNumber(value);
}

CTextStream &CTextStream::operator>>(double &value) {
    return readNumber(value);
}

}  // namespace Tessitor::IO
