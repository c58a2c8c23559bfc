#pragma once

#include <array>

/// The module slots of the strip. Stored programs hold these numbers, so none may change, and every
/// slot is taken: one more would make every stored program longer.
enum ESlot : int {
    kNoSlot = -1,  // ends a chain; the slot of a parameter that drives nothing
    kInGainSlot,   // the fixed head of every chain
    kInMonoSlot,
    kBalanceSlot,  // the modules that a user puts into the chain, in any order
    kPanSlot,
    kGainSlot,
    k3BandSlot,
    kRumbleFilterSlot,
    kHiPassSlot,
    kPresenceSlot,
    kParametricSlot,
    kGateSlot,
    kCompressorSlot,
    kDeEsserSlot,
    kModulator1Slot,
    kModulator2Slot,
    kWarmerSlot,
    kDelaySlot,
    kReverbSlot,
    kOutMonoSlot,  // the output routing, which is not part of the chain
};

inline constexpr int kSlotCount = kReverbSlot + 1;

// What users choose from
inline constexpr int kFirstModuleSlot = kBalanceSlot;
inline constexpr int kLastModuleSlot = kReverbSlot;

/// What users call the modules, by slot.
inline constexpr std::array<const char *, kSlotCount> slotLabels{
    "InGain",        "MonoType",    "Balance",     "Pan",        "Gain",  "3Band",
    "Rumble Filter", "HiPass",      "Presence",    "Parametric", "Gate",  "Compressor",
    "DeEsser",       "Modulator 1", "Modulator 2", "Warmer",     "Delay", "Reverb"};
