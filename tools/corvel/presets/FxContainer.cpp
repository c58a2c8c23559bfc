#include "corvel/presets/FxContainer.h"

#include "corvel/presets/Encoding.h"

#include <cstring>

namespace Tessitor::Tool {

namespace {

using Corvel::SProgram;

constexpr std::uint32_t fourLetters(const char (&letters)[5]) {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(letters[i]);
    return number;
}

constexpr std::uint32_t container = fourLetters("CcnK");
constexpr std::uint32_t programChunk = fourLetters("FPCh");
constexpr std::uint32_t bankChunk = fourLetters("FBCh");
constexpr std::uint32_t programValues = fourLetters("FxCk");
constexpr std::uint32_t bankValues = fourLetters("FxBk");

constexpr std::uint32_t effectVersion = 1;
constexpr std::size_t nameBytes = 28;
constexpr std::size_t reservedBytes = 124;

/// Takes fields from the front of a file.
class CFields {
public:
    explicit CFields(std::string_view bytes) : m_left(bytes) {}

    std::string_view bytes(std::size_t count) {
        if (m_left.size() < count)
            throw CPresetError("truncated");
        const std::string_view taken = m_left.substr(0, count);
        m_left.remove_prefix(count);
        return taken;
    }

    std::uint32_t number() {
        std::uint32_t number = 0;
        for (const char byte : bytes(4))
            number = number << 8 | static_cast<unsigned char>(byte);
        return number;
    }

    std::size_t left() const { return m_left.size(); }

private:
    std::string_view m_left;
};

void append(std::string &bytes, std::uint32_t number) {
    for (const int shift : {24, 16, 8, 0})
        bytes += static_cast<char>(number >> shift & 0xFFu);
}

std::string letters(std::uint32_t number) {
    std::string bytes;
    append(bytes, number);
    return shortQuote(bytes);
}

bool isKindOfBank(std::uint32_t kind) {
    if (kind == programValues || kind == bankValues)
        throw CPresetError("holds parameter values without the chain; only presets with the "
                           "effect's own chunk can be used");
    if (kind != programChunk && kind != bankChunk)
        throw CPresetError("not a preset (unknown kind " + letters(kind) + ")");
    return kind == bankChunk;
}

void requireEffect(std::uint32_t id) {
    constexpr auto own = static_cast<std::uint32_t>(Corvel::uniqueId);
    if (id != own)
        throw CPresetError("a preset of another effect (id " + letters(id) + ", not " +
                           letters(own) + ")");
}

std::vector<SProgram> programsFrom(std::string_view chunk, std::size_t count) {
    std::vector<SProgram> programs(count);
    std::memcpy(programs.data(), chunk.data(), chunk.size());
    return programs;
}

}  // namespace

bool isFx(std::string_view bytes) {
    return bytes.size() >= 4 && CFields(bytes).number() == container;
}

SPreset presetFromFx(std::string_view bytes) {
    if (!isFx(bytes))
        throw CPresetError("not a preset (it does not start with \"CcnK\")");
    CFields fields(bytes.substr(4));
    const std::uint32_t size = fields.number();
    const std::size_t sizeInFact = fields.left();
    const bool isBank = isKindOfBank(fields.number());
    const std::uint32_t version = fields.number();
    if (version < 1 || version > (isBank ? 2u : 1u))
        throw CPresetError("unknown version " + std::to_string(version) + " of the file format");
    requireEffect(fields.number());
    // The effect's version and the number of its parameters or programs say nothing about a chunk.
    fields.bytes(8);

    SPreset preset;
    if (isBank) {
        const std::uint32_t current = fields.number();
        fields.bytes(reservedBytes);
        preset.current = version == 1 ? 0 : current;
        if (preset.current >= Corvel::programCount)
            throw CPresetError("its current program is " + std::to_string(current) +
                               ", outside 0 to " + std::to_string(Corvel::programCount - 1));
    } else {
        fields.bytes(nameBytes);  // the chunk has the name, too
    }

    const std::size_t count = isBank ? Corvel::programCount : 1;
    const std::uint32_t chunkSize = fields.number();
    if (chunkSize != count * sizeof(SProgram))
        throw CPresetError("its chunk has " + std::to_string(chunkSize) + " bytes, not " +
                           std::to_string(count * sizeof(SProgram)));
    preset.programs = programsFrom(fields.bytes(chunkSize), count);
    if (fields.left() > 0)
        throw CPresetError("has " + std::to_string(fields.left()) + " bytes too many at its end");
    // Some hosts leave this field 0.
    if (size != 0 && size != sizeInFact)
        throw CPresetError("states a size of " + std::to_string(size) + " bytes, but has " +
                           std::to_string(sizeInFact));
    requireSound(preset);
    return preset;
}

std::string fxFromPreset(const SPreset &preset) {
    const bool isBank = preset.isBank();
    // Only version 2 can name the current program, but some hosts read only version 1.
    const std::uint32_t version = isBank && preset.current > 0 ? 2 : 1;
    std::string content;
    append(content, isBank ? bankChunk : programChunk);
    append(content, version);
    append(content, static_cast<std::uint32_t>(Corvel::uniqueId));
    append(content, effectVersion);
    append(content, isBank ? Corvel::programCount : kParameterCount);
    if (isBank) {
        append(content, static_cast<std::uint32_t>(preset.current));
        content.append(reservedBytes, '\0');
    } else {
        const auto &name = preset.programs[0].name;
        content += std::string(name.data());
        content.resize(content.size() + nameBytes - std::strlen(name.data()), '\0');
    }
    const auto chunkSize = static_cast<std::uint32_t>(preset.programs.size() * sizeof(SProgram));
    append(content, chunkSize);
    content.append(reinterpret_cast<const char *>(preset.programs.data()), chunkSize);

    std::string bytes;
    append(bytes, container);
    append(bytes, static_cast<std::uint32_t>(content.size()));
    return bytes + content;
}

}  // namespace Tessitor::Tool
