#include "corvel/audio/CStreamedSound.h"

#include "corvel/audio/SoundChunk.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Tessitor::Tool {

namespace {

constexpr std::size_t fileHead = 12;   // bytes: "RIFF", a length, "WAVE"
constexpr std::size_t chunkHead = 8;   // bytes: the name and the length
constexpr std::size_t longLength = 8;  // offset in the chunk "ds64", after its head
constexpr std::uint64_t mostHead = std::uint64_t(64) << 20;  // bytes; room for a picture
// The length of a stream that does not say it: longer than any sound, and far from overflow.
constexpr std::uint64_t endless = std::uint64_t(1) << 60;
constexpr std::string_view longestLength = "\xFF\xFF\xFF\xFF";

std::uint64_t numberIn(std::string_view bytes) {
    std::uint64_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return number;
}

std::string bytesOf(std::uint64_t number) {
    std::string bytes;
    for (int i = 0; i < 8; ++i)
        bytes += static_cast<char>(number >> 8 * i & 0xFF);
    return bytes;
}

// Formats that RF64 can hold, since a file of unknown length is presented as one.
bool isPlain(std::uint64_t formatTag) {
    constexpr std::uint64_t plain[] = {1, 3, 6, 7, 0xFFFE};  // integer, float, two laws, extended
    return std::find(std::begin(plain), std::end(plain), formatTag) != std::end(plain);
}

}  // namespace

bool CStreamedSound::readWavHead() {
    if (!readOn(fileHead) || !m_head.ends_with("WAVE") ||
        !(m_head.starts_with("RIFF") || m_head.starts_with("RF64")))
        return false;
    bool isReadable = false;
    std::uint64_t promised64 = 0;
    while (readOn(chunkHead)) {
        const std::size_t chunk = m_head.size();
        const std::string name = m_head.substr(chunk - chunkHead, 4);
        const std::uint64_t size = numberIn(std::string_view(m_head).substr(chunk - 4));
        if (name == "data") {
            m_soundBytes = size == 0xFFFFFFFF && promised64 != 0 ? promised64 : size;
            m_knowsLength = !isPlaceholder(m_soundBytes);
            return isReadable;
        }
        if (!readOn(size + size % 2))
            return false;
        // libsndfile does not expect the byte of padding in RF64.
        m_head.replace(chunk - 4, 4, bytesOf(size + size % 2), 0, 4);
        const std::string_view contents = std::string_view(m_head).substr(chunk);
        if (name == "fmt " && size >= 16)
            isReadable = isPlain(numberIn(contents.substr(0, 2)));
        if (name == "ds64" && size >= 16)
            promised64 = numberIn(contents.substr(longLength, 8));
    }
    return false;
}

bool CStreamedSound::readOn(std::uint64_t bytes) {
    if (bytes > mostHead - m_head.size())
        return false;
    const std::size_t before = m_head.size();
    m_head.resize(before + bytes);
    const std::size_t got = m_input.read(m_head.data() + before, bytes);
    m_head.resize(before + got);
    return got == bytes;
}

// As RF64, whose length has 64 bits: libsndfile reads no further than the length says, and 32 bits
// would end the sound after a few hours.
void CStreamedSound::presentAsEndless() {
    m_soundBytes = endless;
    std::string chunks = m_head.substr(fileHead);
    if (chunks.starts_with("ds64"))
        chunks.erase(0, chunkHead + numberIn(std::string_view(chunks).substr(4, 4)));
    chunks.replace(chunks.size() - longestLength.size(), longestLength.size(), longestLength);
    constexpr char sizeOfLengths = 28;
    m_head.assign("RF64").append(longestLength).append("WAVEds64");
    m_head.append({sizeOfLengths, 0, 0, 0});
    m_head += bytesOf(endless) + bytesOf(endless) + bytesOf(0) + std::string(4, '\0') + chunks;
}

SNDFILE *CStreamedSound::openWav(SF_INFO &info) {
    const bool knowsLength = m_knowsLength;
    if (!knowsLength)
        presentAsEndless();
    SNDFILE *file = open(info);
    if (!knowsLength)
        info.frames = SF_COUNT_MAX;
    if ((info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RF64)
        info.format = SF_FORMAT_WAV | (info.format & SF_FORMAT_SUBMASK);
    return file;
}

SNDFILE *CStreamedSound::openRaw(const SRawFormat &format, SF_INFO &info) {
    m_soundBytes = endless;
    info.format = SF_FORMAT_RAW | format.sampleType | SF_ENDIAN_LITTLE;
    info.samplerate = format.sampleRate;
    info.channels = format.channels;
    SNDFILE *file = open(info);
    info.frames = SF_COUNT_MAX;
    return file;
}

SNDFILE *CStreamedSound::open(SF_INFO &info) {
    static SF_VIRTUAL_IO calls = {
        [](void *sound) { return static_cast<CStreamedSound *>(sound)->m_length; },
        [](sf_count_t offset, int whence, void *sound) {
            return static_cast<CStreamedSound *>(sound)->seek(offset, whence);
        },
        [](void *bytes, sf_count_t count, void *sound) {
            return static_cast<CStreamedSound *>(sound)->read(static_cast<char *>(bytes), count);
        },
        [](const void *, sf_count_t, void *) { return sf_count_t(0); },
        [](void *sound) { return static_cast<CStreamedSound *>(sound)->m_position; }};
    m_arrived = static_cast<sf_count_t>(m_head.size());
    m_length = m_arrived + static_cast<sf_count_t>(m_soundBytes);
    m_isOpening = true;
    SNDFILE *file = sf_open_virtual(&calls, SFM_READ, &info, this);
    m_isOpening = false;
    return file;
}

sf_count_t CStreamedSound::seek(sf_count_t offset, int whence) {
    const sf_count_t from = whence == SEEK_CUR ? m_position : whence == SEEK_END ? m_length : 0;
    m_position = std::clamp(from + offset, sf_count_t(0), m_length);
    return m_position;
}

sf_count_t CStreamedSound::read(char *bytes, sf_count_t count) {
    sf_count_t got = 0;
    if (const auto place = static_cast<std::size_t>(m_position); place < m_head.size())
        got = static_cast<sf_count_t>(m_head.copy(bytes, static_cast<std::size_t>(count), place));
    // A stream can only be read on from where it is.
    if (m_position + got == m_arrived) {
        const sf_count_t wanted = std::min(count - got, m_length - m_arrived);
        const std::size_t arrived = m_input.read(bytes + got, static_cast<std::size_t>(wanted));
        // libsndfile looks at the first samples, and then reads them again.
        if (m_isOpening)
            m_head.append(bytes + got, arrived);
        m_arrived += static_cast<sf_count_t>(arrived);
        got += static_cast<sf_count_t>(arrived);
    }
    m_position += got;
    return got;
}

bool CStreamedSound::copyTo(std::FILE *file) {
    std::array<char, 65536> bytes;
    bool written = std::fwrite(m_head.data(), 1, m_head.size(), file) == m_head.size();
    while (const std::size_t got = written ? m_input.read(bytes.data(), bytes.size()) : 0)
        written = std::fwrite(bytes.data(), 1, got, file) == got;
    m_input.requireNoError();
    return written && std::fflush(file) == 0;
}

}  // namespace Tessitor::Tool
