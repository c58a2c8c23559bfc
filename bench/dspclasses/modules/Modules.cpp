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
#include "dspclasses/modules/Plain3EQ.h"
#include "dspclasses/modules/PlainComp.h"
#include "dspclasses/modules/PlainDeEsser.h"
#include "dspclasses/modules/PlainDelay.h"
#include "dspclasses/modules/PlainGate.h"
#include "dspclasses/modules/PlainHiPass.h"
#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/modules/PlainModulation.h"
#include "dspclasses/modules/PlainParametric.h"
#include "dspclasses/modules/PlainPresence.h"
#include "dspclasses/modules/PlainReverb.h"
#include "dspclasses/modules/PlainWarmer.h"
#include "dspclasses/support/SSubject.h"

std::vector<SSubject> modulesToMeasure() {
    return {
        subject<CDSPGain, CPlainGain>("Gain", {{CDSPGain::kLevel, -6.0f}}),
        subject<CDSPMono, CPlainMono>("Mono, combined", {{CDSPMono::kRouting, 0.0f}}),
        subject<CDSPMono, CPlainMono>("Mono, stereo", {{CDSPMono::kRouting, 1.0f}}),
        subject<CDSPBalance, CPlainBalance>("Balance", {{CDSPBalance::kPosition, 0.3f}}),
        subject<CDSPPan, CPlainPan>("Pan", {{CDSPPan::kPosition, 0.3f}}),
        subject<CDSP3EQ, CPlain3EQ>("Three-band equaliser", {{CDSP3EQ::kLowGain, 3.0f},
                                                             {CDSP3EQ::kMidGain, -4.0f},
                                                             {CDSP3EQ::kHighGain, 2.0f},
                                                             {CDSP3EQ::kHighCrossover, 3000.0f}}),
        subject<CDSPHiPass, CPlainHiPass>("Rumble filter", {{CDSPHiPass::kCutoff, 40.0f}}),
        subject<CDSPHiPass, CPlainHiPass>("High-pass", {{CDSPHiPass::kCutoff, 150.0f}}),
        subject<CDSPPresence, CPlainPresence>(
            "Presence", {{CDSPPresence::kFrequency, 4000.0f}, {CDSPPresence::kGain, 4.0f}}),
        subject<CDSPParametric, CPlainParametric>("Parametric",
                                                  {{CDSPParametric::kFrequency, 400.0f},
                                                   {CDSPParametric::kBandwidth, 0.7f},
                                                   {CDSPParametric::kGain, -5.0f}}),
        subject<CDSPGate, CPlainGate>("Gate", {{CDSPGate::kThreshold, -20.0f},
                                               {CDSPGate::kAttack, 10.0f},
                                               {CDSPGate::kRelease, 100.0f}}),
        subject<CDSPComp, CPlainComp>(
            "Compressor, linked",
            {{CDSPComp::kThreshold, -24.0f}, {CDSPComp::kRatio, 3.0f}, {CDSPComp::kMakeUp, 3.0f}}),
        subject<CDSPComp, CPlainComp>("Compressor, separate", {{CDSPComp::kThreshold, -24.0f},
                                                               {CDSPComp::kRatio, 3.0f},
                                                               {CDSPComp::kMakeUp, 3.0f},
                                                               {CDSPComp::kStereoMode, 0.0f}}),
        subject<CDSPDeEsser, CPlainDeEsser>("De-esser, wide", {{CDSPDeEsser::kThreshold, -40.0f},
                                                               {CDSPDeEsser::kRatio, 4.0f},
                                                               {CDSPDeEsser::kFrequency, 4000.0f}}),
        subject<CDSPDeEsser, CPlainDeEsser>("De-esser, narrow", {{CDSPDeEsser::kThreshold, -40.0f},
                                                                 {CDSPDeEsser::kRatio, 4.0f},
                                                                 {CDSPDeEsser::kFrequency, 4000.0f},
                                                                 {CDSPDeEsser::kBand, 1.0f}}),
        subject<CDSPModulation, CPlainModulation>("Vibrato", {{CDSPModulation::kType, 0.0f},
                                                              {CDSPModulation::kWidth, 22.5f},
                                                              {CDSPModulation::kDepth, 0.25f}}),
        subject<CDSPModulation, CPlainModulation>("Double tracking",
                                                  {{CDSPModulation::kType, 0.5f},
                                                   {CDSPModulation::kWidth, 22.5f},
                                                   {CDSPModulation::kDepth, 0.25f}}),
        subject<CDSPModulation, CPlainModulation>("Phaser", {{CDSPModulation::kType, 1.0f},
                                                             {CDSPModulation::kWidth, 22.5f},
                                                             {CDSPModulation::kDepth, 0.25f}}),
        subject<CDSPWarmer, CPlainWarmer>("Warmer", {{CDSPWarmer::kWarmth, 0.4f}}),
        subject<CDSPDelay, CPlainDelay>("Delay", {{CDSPDelay::kTime, 775.0f}}),
        subject<CDSPDelay, CPlainDelay>("Ping-pong",
                                        {{CDSPDelay::kTime, 775.0f}, {CDSPDelay::kPingPong, 1.0f}}),
        subject<CDSPReverb, CPlainReverb>(
            "Reverb", {{CDSPReverb::kRoomSize, 75.0f}, {CDSPReverb::kDryLevel, 1.0f}}),
        subject<CDSPReverb, CPlainReverb>("Reverb, smallest room", {{CDSPReverb::kRoomSize, 1.0f},
                                                                    {CDSPReverb::kSpread, 0.5f},
                                                                    {CDSPReverb::kDryLevel, 1.0f}}),
    };
}
