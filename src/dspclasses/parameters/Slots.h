#pragma once

#include <array>

/// The module slots of the strip. Stored programs contain these numbers, so none may change.
/// Another slot would make every stored program longer.
enum ESlot : int {
    kNoSlot = -1,  // the end of a chain; also the slot of a parameter that drives nothing
    kInGainSlot,   // the fixed head of every chain
    kInMonoSlot,
    kBalanceSlot,  // from here on, modules that the user puts into the chain in any order
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

// The modules that users choose from
inline constexpr int kFirstModuleSlot = kBalanceSlot;
inline constexpr int kLastModuleSlot = kReverbSlot;

/// The names of the modules that users see, by slot.
inline constexpr std::array<const char *, kSlotCount> slotLabels{
    "InGain",        "MonoType",    "Balance",     "Pan",        "Gain",  "3Band",
    "Rumble Filter", "HiPass",      "Presence",    "Parametric", "Gate",  "Compressor",
    "DeEsser",       "Modulator 1", "Modulator 2", "Warmer",     "Delay", "Reverb"};
