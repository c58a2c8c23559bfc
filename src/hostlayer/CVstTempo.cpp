#include "hostlayer/CVstTempo.h"

#include "foundation/CException.h"

#include <algorithm>
#include <limits>

namespace Tessitor::Vst {

namespace {

/// `value` without its fraction. What no 32-bit integer holds, as at a tempo of 0, gives the least
/// integer: the processor's own conversion, where the language leaves it undefined.
std::int32_t truncated(double value) {
    constexpr double limit = 2147483648.0;
    if (value > -limit - 1.0 && value < limit)
        return static_cast<std::int32_t>(value);
    return std::numeric_limits<std::int32_t>::min();
}

/// Beats from the position to the start of the next bar.
double beatsToNextBar(const STempoInformation &information) {
    if (information.barStartPosition == information.ppqPosition)
        return 0.0;
    const double beatsInBar = information.timeSignature.getNumerator();
    double beats = beatsInBar + information.barStartPosition - information.ppqPosition;
    if (beatsInBar > 0.0) {  // a bar without beats would be stepped through for ever
        while (beats < 0.0)
            beats += beatsInBar;
        while (beats > beatsInBar)
            beats -= beatsInBar;
    }
    return beats;
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
