#include "corvel/presets/PresetFile.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "corvel/files/CPendingFile.h"
#include "corvel/presets/CPresetText.h"
#include "corvel/presets/FxContainer.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace Tessitor::Tool {

namespace {

bool hasEnding(const fs::path &file, const char *ending) {
    return equalInAnyCapitals(file.extension().string(), ending);
}

std::string readBytes(const fs::path &file) {
    constexpr std::uintmax_t largest = 1 << 20;  // JSON of a bank has about 60,000 bytes
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::exists(status))
        throw CJobError(file.string() + ": no such file");
    if (!fs::is_regular_file(status))
        throw CJobError(file.string() + ": not a file");
    if (fs::file_size(file, error) > largest)
        throw CJobError(file.string() + ": too large for a preset");
    std::ifstream stream(file, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(stream)), {});
    if (!stream)
        throw CJobError(file.string() + ": cannot be read");
    return bytes;
}

SPreset presetFrom(const fs::path &file, const std::string &bytes) {
    if (isFx(bytes) || hasEnding(file, ".fxp") || hasEnding(file, ".fxb"))
        return presetFromFx(bytes);
    return CPresetText().presetFrom(bytes);
}

void requireHolding(const fs::path &file, EPresetFormat format, const SPreset &preset) {
    if (format == EPresetFormat::fxp && preset.isBank())
        throw CJobError(file.string() + ": an .fxp file holds one program; choose one as in " +
                        "bank.fxb:3");
    if (format == EPresetFormat::fxb && !preset.isBank())
        throw CJobError(file.string() + ": an .fxb file holds a bank of " +
                        std::to_string(Corvel::programCount) + " programs, not a single one");
}

}  // namespace

EPresetFormat presetFormatOf(const fs::path &file) {
    if (hasEnding(file, ".fxp"))
        return EPresetFormat::fxp;
    if (hasEnding(file, ".fxb"))
        return EPresetFormat::fxb;
    if (hasEnding(file, ".json"))
        return EPresetFormat::json;
    throw CCallError(file.string() + ": not a preset file's ending; use .fxp, .fxb or .json");
}

SPresetPlace presetPlaceFrom(const std::string &text) {
    const std::size_t colon = text.rfind(':');
    std::error_code error;
    if (colon == std::string::npos || fs::exists(text, error))
        return {text, {}};
    std::size_t program = 0;
    const char *const last = text.data() + text.size();
    const auto result = std::from_chars(text.data() + colon + 1, last, program);
    if (result.ptr != last || result.ec != std::errc() || colon + 1 == text.size())
        return {text, {}};
    return {text.substr(0, colon), program};
}

SPreset readPreset(const fs::path &file) {
    const std::string bytes = readBytes(file);
    try {
        return presetFrom(file, bytes);
    } catch (const CPresetError &error) {
        throw CJobError(file.string() + ": " + error.what());
    }
}

SPreset readPreset(const SPresetPlace &place) {
    SPreset preset = readPreset(place.file);
    if (!place.program)
        return preset;
    if (*place.program >= preset.programs.size())
        throw CJobError(place.file.string() + ": has no program " + std::to_string(*place.program) +
                        (preset.isBank() ? ", only 0 to 19" : ", only one program"));
    return {{preset.programs[*place.program]}, 0};
}

Corvel::SProgram readProgram(const std::string &text) {
    const SPreset preset = readPreset(presetPlaceFrom(text));
    return preset.programs[preset.current];
}

void requireWritable(const fs::path &file, bool replace) {
    presetFormatOf(file);
    std::error_code ignored;
    if (!replace && fs::exists(file, ignored))
        throw CJobError(file.string() + ": exists already; --force replaces it");
}

void writePreset(const fs::path &file, const SPreset &preset, bool replace) {
    const EPresetFormat format = presetFormatOf(file);
    requireHolding(file, format, preset);
    requireWritable(file, replace);
    CPendingFile pending(file, replace ? EExisting::Replaced : EExisting::Kept);
    std::ofstream stream(pending.path(), std::ios::binary);
    stream << (format == EPresetFormat::json ? CPresetText().textFrom(preset)
                                             : fxFromPreset(preset));
    stream.close();
    if (!stream)
        throw CJobError(file.string() + ": cannot be written");
    pending.commit();
}

}  // namespace Tessitor::Tool
