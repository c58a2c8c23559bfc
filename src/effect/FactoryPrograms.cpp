#include "effect/FactoryPrograms.h"

#include <initializer_list>
#include <string_view>

namespace Tessitor::Corvel {

namespace {

struct SValue {
    EParameterId id;
    float value;  // normalised
};

// A parameter is at 0.5 unless it is listed here or in the program itself.
constexpr SValue baselineExceptions[] = {
    {kInMono, 1.0f},  {kGateAtt, 0.2f}, {kGateRel, 0.2f},   {kCmpLink, 1.0f},
    {kDeSBand, 0.0f}, {kDeSLstn, 0.0f}, {kMod1Type, 0.3f},  {kMod1Mix, 0.7f},
    {kWarmer, 0.0f},  {kDlySync, 0.0f}, {kDlyPngPng, 0.0f}, {kRvDryLvl, 0.0f},
    {kRvTlLvl, 1.0f}, {kOutMono, 1.0f}, {kUnused62, 0.0f},  {kUnused63, 0.0f},
};

constexpr std::array<float, kParameterCount> baseline() {
    std::array<float, kParameterCount> values{};
    values.fill(0.5f);
    for (const SValue &exception : baselineExceptions)
        values[std::size_t(exception.id)] = exception.value;
    return values;
}

/// @param chain    the slots after the fixed head, in running order.
/// @param changes  the values that differ from the baseline.
constexpr SProgram program(std::string_view name, std::initializer_list<ESlot> chain,
                           std::initializer_list<SValue> changes) {
    SProgram record = {.parameters = baseline(), .order = {}, .name = {}};
    for (const SValue &change : changes)
        record.parameters[std::size_t(change.id)] = change.value;

    record.order.fill({kNoSlot, kNoSlot});
    record.order[kInGainSlot].next = kInMonoSlot;
    record.order[kInMonoSlot].prev = kInGainSlot;
    ESlot last = kInMonoSlot;
    for (const ESlot slot : chain) {
        record.order[std::size_t(last)].next = slot;
        record.order[std::size_t(slot)].prev = last;
        last = slot;
    }

    for (std::size_t i = 0; i < name.size(); ++i)
        record.name[i] = name[i];
    return record;
}

}  // namespace

// clang-format off
constinit const std::array<SProgram, programCount> factoryPrograms = {
    program("Lead Vocal", {kRumbleFilterSlot, kCompressorSlot, k3BandSlot, kReverbSlot},
        {{kInMono, 0.0f}, {k3EQMid, 0.405f}, {k3EQHi, 0.595f}, {k3EQXLoMd, 0.665f},
         {k3EQXMdHi, 0.395f}, {kRmblFreq, 0.765f}, {kCmpThresh, 0.665f}, {kCmpAtt, 0.19f},
         {kCmpRel, 0.395f}, {kCmpRatio, 0.29f}, {kRvRmSize, 0.375f}, {kRvTime, 0.235f},
         {kRvInDamp, 0.695f}, {kRvWllDmp, 0.395f}, {kRvSpread, 0.3f}, {kRvDryLvl, 1.0f},
         {kRvTlLvl, 0.355f}}),
    program("Male Vocal", {kRumbleFilterSlot, kDeEsserSlot, kParametricSlot, kReverbSlot},
        {{kInMono, 0.0f}, {kRmblFreq, 0.765f}, {kParaFreq, 0.515f}, {kParaBW, 1.0f},
         {kParaGain, 0.565f}, {kDeSThresh, 0.665f}, {kDeSSpeed, 0.3f}, {kDeSRatio, 0.565f},
         {kRvRmSize, 0.4f}, {kRvTime, 0.295f}, {kRvSpread, 0.3f}, {kRvDryLvl, 1.0f},
         {kRvTlLvl, 0.315f}}),
    program("Female Vocal", {kRumbleFilterSlot, kDeEsserSlot, kParametricSlot, kReverbSlot},
        {{kInMono, 0.0f}, {kRmblFreq, 0.765f}, {kParaFreq, 0.755f}, {kParaBW, 0.86f},
         {kParaGain, 0.57f}, {kDeSSpeed, 0.15f}, {kDeSFreq, 0.78f}, {kRvTime, 0.295f},
         {kRvInDamp, 0.745f}, {kRvSpread, 0.495f}, {kRvDryLvl, 0.5f}, {kRvTlLvl, 0.4f}}),
    program("BV (Pop)", {kHiPassSlot, kCompressorSlot, kModulator1Slot, kDelaySlot, kReverbSlot},
        {{kHPFreq, 0.675f}, {kCmpThresh, 0.66f}, {kCmpAtt, 0.39f}, {kCmpRatio, 0.71f},
         {kCmpLink, 0.0f}, {kMod1Type, 0.865f}, {kMod1Dpth, 0.18f}, {kMod1Spd, 0.305f},
         {kMod1Sprd, 0.57f}, {kMod1Mix, 0.74f}, {kDlySync, 1.0f}, {kDlyFdBk, 0.3f},
         {kDlyDry, 1.0f}, {kRvRmSize, 0.67f}, {kRvTime, 0.28f}, {kRvWllDmp, 0.695f},
         {kRvSpread, 0.695f}, {kRvDryLvl, 1.0f}, {kRvERLvl, 0.0f}, {kRvTlLvl, 0.665f}}),
    program("BV (Ballad)", {kHiPassSlot, kDeEsserSlot, kModulator1Slot, kReverbSlot, k3BandSlot},
        {{k3EQLo, 0.25f}, {k3EQMid, 0.415f}, {k3EQXLoMd, 0.69f}, {kHPFreq, 0.595f},
         {kDeSThresh, 0.6f}, {kDeSSpeed, 0.305f}, {kDeSRatio, 0.665f}, {kDeSBand, 1.0f},
         {kMod1Wdth, 0.41f}, {kMod1Dpth, 0.195f}, {kMod1Spd, 0.4f}, {kMod1Sprd, 0.48f},
         {kMod1FdBk, 0.355f}, {kRvRmSize, 0.625f}, {kRvTime, 0.36f}, {kRvInDamp, 0.595f},
         {kRvWllDmp, 0.395f}, {kRvSpread, 0.395f}, {kRvDryLvl, 0.705f}, {kRvERLvl, 0.1f},
         {kRvTlLvl, 0.4f}}),
    program("Pop Vocal", {kHiPassSlot, kCompressorSlot, kPresenceSlot, kModulator1Slot, kDelaySlot, kReverbSlot},
        {{kInMono, 0.0f}, {kHPFreq, 0.465f}, {kPresGain, 0.6f}, {kCmpThresh, 0.575f},
         {kCmpAtt, 0.29f}, {kCmpRel, 0.365f}, {kCmpMakUp, 0.775f}, {kMod1Type, 0.45f},
         {kMod1Wdth, 0.235f}, {kMod1Dpth, 0.755f}, {kMod1Spd, 0.175f}, {kMod1Sprd, 1.0f},
         {kMod1FdBk, 0.3f}, {kDlySync, 1.0f}, {kDlyFdBk, 0.325f}, {kDlyPngPng, 1.0f},
         {kDlyDry, 1.0f}, {kDlyWet, 0.355f}, {kRvRmSize, 0.44f}, {kRvTime, 0.11f},
         {kRvWllDmp, 0.645f}, {kRvDryLvl, 1.0f}, {kRvERLvl, 0.315f}, {kRvTlLvl, 0.1f}}),
    program("Bad Mic Correction", {kRumbleFilterSlot, kGateSlot, kDeEsserSlot, k3BandSlot, kParametricSlot},
        {{k3EQLo, 0.375f}, {k3EQMid, 0.33f}, {k3EQXLoMd, 0.935f}, {k3EQXMdHi, 0.265f},
         {kRmblFreq, 1.0f}, {kParaFreq, 0.9f}, {kParaBW, 0.755f}, {kParaGain, 0.545f},
         {kGateThrsh, 0.17f}, {kGateAtt, 0.0f}, {kGateRel, 0.155f}, {kDeSThresh, 0.75f},
         {kDeSSpeed, 0.13f}, {kDeSFreq, 0.415f}, {kRvDryLvl, 0.5f}, {kRvTlLvl, 0.5f}}),
    program("Rock Vocal (Insert)", {kRumbleFilterSlot, kWarmerSlot, kDeEsserSlot, k3BandSlot},
        {{kInMono, 0.0f}, {k3EQMid, 0.335f}, {kRmblFreq, 0.88f}, {kDeSThresh, 0.8f},
         {kDeSFreq, 0.49f}, {kWarmer, 0.315f}, {kRvDryLvl, 0.5f}, {kRvTlLvl, 0.5f}}),
    program("Rock Vocal (Send)", {kCompressorSlot, kPresenceSlot, kDelaySlot, kReverbSlot},
        {{kPresFreq, 0.615f}, {kPresGain, 0.625f}, {kCmpThresh, 0.65f}, {kCmpAtt, 0.295f},
         {kCmpRel, 0.68f}, {kCmpRatio, 0.715f}, {kCmpMakUp, 0.775f}, {kDlySync, 1.0f},
         {kDlyFdBk, 0.395f}, {kDlyDry, 0.0f}, {kDlyWet, 1.0f}, {kRvRmSize, 0.35f},
         {kRvTime, 0.295f}, {kRvInDamp, 0.45f}, {kRvWllDmp, 0.8f}, {kRvSpread, 0.595f},
         {kRvERLvl, 0.63f}, {kRvTlLvl, 0.285f}}),
    program("Pop Chorus (Insert)", {kRumbleFilterSlot, kWarmerSlot, kDeEsserSlot, k3BandSlot},
        {{k3EQMid, 0.375f}, {k3EQHi, 0.595f}, {k3EQXLoMd, 0.665f}, {k3EQXMdHi, 0.33f},
         {kRmblFreq, 0.91f}, {kDeSThresh, 0.655f}, {kDeSSpeed, 0.2f}, {kWarmer, 0.2f},
         {kRvDryLvl, 0.5f}, {kRvTlLvl, 0.5f}}),
    program("Pop Chorus (Send)", {kHiPassSlot, kCompressorSlot, kModulator1Slot, kDelaySlot, kReverbSlot},
        {{kHPFreq, 0.625f}, {kCmpThresh, 0.58f}, {kCmpAtt, 0.29f}, {kCmpRel, 0.395f},
         {kCmpMakUp, 0.875f}, {kMod1Wdth, 0.56f}, {kMod1Dpth, 0.26f}, {kMod1Spd, 0.305f},
         {kMod1Sprd, 0.75f}, {kMod1FdBk, 0.395f}, {kDlySync, 1.0f}, {kDlyFdBk, 0.275f},
         {kDlyPngPng, 1.0f}, {kDlyDry, 0.0f}, {kDlyWet, 1.0f}, {kRvRmSize, 0.16f},
         {kRvTime, 0.155f}, {kRvWllDmp, 0.595f}, {kRvERLvl, 0.3f}}),
    program("Choir", {kHiPassSlot, kDeEsserSlot, kModulator1Slot, kDelaySlot, kReverbSlot},
        {{kHPFreq, 0.375f}, {kDeSRatio, 0.385f}, {kDeSFreq, 0.315f}, {kDeSBand, 1.0f},
         {kMod1Type, 0.46f}, {kMod1Wdth, 0.315f}, {kMod1Dpth, 0.7f}, {kMod1Spd, 0.245f},
         {kMod1Sprd, 0.56f}, {kDlyTime, 0.52f}, {kDlySync, 0.12f}, {kDlyFdBk, 0.195f},
         {kDlyDry, 1.0f}, {kDlyWet, 0.315f}, {kRvRmSize, 0.665f}, {kRvTime, 0.515f},
         {kRvInDamp, 0.31f}, {kRvWllDmp, 0.42f}, {kRvDryLvl, 1.0f}, {kRvERLvl, 0.18f},
         {kRvTlLvl, 0.315f}}),
    program("Pub", {kRumbleFilterSlot, kDeEsserSlot, kDelaySlot, kReverbSlot},
        {{kRmblFreq, 0.85f}, {kDeSThresh, 0.74f}, {kDeSSpeed, 0.3f}, {kDeSRatio, 0.59f},
         {kDeSFreq, 0.215f}, {kDlyTime, 0.145f}, {kDlyFdBk, 0.095f}, {kDlyDry, 1.0f},
         {kDlyWet, 0.095f}, {kRvRmSize, 0.335f}, {kRvTime, 0.105f}, {kRvInDamp, 0.825f},
         {kRvWllDmp, 0.795f}, {kRvSpread, 0.325f}, {kRvDryLvl, 1.0f}, {kRvERLvl, 0.475f},
         {kRvTlLvl, 0.175f}}),
    program("Small Room (Send)", {kHiPassSlot, kDelaySlot, kReverbSlot},
        {{kHPFreq, 0.64f}, {kDlyTime, 0.0f}, {kDlyFdBk, 0.465f}, {kDlyDry, 0.55f},
         {kDlyWet, 0.1f}, {kRvRmSize, 0.05f}, {kRvTime, 0.08f}, {kRvInDamp, 0.59f},
         {kRvWllDmp, 0.8f}, {kRvSpread, 0.19f}, {kRvTlLvl, 0.095f}}),
    program("Concert Hall (Send)", {kHiPassSlot, kCompressorSlot, kReverbSlot},
        {{kHPFreq, 0.44f}, {kCmpAtt, 0.49f}, {kCmpRel, 0.47f}, {kCmpRatio, 0.43f},
         {kCmpLink, 0.0f}, {kRvRmSize, 0.58f}, {kRvTime, 0.375f}, {kRvWllDmp, 0.55f},
         {kRvSpread, 0.795f}, {kRvERLvl, 0.44f}, {kRvTlLvl, 0.6f}}),
    program("Gated Cavern (Send)", {kReverbSlot, kGateSlot},
        {{kGateThrsh, 0.55f}, {kGateAtt, 0.0f}, {kGateRel, 0.052632f}, {kRvRmSize, 0.7f},
         {kRvERLvl, 0.37f}}),
    program("Concrete Jungle", {kModulator1Slot, k3BandSlot, kDelaySlot, kReverbSlot},
        {{k3EQLo, 0.35f}, {k3EQHi, 0.35f}, {k3EQXLoMd, 0.625f}, {k3EQXMdHi, 0.375f},
         {kGateThrsh, 0.485f}, {kGateAtt, 0.0f}, {kMod1Type, 0.46f}, {kMod1Wdth, 0.34f},
         {kMod1Dpth, 0.77f}, {kMod1Spd, 0.155f}, {kMod1Sprd, 0.88f}, {kMod1Mix, 0.55f},
         {kDlyTime, 0.245f}, {kDlyFdBk, 0.18f}, {kDlyDry, 1.0f}, {kDlyWet, 0.12f},
         {kRvRmSize, 0.42f}, {kRvTime, 0.05f}, {kRvInDamp, 0.23f}, {kRvWllDmp, 0.73f},
         {kRvSpread, 1.0f}, {kRvDryLvl, 1.0f}, {kRvERLvl, 0.0f}, {kRvTlLvl, 0.345f}}),
    program("Close Vocal", {kCompressorSlot, kParametricSlot, kPresenceSlot},
        {{k3EQLo, 0.6f}, {kPresFreq, 0.83f}, {kPresGain, 0.565f}, {kParaFreq, 0.365f},
         {kParaGain, 0.575f}, {kGateThrsh, 0.485f}, {kGateAtt, 0.0f}, {kCmpThresh, 0.7f},
         {kCmpAtt, 0.21f}, {kCmpRel, 0.26f}, {kCmpRatio, 0.15f}, {kRvRmSize, 0.7f},
         {kRvERLvl, 0.37f}}),
    program("Punk Vocal", {kDeEsserSlot, kWarmerSlot},
        {{kGateThrsh, 0.485f}, {kGateAtt, 0.0f}, {kDeSThresh, 0.655f}, {kDeSSpeed, 0.23f},
         {kDeSRatio, 0.345f}, {kDeSFreq, 0.33f}, {kDeSBand, 1.0f}, {kWarmer, 0.4f},
         {kRvRmSize, 0.7f}, {kRvERLvl, 0.37f}}),
    program("Empty", {},
        {{kGateThrsh, 0.485f}, {kGateAtt, 0.0f}, {kRvRmSize, 0.7f}, {kRvERLvl, 0.37f}}),
};
// clang-format on

}  // namespace Tessitor::Corvel
