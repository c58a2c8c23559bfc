#include "dspclasses/parameters/ParameterTable.h"

#include "dspclasses/modules/CDSP3EQ.h"
#include "dspclasses/modules/CDSPBalance.h"
#include "dspclasses/modules/CDSPComp.h"
#include "dspclasses/modules/CDSPDeEsser.h"
#include "dspclasses/modules/CDSPDelay.h"
#include "dspclasses/modules/CDSPGain.h"
#include "dspclasses/modules/CDSPGate.h"
#include "dspclasses/modules/CDSPHiPass.h"
#include "dspclasses/modules/CDSPModulation.h"
#include "dspclasses/modules/CDSPMono.h"
#include "dspclasses/modules/CDSPPan.h"
#include "dspclasses/modules/CDSPParametric.h"
#include "dspclasses/modules/CDSPPresence.h"
#include "dspclasses/modules/CDSPReverb.h"
#include "dspclasses/modules/CDSPWarmer.h"
#include "dspclasses/parameters/ParameterLaws.h"
#include "dspclasses/parameters/ParameterTexts.h"

namespace Law = ParameterLaws;
namespace Text = ParameterTexts;

// clang-format off
constinit const std::array<SParameter, kParameterCount> parameterTable{{
    // name       slot               index                       law                       text                  unit
    {"InGain",    kInGainSlot,       CDSPGain::kLevel,           Law::gain,                Text::decibels,       "dB"},  // 0
    {"InMono",    kInMonoSlot,       CDSPMono::kRouting,         Law::raw,                 Text::monoMode,       ""},
    {"Balance",   kBalanceSlot,      CDSPBalance::kPosition,     Law::raw,                 Text::balance,        ""},
    {"Pan",       kPanSlot,          CDSPPan::kPosition,         Law::raw,                 Text::balance,        ""},
    {"Gain",      kGainSlot,         CDSPGain::kLevel,           Law::gain,                Text::decibels,       "dB"},
    {"3EQLo",     k3BandSlot,        CDSP3EQ::kLowGain,          Law::plusMinus12,         Text::decibels,       "dB"},
    {"3EQMid",    k3BandSlot,        CDSP3EQ::kMidGain,          Law::plusMinus12,         Text::decibels,       "dB"},
    {"3EQHi",     k3BandSlot,        CDSP3EQ::kHighGain,         Law::plusMinus12,         Text::decibels,       "dB"},
    {"3EQXLoMd",  k3BandSlot,        CDSP3EQ::kLowCrossover,     Law::lowCrossover,        Text::whole,          "Hz"},
    {"3EQXMdHi",  k3BandSlot,        CDSP3EQ::kHighCrossover,    Law::highCrossover,       Text::whole,          "Hz"},
    {"RmblFreq",  kRumbleFilterSlot, CDSPHiPass::kCutoff,        Law::rumbleFrequency,     Text::whole,          "Hz"},  // 10
    {"HPFreq",    kHiPassSlot,       CDSPHiPass::kCutoff,        Law::hiPassFrequency,     Text::whole,          "Hz"},
    {"PresFreq",  kPresenceSlot,     CDSPPresence::kFrequency,   Law::presenceFrequency,   Text::whole,          "Hz"},
    {"PresGain",  kPresenceSlot,     CDSPPresence::kGain,        Law::plusMinus12,         Text::decibels,       "dB"},
    {"ParaFreq",  kParametricSlot,   CDSPParametric::kFrequency, Law::parametricFrequency, Text::whole,          "Hz"},
    {"ParaBW",    kParametricSlot,   CDSPParametric::kBandwidth, Law::bandwidth,           Text::twoDecimals,    "Oct"},
    {"ParaGain",  kParametricSlot,   CDSPParametric::kGain,      Law::plusMinus12,         Text::decibels,       "dB"},
    {"GateThrsh", kGateSlot,         CDSPGate::kThreshold,       Law::threshold,           Text::decibels,       "dB"},
    {"GateAtt",   kGateSlot,         CDSPGate::kAttack,          Law::gateAttack,          Text::whole,          "ms"},
    {"GateRel",   kGateSlot,         CDSPGate::kRelease,         Law::gateRelease,         Text::whole,          "ms"},
    {"CmpThresh", kCompressorSlot,   CDSPComp::kThreshold,       Law::threshold,           Text::decibels,       "dB"},  // 20
    {"CmpAtt",    kCompressorSlot,   CDSPComp::kAttack,          Law::compressorAttack,    Text::whole,          "ms"},
    {"CmpRel",    kCompressorSlot,   CDSPComp::kRelease,         Law::compressorRelease,   Text::whole,          "ms"},
    {"CmpRatio",  kCompressorSlot,   CDSPComp::kRatio,           Law::compressorRatio,     Text::ratio,          ""},
    {"CmpMakUp",  kCompressorSlot,   CDSPComp::kMakeUp,          Law::plusMinus12,         Text::decibels,       "dB"},
    {"CmpLink",   kCompressorSlot,   CDSPComp::kStereoMode,      Law::raw,                 Text::link,           ""},
    {"DeSThresh", kDeEsserSlot,      CDSPDeEsser::kThreshold,    Law::threshold,           Text::decibels,       "dB"},
    {"DeSSpeed",  kDeEsserSlot,      CDSPDeEsser::kSpeed,        Law::raw,                 Text::deEsserSpeed,   ""},
    {"DeSRatio",  kDeEsserSlot,      CDSPDeEsser::kRatio,        Law::deEsserRatio,        Text::ratio,          ""},
    {"DeSFreq",   kDeEsserSlot,      CDSPDeEsser::kFrequency,    Law::deEsserFrequency,    Text::whole,          "Hz"},
    {"DeSBand",   kDeEsserSlot,      CDSPDeEsser::kBand,         Law::raw,                 Text::deEsserBand,    ""},    // 30
    {"DeSLstn",   kDeEsserSlot,      CDSPDeEsser::kListen,       Law::raw,                 Text::deEsserListen,  ""},
    {"Mod1Type",  kModulator1Slot,   CDSPModulation::kType,      Law::raw,                 Text::modulationType, ""},
    {"Mod1Wdth",  kModulator1Slot,   CDSPModulation::kWidth,     Law::modulationWidth,     Text::twoDecimals,    "ms"},
    {"Mod1Dpth",  kModulator1Slot,   CDSPModulation::kDepth,     Law::modulationDepth,     Text::percent,        "%"},
    {"Mod1Spd",   kModulator1Slot,   CDSPModulation::kSpeed,     Law::modulationSpeed,     Text::twoDecimals,    "Hz"},
    {"Mod1Sprd",  kModulator1Slot,   CDSPModulation::kSpread,    Law::raw,                 Text::percent,        "%"},
    {"Mod1FdBk",  kModulator1Slot,   CDSPModulation::kFeedback,  Law::raw,                 Text::percent,        "%"},
    {"Mod1Mix",   kModulator1Slot,   CDSPModulation::kMix,       Law::raw,                 Text::mix,            ""},
    {"Mod2Type",  kModulator2Slot,   CDSPModulation::kType,      Law::raw,                 Text::modulationType, ""},
    {"Mod2Wdth",  kModulator2Slot,   CDSPModulation::kWidth,     Law::modulationWidth,     Text::twoDecimals,    "ms"},  // 40
    {"Mod2Dpth",  kModulator2Slot,   CDSPModulation::kDepth,     Law::modulationDepth,     Text::percent,        "%"},
    {"Mod2Spd",   kModulator2Slot,   CDSPModulation::kSpeed,     Law::modulationSpeed,     Text::twoDecimals,    "Hz"},
    {"Mod2Sprd",  kModulator2Slot,   CDSPModulation::kSpread,    Law::raw,                 Text::percent,        "%"},
    {"Mod2FdBk",  kModulator2Slot,   CDSPModulation::kFeedback,  Law::raw,                 Text::percent,        "%"},
    {"Mod2Mix",   kModulator2Slot,   CDSPModulation::kMix,       Law::raw,                 Text::mix,            ""},
    {"Warmer",    kWarmerSlot,       CDSPWarmer::kWarmth,        Law::raw,                 Text::percent,        "%"},
    {"DlyTime",   kDelaySlot,        CDSPDelay::kTime,           Law::delayTime,           Text::whole,          "ms"},
    {"DlySync",   kDelaySlot,        CDSPDelay::kSync,           Law::raw,                 Text::delaySync,      ""},
    {"DlyFdBk",   kDelaySlot,        CDSPDelay::kFeedback,       Law::raw,                 Text::percent,        "%"},
    {"DlyPngPng", kDelaySlot,        CDSPDelay::kPingPong,       Law::raw,                 Text::onOff,          ""},    // 50
    {"DlyDry",    kDelaySlot,        CDSPDelay::kDryLevel,       Law::raw,                 Text::level,          "dB"},
    {"DlyWet",    kDelaySlot,        CDSPDelay::kWetLevel,       Law::raw,                 Text::level,          "dB"},
    {"RvRmSize",  kReverbSlot,       CDSPReverb::kRoomSize,      Law::roomSize,            Text::roomSize,       "m2"},
    {"RvTime",    kReverbSlot,       CDSPReverb::kTime,          Law::reverbTime,          Text::twoDecimals,    "s"},
    {"RvInDamp",  kReverbSlot,       CDSPReverb::kInputDamping,  Law::raw,                 Text::percent,        "%"},
    {"RvWllDmp",  kReverbSlot,       CDSPReverb::kWallDamping,   Law::raw,                 Text::percent,        "%"},
    {"RvSpread",  kReverbSlot,       CDSPReverb::kSpread,        Law::raw,                 Text::percent,        "%"},
    {"RvDryLvl",  kReverbSlot,       CDSPReverb::kDryLevel,      Law::raw,                 Text::level,          "dB"},
    {"RvERLvl",   kReverbSlot,       CDSPReverb::kEarlyLevel,    Law::raw,                 Text::level,          "dB"},
    {"RvTlLvl",   kReverbSlot,       CDSPReverb::kTailLevel,     Law::raw,                 Text::level,          "dB"},  // 60
    {"OutMono",   kOutMonoSlot,      CDSPMono::kRouting,         Law::raw,                 Text::monoMode,       ""},
    {"",          kNoSlot,           0,                          Law::raw,                 Text::none,           ""},
    {"",          kNoSlot,           0,                          Law::raw,                 Text::none,           ""},
}};
// clang-format on
