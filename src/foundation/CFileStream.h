#pragma once

#include "foundation/CCountedObject.h"
#include "foundation/CSystemString.h"
#include "foundation/EStreamMode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstdint>
#include <cstdio>

namespace Tessitor::IO {

/// A type of the same size on every system, so not long.
template <typename Value>
concept BinaryValue = std::same_as<Value, char> || std::same_as<Value, std::int8_t> ||
    std::same_as<Value, std::uint8_t> || std::same_as<Value, std::int16_t> ||
    std::same_as<Value, std::uint16_t> || std::same_as<Value, std::int32_t> ||
    std::same_as<Value, std::uint32_t> || std::same_as<Value, std::int64_t> ||
    std::same_as<Value, std::uint64_t> || std::same_as<Value, float> || std::same_as<Value, double>;

/// Reads or writes a file of binary data, in either byte order. Nothing throws: the stream
/// remembers if an operator fails, and the caller asks hasFailed() at the end of a sequence.
/// Positions are longs, so on Windows they end at 2 GB. [one thread at a time]
class CFileStream : public Basics::CCountedObject {
public:
    CFileStream();
    CFileStream(const Basics::CSystemString &path, EStreamMode mode,
                bool fileIsLittleEndian = false);  ///< opens at once
    CFileStream(const CFileStream &) = delete;
    CFileStream &operator=(const CFileStream &) = delete;
    ~CFileStream() override;  ///< closes
    Basics::CClass &getClass() const override { return s_class; }

    /// Closes the open file and clears the failure. In write mode the new file is created or
    /// emptied.
    /// @param fileIsLittleEndian  byte order of the values in the file. The machine is assumed to
    ///                            be little-endian.
    /// @param ignoreByteOrder     never swaps bytes, whatever the order of the file.
    /// @return false if the system refuses, or if the path is a folder.
    bool open(const Basics::CSystemString &path, EStreamMode mode, bool fileIsLittleEndian = false,
              bool ignoreByteOrder = false);
    /// Sets the failure if the last bytes cannot be written, for example because the disk is full.
    void close();
    bool isOpen() const { return m_isOpen; }
    bool hasFailed() const { return m_failed; }
    /// True once a read has gone past the end; reading the last byte is not enough. True if not
    /// open.
    bool isEndOfFile() const;

    /// @return false if not open, or if the system refuses. Seeking sets no failure.
    bool seekFromStart(long offset);
    bool seekFromHere(long offset);
    bool rewind();

    /// @return the length in bytes; -1 if the stream is not open for reading, or if it cannot seek,
    ///         like a pipe. Only the second sets the failure.
    long getStreamLength();

    /// Transfer bytes without swapping them.
    /// @param buffer  size bytes.
    /// @return true if all of them were transferred. If the stream is not open in this direction,
    ///         the file is left alone. These operations never set the failure.
    bool write(const void *buffer, std::size_t size);
    bool read(void *buffer, std::size_t size);

    /// These set the failure if the stream is not open for writing or not all bytes are written.
    template <BinaryValue Value>
    CFileStream &operator<<(Value value);
    template <std::same_as<bool> Flag>
    CFileStream &operator<<(Flag value);  ///< one byte, 1 or 0

    /// These set the failure if the stream is not open for reading or the file ends within the
    /// value. The value is then unchanged.
    template <BinaryValue Value>
    CFileStream &operator>>(Value &value);
    template <std::same_as<bool> Flag>
    CFileStream &operator>>(Flag &value);  ///< one byte, true only for 1

private:
    bool isSwapped() const { return !m_ignoreByteOrder && !m_fileIsLittleEndian; }
    bool seek(long offset, int origin);

    static Basics::TClassRecord<CFileStream> s_class;

    std::FILE *m_file = nullptr;
    EStreamMode m_mode = EStreamMode::Read;
    bool m_isOpen = false;
    bool m_failed = false;
    bool m_fileIsLittleEndian = false;
    bool m_ignoreByteOrder = false;
};

// Definitions
template <BinaryValue Value>
CFileStream &CFileStream::operator<<(Value value) {
    auto bytes = std::bit_cast<std::array<char, sizeof(Value)>>(value);
    if (isSwapped())
        std::ranges::reverse(bytes);
    if (!write(bytes.data(), bytes.size()))
        m_failed = true;
    return *this;
}

template <std::same_as<bool> Flag>
CFileStream &CFileStream::operator<<(Flag value) {
    return *this << static_cast<std::uint8_t>(value ? 1 : 0);
}

template <BinaryValue Value>
CFileStream &CFileStream::operator>>(Value &value) {
    std::array<char, sizeof(Value)> bytes;
    if (!read(bytes.data(), bytes.size())) {
        m_failed = true;
        return *this;
    }
    if (isSwapped())
        std::ranges::reverse(bytes);
    value = std::bit_cast<Value>(bytes);
    return *this;
}

template <std::same_as<bool> Flag>
CFileStream &CFileStream::operator>>(Flag &value) {
    char byte;
    if (read(&byte, 1))
        value = byte == 1;
    else
        m_failed = true;
    return *this;
}

}  // namespace Tessitor::IO
