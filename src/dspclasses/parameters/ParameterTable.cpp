#include "dspclasses/parameters/ParameterTable.h"

#include "dspclasses/parameters/ParameterLaws.h"
#include "dspclasses/parameters/ParameterTexts.h"

namespace Law = ParameterLaws;
namespace Text = ParameterTexts;

// clang-format off
constinit const std::array<SParameter, kStripParameters> parameterTable{{
    // name       slot index law                       text                  unit
    {"InGain",     0, 0, Law::gain,                Text::decibels,       "dB"},   // 0
    {"InMono",     1, 0, Law::raw,                 Text::monoMode,       ""},
    {"Balance",    2, 0, Law::raw,                 Text::balance,        ""},
    {"Pan",        3, 0, Law::raw,                 Text::balance,        ""},
    {"Gain",       4, 0, Law::gain,                Text::decibels,       "dB"},
    {"3EQLo",      5, 0, Law::plusMinus12,         Text::decibels,       "dB"},
    {"3EQMid",     5, 1, Law::plusMinus12,         Text::decibels,       "dB"},
    {"3EQHi",      5, 2, Law::plusMinus12,         Text::decibels,       "dB"},
    {"3EQXLoMd",   5, 3, Law::lowCrossover,        Text::whole,          "Hz"},
    {"3EQXMdHi",   5, 4, Law::highCrossover,       Text::whole,          "Hz"},
    {"RmblFreq",   6, 0, Law::rumbleFrequency,     Text::whole,          "Hz"},   // 10
    {"HPFreq",     7, 0, Law::hiPassFrequency,     Text::whole,          "Hz"},
    {"PresFreq",   8, 0, Law::presenceFrequency,   Text::whole,          "Hz"},
    {"PresGain",   8, 1, Law::plusMinus12,         Text::decibels,       "dB"},
    {"ParaFreq",   9, 0, Law::parametricFrequency, Text::whole,          "Hz"},
    {"ParaBW",     9, 1, Law::bandwidth,           Text::twoDecimals,    "Oct"},
    {"ParaGain",   9, 2, Law::plusMinus12,         Text::decibels,       "dB"},
    {"GateThrsh", 10, 0, Law::threshold,           Text::decibels,       "dB"},
    {"GateAtt",   10, 1, Law::gateAttack,          Text::whole,          "ms"},
    {"GateRel",   10, 2, Law::gateRelease,         Text::whole,          "ms"},
    {"CmpThresh", 11, 0, Law::threshold,           Text::decibels,       "dB"},   // 20
    {"CmpAtt",    11, 1, Law::compressorAttack,    Text::whole,          "ms"},
    {"CmpRel",    11, 2, Law::compressorRelease,   Text::whole,          "ms"},
    {"CmpRatio",  11, 3, Law::compressorRatio,     Text::ratio,          ""},
    {"CmpMakUp",  11, 4, Law::plusMinus12,         Text::decibels,       "dB"},
    {"CmpLink",   11, 5, Law::raw,                 Text::link,           ""},
    {"DeSThresh", 12, 0, Law::threshold,           Text::decibels,       "dB"},
    {"DeSSpeed",  12, 1, Law::raw,                 Text::deEsserSpeed,   ""},
    {"DeSRatio",  12, 2, Law::deEsserRatio,        Text::ratio,          ""},
    {"DeSFreq",   12, 3, Law::deEsserFrequency,    Text::whole,          "Hz"},
    {"DeSBand",   12, 4, Law::raw,                 Text::deEsserBand,    ""},     // 30
    {"DeSLstn",   12, 5, Law::raw,                 Text::deEsserListen,  ""},
    {"Mod1Type",  13, 0, Law::raw,                 Text::modulationType, ""},
    {"Mod1Wdth",  13, 1, Law::modulationWidth,     Text::twoDecimals,    "ms"},
    {"Mod1Dpth",  13, 2, Law::modulationDepth,     Text::percent,        "%"},
    {"Mod1Spd",   13, 3, Law::modulationSpeed,     Text::twoDecimals,    "Hz"},
    {"Mod1Sprd",  13, 4, Law::raw,                 Text::percent,        "%"},
    {"Mod1FdBk",  13, 5, Law::raw,                 Text::percent,        "%"},
    {"Mod1Mix",   13, 6, Law::raw,                 Text::mix,            ""},
    {"Mod2Type",  14, 0, Law::raw,                 Text::modulationType, ""},
    {"Mod2Wdth",  14, 1, Law::modulationWidth,     Text::twoDecimals,    "ms"},   // 40
    {"Mod2Dpth",  14, 2, Law::modulationDepth,     Text::percent,        "%"},
    {"Mod2Spd",   14, 3, Law::modulationSpeed,     Text::twoDecimals,    "Hz"},
    {"Mod2Sprd",  14, 4, Law::raw,                 Text::percent,        "%"},
    {"Mod2FdBk",  14, 5, Law::raw,                 Text::percent,        "%"},
    {"Mod2Mix",   14, 6, Law::raw,                 Text::mix,            ""},
    {"Warmer",    15, 0, Law::raw,                 Text::percent,        "%"},
    {"DlyTime",   16, 0, Law::delayTime,           Text::whole,          "ms"},
    {"DlySync",   16, 1, Law::raw,                 Text::delaySync,      ""},
    {"DlyFdBk",   16, 2, Law::raw,                 Text::percent,        "%"},
    {"DlyPngPng", 16, 3, Law::raw,                 Text::onOff,          ""},     // 50
    {"DlyDry",    16, 4, Law::raw,                 Text::level,          "dB"},
    {"DlyWet",    16, 5, Law::raw,                 Text::level,          "dB"},
    {"RvRmSize",  17, 0, Law::roomSize,            Text::roomSize,       "m2"},
    {"RvTime",    17, 1, Law::reverbTime,          Text::twoDecimals,    "s"},
    {"RvInDamp",  17, 2, Law::raw,                 Text::percent,        "%"},
    {"RvWllDmp",  17, 3, Law::raw,                 Text::percent,        "%"},
    {"RvSpread",  17, 4, Law::raw,                 Text::percent,        "%"},
    {"RvDryLvl",  17, 5, Law::raw,                 Text::level,          "dB"},
    {"RvERLvl",   17, 6, Law::raw,                 Text::level,          "dB"},
    {"RvTlLvl",   17, 7, Law::raw,                 Text::level,          "dB"},   // 60
    {"OutMono",   kOutMonoSlot, 0, Law::raw,       Text::monoMode,       ""},
    {"",          kNoSlot, 0, Law::raw,            Text::none,           ""},
    {"",          kNoSlot, 0, Law::raw,            Text::none,           ""},
}};
// clang-format on
