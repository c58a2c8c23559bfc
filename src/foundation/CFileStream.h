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

/// What has the same size in a file of every system. A long has not.
template <typename Value>
concept BinaryValue = std::same_as<Value, char> || std::same_as<Value, std::int8_t> ||
    std::same_as<Value, std::uint8_t> || std::same_as<Value, std::int16_t> ||
    std::same_as<Value, std::uint16_t> || std::same_as<Value, std::int32_t> ||
    std::same_as<Value, std::uint32_t> || std::same_as<Value, std::int64_t> ||
    std::same_as<Value, std::uint64_t> || std::same_as<Value, float> || std::same_as<Value, double>;

/// A file of binary data, read or written, and the order of its bytes. Nothing throws: what the
/// operators cannot do is remembered, for the caller to ask hasFailed() at the end of a sequence.
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

    /// Closes what is open and forgets its failure. Writing makes the file, or empties it.
    /// @param fileIsLittleEndian  the order of the bytes of a value in the file; the host counts as
    ///                            little-endian.
    /// @param ignoreByteOrder     bytes are left as they are in memory, whatever the file's order.
    /// @return false if the system refuses, or if a folder is to be read.
    bool open(const Basics::CSystemString &path, EStreamMode mode, bool fileIsLittleEndian = false,
              bool ignoreByteOrder = false);
    /// What was written may only reach a full disk now: that sets the failure.
    void close();
    bool isOpen() const { return m_isOpen; }
    bool hasFailed() const { return m_failed; }
    /// The end of the file has been met, not just reached. True if not open.
    bool isEndOfFile() const;

    /// @return false if not open or refused. These set no failure.
    bool seekFromStart(long offset);
    bool seekFromHere(long offset);
    bool rewind();

    /// @return bytes of the file, or -1: without a failure if it is not open for reading, with one
    ///         if the file cannot be searched.
    long getStreamLength();

    /// Bytes as they are, in no order.
    /// @param buffer  of size bytes.
    /// @return true if all of them went through. False if not open in this direction, without
    ///         touching the file. These set no failure.
    bool write(const void *buffer, std::size_t size);
    bool read(void *buffer, std::size_t size);

    /// These fail if the stream is not open for writing, or if not all bytes are taken.
    template <BinaryValue Value>
    CFileStream &operator<<(Value value);
    template <std::same_as<bool> Flag>
    CFileStream &operator<<(Flag value);  ///< one byte, 1 or 0

    /// These fail if the stream is not open for reading, or if the file ends inside the value; the
    /// value is then left alone.
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
