#include "foundation/CFileStream.h"

#include "foundation/FileExists.h"

namespace Tessitor::IO {

Basics::TClassRecord<CFileStream> CFileStream::s_class("CFileStream", "CCountedObject");

CFileStream::CFileStream() {
    s_class.incrementInstanceCount();
}

CFileStream::CFileStream(const Basics::CSystemString &path, EStreamMode mode,
                         bool fileIsLittleEndian)
    : CFileStream() {
    open(path, mode, fileIsLittleEndian);
}

CFileStream::~CFileStream() {
    close();
    s_class.decrementInstanceCount();
}

bool CFileStream::open(const Basics::CSystemString &path, EStreamMode mode, bool fileIsLittleEndian,
                       bool ignoreByteOrder) {
    close();
    m_failed = false;
    if (!Host::folderExists(path))
        m_file = std::fopen(path.getString(), mode == EStreamMode::Write ? "w+b" : "rb");
    m_mode = mode;
    m_isOpen = m_file != nullptr;
    m_fileIsLittleEndian = fileIsLittleEndian;
    m_ignoreByteOrder = ignoreByteOrder;
    return m_isOpen;
}

void CFileStream::close() {
    if (m_file != nullptr && std::fclose(m_file) != 0)
        m_failed = true;
    m_file = nullptr;
    m_isOpen = false;
}

bool CFileStream::isEndOfFile() const {
    return m_file == nullptr || std::feof(m_file) != 0;
}

bool CFileStream::seek(long offset, int origin) {
    return m_file != nullptr && std::fseek(m_file, offset, origin) == 0;
}

bool CFileStream::seekFromStart(long offset) {
    return seek(offset, SEEK_SET);
}

bool CFileStream::seekFromHere(long offset) {
    return seek(offset, SEEK_CUR);
}

bool CFileStream::rewind() {
    return seekFromStart(0);
}

long CFileStream::getStreamLength() {
    if (!m_isOpen || m_mode != EStreamMode::Read)
        return -1;
    const long position = std::ftell(m_file);
    if (position >= 0 && seek(0, SEEK_END)) {
        const long length = std::ftell(m_file);
        if (seekFromStart(position) && length >= 0)
            return length;
    }
    m_failed = true;
    return -1;
}

bool CFileStream::write(const void *buffer, std::size_t size) {
    return m_isOpen && m_mode == EStreamMode::Write && std::fwrite(buffer, 1, size, m_file) == size;
}

bool CFileStream::read(void *buffer, std::size_t size) {
    return m_isOpen && m_mode == EStreamMode::Read && std::fread(buffer, 1, size, m_file) == size;
}

}  // namespace Tessitor::IO
