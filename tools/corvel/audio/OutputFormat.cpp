#include "corvel/audio/OutputFormat.h"

#include "corvel/console/Errors.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <sndfile.h>

namespace Tessitor::Tool {

namespace {

struct SContainer {
    std::string_view name;  // in --format; empty if it is only read
    const char *title;      // in messages
    int format;             // to write
    std::vector<int> kin;   // variants: read, and kept in the output
    std::vector<std::string_view> extensions;
    std::vector<int> sampleTypes;  // the least lossy first
};

const std::vector<SContainer> containers = {
    {"wav",
     "WAV",
     SF_FORMAT_WAV,
     {SF_FORMAT_WAVEX, SF_FORMAT_RF64},
     {".wav", ".wave"},
     {SF_FORMAT_DOUBLE, SF_FORMAT_FLOAT, SF_FORMAT_PCM_32, SF_FORMAT_PCM_24, SF_FORMAT_PCM_16,
      SF_FORMAT_PCM_U8}},
    {"aiff",
     "AIFF",
     SF_FORMAT_AIFF,
     {},
     {".aiff", ".aif", ".aifc"},
     {SF_FORMAT_DOUBLE, SF_FORMAT_FLOAT, SF_FORMAT_PCM_32, SF_FORMAT_PCM_24, SF_FORMAT_PCM_16,
      SF_FORMAT_PCM_S8}},
    {"flac",
     "FLAC",
     SF_FORMAT_FLAC,
     {},
     {".flac"},
     {SF_FORMAT_PCM_24, SF_FORMAT_PCM_16, SF_FORMAT_PCM_S8}},
    {"ogg", "Ogg", SF_FORMAT_OGG, {}, {".ogg", ".oga"}, {SF_FORMAT_VORBIS, SF_FORMAT_OPUS}},
    {"", "MP3", SF_FORMAT_MPEG, {}, {}, {}},
    {"", "W64", SF_FORMAT_W64, {}, {}, {}},
    {"", "CAF", SF_FORMAT_CAF, {}, {}, {}},
    {"", "AU", SF_FORMAT_AU, {}, {}, {}},
    {"", "no header", SF_FORMAT_RAW, {}, {}, {}},
};

struct SSampleType {
    const char *name;   // in --format
    const char *title;  // in messages
    int format;
    int bits;  // per integer sample; 0 for floating point
};

constexpr SSampleType sampleTypes[] = {
    {"8", "8-bit", SF_FORMAT_PCM_U8, 8},
    {"8", "8-bit", SF_FORMAT_PCM_S8, 8},
    {"16", "16-bit", SF_FORMAT_PCM_16, 16},
    {"24", "24-bit", SF_FORMAT_PCM_24, 24},
    {"32", "32-bit", SF_FORMAT_PCM_32, 32},
    {"float", "32-bit float", SF_FORMAT_FLOAT, 0},
    {"double", "64-bit float", SF_FORMAT_DOUBLE, 0},
    {"vorbis", "Vorbis", SF_FORMAT_VORBIS, 0},
    {"opus", "Opus", SF_FORMAT_OPUS, 0},
    {"", "layer I", SF_FORMAT_MPEG_LAYER_I, 0},
    {"", "layer II", SF_FORMAT_MPEG_LAYER_II, 0},
    {"", "layer III", SF_FORMAT_MPEG_LAYER_III, 0},
    {"", "16-bit ALAC", SF_FORMAT_ALAC_16, 16},
    {"", "20-bit ALAC", SF_FORMAT_ALAC_20, 24},
    {"", "24-bit ALAC", SF_FORMAT_ALAC_24, 24},
    {"", "32-bit ALAC", SF_FORMAT_ALAC_32, 32},
};

// Companded and adaptive sample types are encoded from 16-bit integers.
constexpr SSampleType companded = {"", "compressed", 0, 16};

int containerOf(int format) {
    return format & SF_FORMAT_TYPEMASK;
}

int sampleTypeOf(int format) {
    return format & SF_FORMAT_SUBMASK;
}

template <typename Value>
bool contains(const std::vector<Value> &values, const std::type_identity_t<Value> &value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

const SContainer *findContainer(int format) {
    const int wanted = containerOf(format);
    for (const SContainer &container : containers)
        if (container.format == wanted || contains(container.kin, wanted))
            return &container;
    return nullptr;
}

const SSampleType &findSampleType(int format) {
    for (const SSampleType &type : sampleTypes)
        if (type.format == sampleTypeOf(format))
            return type;
    return companded;
}

std::string inSmallLetters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

// @return null if the extension belongs to no container.
const SContainer *containerOfExtension(const std::filesystem::path &file) {
    const std::string extension = inSmallLetters(file.extension().string());
    for (const SContainer &container : containers)
        if (contains(container.extensions, std::string_view(extension)))
            return &container;
    return nullptr;
}

// Integers stay integers if the container supports them, since players expect them.
int nearestSampleType(const SContainer &container, int inputFormat) {
    const int sampleType = sampleTypeOf(inputFormat);
    if (contains(container.sampleTypes, sampleType))
        return sampleType;
    const int bits = integerBits(inputFormat);
    if (bits == 0 && contains(container.sampleTypes, SF_FORMAT_FLOAT))
        return SF_FORMAT_FLOAT;
    for (const int candidate : container.sampleTypes)
        if (bits != 0 && integerBits(candidate) == bits)
            return candidate;
    return container.sampleTypes.front();
}

}  // namespace

SFormatRequest formatFromText(std::string_view text) {
    const std::size_t colon = text.find(':');
    const std::string name = inSmallLetters(std::string(text.substr(0, colon)));
    const auto container =
        std::find_if(containers.begin(), containers.end(),
                     [&](const SContainer &candidate) { return candidate.name == name; });
    if (container == containers.end() || name.empty())
        throw CCallError("--format: no container \"" + name + "\"; use wav, aiff, flac or ogg");
    if (colon == std::string_view::npos)
        return {container->format, 0};

    const std::string type = inSmallLetters(std::string(text.substr(colon + 1)));
    std::string known;
    for (const int candidate : container->sampleTypes) {
        if (findSampleType(candidate).name == type)
            return {container->format, candidate};
        known += (known.empty() ? "" : ", ") + std::string(findSampleType(candidate).name);
    }
    throw CCallError("--format: " + name + " has no sample type \"" + type + "\"; use " + known);
}

std::vector<std::string> formatTexts() {
    std::vector<std::string> texts;
    for (const SContainer &container : containers) {
        texts.emplace_back(container.name);
        for (const int type : container.sampleTypes)
            texts.push_back(std::string(container.name) + ":" + findSampleType(type).name);
    }
    return texts;
}

int outputFormat(int inputFormat, const SFormatRequest &request, const std::filesystem::path &out) {
    const SContainer *input = findContainer(inputFormat);
    const SContainer *asked =
        request.container != 0 ? findContainer(request.container) : containerOfExtension(out);
    // What is only read becomes WAV.
    const bool isWritten = !input->name.empty();
    const SContainer &container = asked != nullptr ? *asked
                                  : isWritten      ? *input
                                                   : containers.front();
    if (request.sampleType != 0)
        return container.format | request.sampleType;
    if (&container == input)
        return inputFormat;
    return container.format | nearestSampleType(container, inputFormat);
}

bool isExtensionOf(int container, const std::filesystem::path &file) {
    return containerOfExtension(file) == findContainer(container);
}

std::string problemOfName(const std::filesystem::path &out, const SFormatRequest &request) {
    const SContainer *const ending = containerOfExtension(out);
    if (ending == nullptr && request.container == 0 && out.has_extension()) {
        std::string endings;
        for (const SContainer &container : containers)
            for (const std::string_view extension : container.extensions)
                endings.append(endings.empty() ? "" : " ").append(extension);
        return "corvel does not write " + out.extension().string() + "; use --format or one of " +
               endings;
    }
    if (ending != nullptr && request.container != 0 && ending != findContainer(request.container))
        return std::string("its ending means ").append(ending->title) + ", but --format asks for " +
               findContainer(request.container)->title;
    return "";
}

int formatForLength(int format, std::int64_t frames, int channels,
                    const std::filesystem::path &out) {
    const int bytes = bytesPerSample(format);
    // With room for the header
    constexpr std::int64_t limit = std::numeric_limits<std::uint32_t>::max() - 4096;
    if (frames <= limit / bytes / channels)
        return format;
    if (containerOf(format) == SF_FORMAT_AIFF)
        throw CJobError(out.string() + ": too long for AIFF, which cannot exceed 4 GiB");
    return formatForUnknownLength(format);
}

int formatForUnknownLength(int format) {
    return isWav(format) ? SF_FORMAT_RF64 | sampleTypeOf(format) : format;
}

bool isKnownContainer(int format) {
    return findContainer(format) != nullptr;
}

bool isWav(int format) {
    return findContainer(format) == &containers.front();
}

std::string extensionOf(int format) {
    return std::string(findContainer(format)->extensions.front());
}

std::string describeFormat(int format) {
    return std::string(findContainer(format)->title) + ", " + findSampleType(format).title;
}

int integerBits(int format) {
    return findSampleType(format).bits;
}

int bytesPerSample(int format) {
    const int bits = integerBits(format);
    return bits != 0 ? bits / 8 : sampleTypeOf(format) == SF_FORMAT_DOUBLE ? 8 : 4;
}

}  // namespace Tessitor::Tool
