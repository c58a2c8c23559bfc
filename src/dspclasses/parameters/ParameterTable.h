#pragma once

#include <array>
#include <string>

/// One of the parameters that the host sees.
struct SParameter {
    const char *name;  // at most 9 characters
    int slot;          // of the module in the strip, kOutMonoSlot or kNoSlot
    int index;         // the module's own parameter
    float (*law)(float v);
    std::string (*text)(float g);
    const char *unit;
};

inline constexpr int kStripParameters = 64;
inline constexpr int kOutMonoSlot = 18;  // the output routing, behind the slots of the chain
inline constexpr int kNoSlot = -1;       // drives nothing

/// By parameter id.
extern const std::array<SParameter, kStripParameters> parameterTable;
