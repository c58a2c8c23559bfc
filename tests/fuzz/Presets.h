#pragma once

#include "Fuzz.h"
#include "corvel/presets/CPresetText.h"

#include <set>

/// Shared by all inputs, since its tables take time to make.
inline const Tessitor::Tool::CPresetText &presetText() {
    static const Tessitor::Tool::CPresetText text;
    return text;
}

inline std::string bytesOf(const Tessitor::Tool::SPreset &preset) {
    return {reinterpret_cast<const char *>(preset.programs.data()),
            preset.programs.size() * sizeof(Tessitor::Corvel::SProgram)};
}

/// Checks what the effect trusts in its own way, not with the code under test.
inline void requireSafe(const Tessitor::Tool::SPreset &preset) {
    require(preset.programs.size() == 1 || preset.programs.size() == 20, "a program or a bank");
    require(preset.current < preset.programs.size(), "the current program exists");
    for (const Tessitor::Corvel::SProgram &program : preset.programs) {
        for (const float value : program.parameters)
            require(value >= 0.0f && value <= 1.0f, "values are from 0 to 1");
        for (const auto &[prev, next] : program.order)
            require(prev >= -1 && prev < 18 && next >= -1 && next < 18, "links lead to slots");
        std::set<std::int32_t> seen;
        for (std::int32_t slot = 0; slot != -1;
             slot = program.order[static_cast<std::size_t>(slot)].next)
            require(seen.insert(slot).second, "the chain has an end");
        require(program.name.back() == '\0' || untilZero({program.name.data(), 24}).size() < 24,
                "the name is terminated");
    }
}

/// Messages are printed in one line.
inline void requireOneLine(const Tessitor::Tool::CPresetError &error) {
    const std::string text = error.what();
    require(!text.empty() && text.size() < 400, "a message is one line");
    for (const char letter : text)
        require(static_cast<unsigned char>(letter) >= 0x20, "a message has no control characters");
}

/// Programs between the round values take a while, so of a bank only the current program.
inline void requireSameThroughText(const Tessitor::Tool::SPreset &preset) {
    const Tessitor::Tool::SPreset one{{preset.programs[preset.current]}, 0};
    require(bytesOf(presetText().presetFrom(presetText().textFrom(one))) == bytesOf(one),
            "the text form keeps every byte");
}
