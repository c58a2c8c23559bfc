#include "corvel/live/CTimeTeller.h"

#include <cmath>

namespace Tessitor::Tool {

namespace {

// A bar may hold a fraction of a beat, which the effect's whole numbers cannot say.
void fillBeat(VstTimeInfo &time, const STransport::SBeat &beat) {
    const double quartersPerBeat = 4.0 / beat.beatType;
    time.tempo = beat.beatsPerMinute * quartersPerBeat;
    time.barStartPos = (beat.bar - 1) * beat.beatsPerBar * quartersPerBeat;
    time.ppqPos = time.barStartPos + beat.beat * quartersPerBeat;
    time.timeSigNumerator = static_cast<std::int32_t>(std::lround(beat.beatsPerBar));
    time.timeSigDenominator = static_cast<std::int32_t>(std::lround(beat.beatType));
    time.flags |= kVstBarsValid | kVstTimeSigValid;
}

}  // namespace

VstTimeInfo CTimeTeller::timeOf(const STransport &transport, double sampleRate,
                                std::int32_t frames) {
    VstTimeInfo time{};
    time.sampleRate = sampleRate;
    time.samplePos = static_cast<double>(transport.frame);
    time.tempo = m_tempo;
    time.ppqPos = time.samplePos / sampleRate * m_tempo / 60.0;
    time.flags = kVstTempoValid | kVstPpqPosValid;
    if (transport.beat)
        fillBeat(time, *transport.beat);
    if (transport.isRolling)
        time.flags |= kVstTransportPlaying;
    if (transport.isRolling != m_wasRolling || transport.frame != m_expectedFrame)
        time.flags |= kVstTransportChanged;

    m_wasRolling = transport.isRolling;
    m_expectedFrame =
        transport.frame + (transport.isRolling ? static_cast<std::uint64_t>(frames) : 0);
    return time;
}

}  // namespace Tessitor::Tool
