#pragma once

#include "dspclasses/parameters/ParameterIds.h"
#include "dspclasses/parameters/Slots.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Tessitor::Corvel {

inline constexpr std::int32_t uniqueId = 'Q' | 'r' << 8 | 'M' << 16 | 'k' << 24;  // of the effect
inline constexpr int programCount = 20;

/// A module's neighbours in the running order, kNoSlot where there is none.
struct SChainLink {
    std::int32_t prev;
    std::int32_t next;

    bool operator==(const SChainLink &) const = default;
};

/// A program, in memory and in the host's sessions alike: a chunk is the bytes of one record or of
/// all twenty, little-endian, without a header or a version.
struct SProgram {
    std::array<float, kParameterCount> parameters;  // by EParameterId, normalised
    std::array<SChainLink, kSlotCount> order;       // by ESlot
    std::array<char, 24> name;                      // zero-terminated

    bool operator==(const SProgram &) const = default;
};

static_assert(sizeof(SProgram) == 424);
static_assert(offsetof(SProgram, order) == 256);
static_assert(offsetof(SProgram, name) == 400);

}  // namespace Tessitor::Corvel
