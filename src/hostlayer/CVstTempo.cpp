#include "hostlayer/CVstTempo.h"

#include "foundation/CException.h"
#include "values/Truncation.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Vst {

namespace {

/// @return beats from the position to the start of the next bar.
double beatsToNextBar(const STempoInformation &information) {
    if (information.barStartPosition == information.ppqPosition)
        return 0.0;
    const double beatsInBar = information.timeSignature.getNumerator();
    const double beats = beatsInBar + information.barStartPosition - information.ppqPosition;
    if (beatsInBar <= 0.0 || (beats >= 0.0 && beats <= beatsInBar))
        return beats;
    // Adding or subtracting one bar at a time would return the same bits, if it ended at all.
    const double rest = std::fmod(beats, beatsInBar);
    if (beats < 0.0)
        return rest < 0.0 ? rest + beatsInBar : 0.0;
    return rest == 0.0 ? beatsInBar : rest;
}

}  // namespace

Basics::TClassRecord<CVstTempo> CVstTempo::s_class("CVstTempo", "CCountedObject");

CVstTempo::CVstTempo() {
    s_class.incrementInstanceCount();
}

CVstTempo::CVstTempo(AudioEffectX *effect) : m_theEffect(effect) {
    if (effect == nullptr)
        throw Exceptions::CException("Effect is NULL", "CVstTempo::CVstTempo(AudioEffectX *)",
                                     true);
    s_class.incrementInstanceCount();
}

bool CVstTempo::getTempoInformation(int mask) {
    if (m_theEffect == nullptr)
        throw Exceptions::CException("m_theEffect is NULL",
                                     "CVstTempo::getTempoInformation(const long *)", true);
    const VstTimeInfo *time = m_theEffect->getTimeInfo(mask);
    m_valid = time != nullptr;
    if (!m_valid)
        return false;

    STempoInformation &information = *m_information;
    information.transportChanged = (time->flags & kVstTransportChanged) != 0;
    information.transportPlaying = (time->flags & kVstTransportPlaying) != 0;
    readTempo(*time);
    readTimeSignature(*time);
    readPosition(*time);
    if (information.tempoValid && information.ppqPositionValid && information.barsValid &&
        information.timeSignatureValid)
        countSamplesToNextBar(time->sampleRate);
    return m_valid;
}

void CVstTempo::readTempo(const VstTimeInfo &time) {
    STempoInformation &information = *m_information;
    const bool valid = (time.flags & kVstTempoValid) != 0;
    information.tempoValid = valid;
    information.samplesPerBeatValid = valid;
    information.tempo = valid ? time.tempo : 0.0;
    information.samplesPerBeat = valid ? truncated(time.sampleRate / (time.tempo / 60.0)) : 0;
}

void CVstTempo::readTimeSignature(const VstTimeInfo &time) {
    STempoInformation &information = *m_information;
    information.timeSignatureValid = (time.flags & kVstTimeSigValid) != 0;
    if (information.timeSignatureValid)
        information.timeSignature.setTimeSignature(time.timeSigNumerator, time.timeSigDenominator);
    else
        information.timeSignature.setTimeSignature(4, 4);
}

void CVstTempo::readPosition(const VstTimeInfo &time) {
    STempoInformation &information = *m_information;
    information.ppqPositionValid = (time.flags & kVstPpqPosValid) != 0;
    information.ppqPosition = information.ppqPositionValid ? time.ppqPos : 0.0;
    information.barsValid = (time.flags & kVstBarsValid) != 0;
    information.barStartPosition = information.barsValid ? time.barStartPos : 0.0;
    information.samplePosition = time.samplePos;
}

void CVstTempo::countSamplesToNextBar(double sampleRate) {
    STempoInformation &information = *m_information;
    const double samples = beatsToNextBar(information) * sampleRate / (information.tempo / 60.0);
    information.samplesToNextBar = std::max(truncated(samples), 0);
    information.samplesToNextBarValid = true;
}

}  // namespace Tessitor::Vst
