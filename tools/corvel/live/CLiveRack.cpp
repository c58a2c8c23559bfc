#include "corvel/live/CLiveRack.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessitor::Tool {

namespace {

bool canDo(CEffectInstance &effect, std::string what) {
    return effect.dispatch(effCanDo, 0, 0, what.data()) > 0;
}

}  // namespace

CLiveRack::CLiveRack(CEffectInstance &effect, SLiveMidi midi, double tempo)
    : m_effect(effect), m_midi(std::move(midi)),
      m_takesEvents(canDo(effect, "receiveVstMidiEvent") || canDo(effect, "receiveVstEvents")),
      m_time(tempo) {}

CLiveRack::~CLiveRack() {
    stop();
}

void CLiveRack::start(double sampleRate, std::int32_t blockFrames) {
    stop();
    m_secondsBefore = secondsPlayed();
    m_framesBefore = m_framesPlayed;
    m_sampleRate = sampleRate;
    m_blockFrames = blockFrames;
    m_left.assign(static_cast<std::size_t>(blockFrames), 0.0f);
    m_right = m_left;
    SRunSettings run;
    run.sampleRate = sampleRate;
    run.blockSize = blockFrames;
    m_effect.start(run);
    m_isStarted = true;
    m_gate.open();
}

void CLiveRack::stop() {
    if (!std::exchange(m_isStarted, false))
        return;
    m_gate.close();
    m_effect.stop();
}

double CLiveRack::secondsPlayed() const {
    const std::uint64_t frames = m_framesPlayed - m_framesBefore;
    return m_secondsBefore + (frames > 0 ? static_cast<double>(frames) / m_sampleRate : 0.0);
}

std::vector<std::int32_t> CLiveRack::runErrands() {
    std::vector<std::int32_t> programs;
    for (; const SMidiMessage *message = m_errands.peek(); m_errands.pop()) {
        if (message->isController()) {
            m_midi.controllers.apply(message->data1, message->data2, m_effect);
            continue;
        }
        programs.push_back(message->data1);
        if (message->data1 < m_effect.record().numPrograms)
            setProgram(message->data1);
    }
    return programs;
}

void CLiveRack::setProgram(std::int32_t program) {
    m_effect.dispatch(effBeginSetProgram);
    m_effect.dispatch(effSetProgram, 0, program);
    m_effect.dispatch(effEndSetProgram);
}

void CLiveRack::process(const SLiveBlock &block) {
    const bool isRunning = m_gate.enter();
    takeMidi(block.midi, isRunning);
    if (isRunning && block.frames <= m_blockFrames) {
        play(block);
    } else {
        for (float *channel : block.out)
            std::fill_n(channel, block.frames, 0.0f);
    }
    if (isRunning)
        m_gate.leave();
}

void CLiveRack::takeMidi(std::span<const SMidiMessage> messages, bool isRunning) {
    m_events.clear();
    for (const SMidiMessage &message : messages)
        if (isForUs(message))
            take(message, isRunning);
}

bool CLiveRack::isForUs(const SMidiMessage &message) const {
    return !message.isForOneChannel() || !m_midi.channel || *m_midi.channel == message.channel();
}

void CLiveRack::take(const SMidiMessage &message, bool isRunning) {
    const bool sets = message.isController() && m_midi.controllers.isAnySetBy(message.data1);
    bool isTaken = true;
    if (sets && isRunning && m_errands.isEmpty() &&
        m_midi.controllers.canSetOnAudioThread(message.data1))
        m_midi.controllers.apply(message.data1, message.data2, m_effect);
    else if (sets || message.isProgramChange())
        isTaken = m_errands.push(message);
    else if (m_takesEvents && isRunning)
        isTaken = m_events.add(message);
    if (!isTaken)
        m_lostMessages = m_lostMessages + 1;
}

void CLiveRack::play(const SLiveBlock &block) {
    const auto frames = static_cast<std::size_t>(block.frames);
    m_effect.setTime(m_time.timeOf(block.transport, m_sampleRate, block.frames));
    if (!m_events.isEmpty())
        m_effect.dispatch(effProcessEvents, 0, 0, m_events.record());
    copyFinite(block.in[0], m_left, frames);
    copyFinite(block.in[1], m_right, frames);
    float *ins[] = {m_left.data(), m_right.data()};
    float *outs[] = {block.out[0], block.out[1]};
    m_effect.process(ins, outs, block.frames);
    m_framesPlayed = m_framesPlayed + frames;
}

// One such sample would stay in the effect's filters and silence the rest of the evening.
void CLiveRack::copyFinite(const float *from, std::vector<float> &to, std::size_t frames) {
    std::uint64_t others = 0;
    for (std::size_t i = 0; i < frames; ++i) {
        const bool isFinite = std::isfinite(from[i]);
        to[i] = isFinite ? from[i] : 0.0f;
        others += isFinite ? 0 : 1;
    }
    if (others > 0)
        m_nonFiniteSamples = m_nonFiniteSamples + others;
}

}  // namespace Tessitor::Tool
