#include "corvel/audio/STags.h"

#include "corvel/presets/Encoding.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Tessitor::Tool {

namespace {

// libsndfile's list of cue points: their number, then as many points as there are
constexpr std::size_t cuesOffset = offsetof(SF_CUES, cue_points);

std::vector<SF_CUE_POINT> cuesOf(SNDFILE *file) {
    std::uint32_t count = 0;
    if (sf_command(file, SFC_GET_CUE_COUNT, &count, sizeof(count)) != SF_TRUE || count == 0)
        return {};
    std::vector<std::byte> list(cuesOffset + count * sizeof(SF_CUE_POINT));
    std::vector<SF_CUE_POINT> cues(count);
    if (sf_command(file, SFC_GET_CUE, list.data(), static_cast<int>(list.size())) != SF_TRUE)
        return {};
    std::memcpy(cues.data(), list.data() + cuesOffset, count * sizeof(SF_CUE_POINT));
    return cues;
}

void writeCues(SNDFILE *file, const std::vector<SF_CUE_POINT> &cues) {
    if (cues.empty())
        return;
    std::vector<std::byte> list(cuesOffset + cues.size() * sizeof(SF_CUE_POINT));
    const auto count = static_cast<std::uint32_t>(cues.size());
    std::memcpy(list.data(), &count, sizeof(count));
    std::memcpy(list.data() + cuesOffset, cues.data(), cues.size() * sizeof(SF_CUE_POINT));
    sf_command(file, SFC_SET_CUE, list.data(), static_cast<int>(list.size()));
}

void moveTimeReference(SF_BROADCAST_INFO &broadcast, std::int64_t frames) {
    const std::uint64_t time =
        (std::uint64_t(broadcast.time_reference_high) << 32 | broadcast.time_reference_low) +
        static_cast<std::uint64_t>(frames);
    broadcast.time_reference_low = static_cast<std::uint32_t>(time);
    broadcast.time_reference_high = static_cast<std::uint32_t>(time >> 32);
}

void forgetLoudness(SF_BROADCAST_INFO &broadcast) {
    constexpr std::int16_t unknown = 0x7FFF;
    if (broadcast.version >= 2) {  // older ones have no loudness
        broadcast.loudness_value = broadcast.loudness_range = unknown;
        broadcast.max_true_peak_level = unknown;
        broadcast.max_momentary_loudness = broadcast.max_shortterm_loudness = unknown;
    }
}

// FLAC and Ogg hold UTF-8. Texts in WAV have no encoding of their own; if it is not that one, it is
// most often Latin-1.
std::string textFor(int format, const std::string &text) {
    const int container = format & SF_FORMAT_TYPEMASK;
    const bool wantsUtf8 = container == SF_FORMAT_FLAC || container == SF_FORMAT_OGG;
    return wantsUtf8 && !isUtf8(text) ? utf8FromLatin1(text) : text;
}

}  // namespace

STags tagsOf(SNDFILE *file) {
    STags tags;
    for (int number = SF_STR_FIRST; number <= SF_STR_LAST; ++number)
        if (const char *const text = sf_get_string(file, number))
            tags.texts[number] = text;
    SBroadcast broadcast{};
    if (sf_command(file, SFC_GET_BROADCAST_INFO, &broadcast, sizeof(broadcast)) == SF_TRUE)
        tags.broadcast = broadcast;
    tags.cues = cuesOf(file);
    return tags;
}

STags tagsOfPart(STags tags, std::int64_t start, std::int64_t frames) {
    if (tags.broadcast)
        moveTimeReference(tags.broadcast->info, start);
    std::erase_if(tags.cues, [&](const SF_CUE_POINT &cue) {
        return cue.sample_offset < start || cue.sample_offset - start >= frames;
    });
    for (SF_CUE_POINT &cue : tags.cues) {
        const auto moved = static_cast<std::uint32_t>(start);
        cue.sample_offset -= moved;
        cue.position -= std::min(cue.position, moved);
    }
    return tags;
}

void writeTags(SNDFILE *file, int format, const STags &tags) {
    for (const auto &[number, text] : tags.texts)
        sf_set_string(file, number, textFor(format, text).c_str());
    if (tags.broadcast) {
        SBroadcast broadcast = *tags.broadcast;
        forgetLoudness(broadcast.info);
        const auto size =
            offsetof(SF_BROADCAST_INFO, coding_history) + broadcast.info.coding_history_size;
        sf_command(file, SFC_SET_BROADCAST_INFO, &broadcast, static_cast<int>(size));
    }
    writeCues(file, tags.cues);
}

}  // namespace Tessitor::Tool
