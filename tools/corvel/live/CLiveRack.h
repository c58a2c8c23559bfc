#pragma once

#include "corvel/effect/CEffectInstance.h"
#include "corvel/live/CControllers.h"
#include "corvel/live/CEventList.h"
#include "corvel/live/CGate.h"
#include "corvel/live/CTimeTeller.h"
#include "corvel/live/TLockFreeQueue.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace Tessitor::Tool {

/// One block of live sound.
struct SLiveBlock {
    std::array<const float *, 2> in;
    std::array<float *, 2> out;
    std::int32_t frames;
    std::span<const SMidiMessage> midi;  // in order
    STransport transport;                // at the start of the block
};

/// What MIDI does to the effect.
struct SLiveMidi {
    CControllers controllers;
    std::optional<int> channel;  // 1 to 16; all if there is none
};

/// An effect that plays live.
///
/// Controllers set parameters on the audio thread, at the start of the block in which they arrive:
/// that is how hosts automate, so effects are prepared for it, and the timing does not depend on
/// another thread. What may allocate or concerns the editor (programs, and the few parameters that
/// allocate) goes through a queue to the main thread. While something is in the queue, what follows
/// is queued too, so that the order is kept.
class CLiveRack {
public:
    /// @param effect  with its settings, not started. It must outlive this object.
    CLiveRack(CEffectInstance &effect, SLiveMidi midi, double tempo);
    ~CLiveRack();
    CLiveRack(const CLiveRack &) = delete;
    CLiveRack &operator=(const CLiveRack &) = delete;

    // [main thread]

    /// Starts the effect, or restarts it with another rate and block size. Meanwhile the audio
    /// thread plays silence.
    /// @param blockFrames  the longest block.
    void start(double sampleRate, std::int32_t blockFrames);
    void stop();                   ///< does nothing unless started
    double secondsPlayed() const;  ///< of sound
    /// Does what the audio thread has left to the main thread.
    /// @return the programs that MIDI asked for, also those that the effect does not have and that
    ///         were therefore ignored.
    std::vector<std::int32_t> runErrands();

    // [audio thread]

    /// Takes no lock, allocates and prints nothing, apart from what the effect does. Longer blocks
    /// than start() was called with are silent.
    void process(const SLiveBlock &block);

    // [any thread]

    std::uint64_t framesPlayed() const { return m_framesPlayed; }
    /// Samples of the input that were infinite or not a number, and were played as 0.
    std::uint64_t nonFiniteSamples() const { return m_nonFiniteSamples; }
    std::uint64_t lostMessages() const { return m_lostMessages; }  ///< since too many came at once

private:
    void setProgram(std::int32_t program);
    void takeMidi(std::span<const SMidiMessage> messages, bool isRunning);
    void take(const SMidiMessage &message, bool isRunning);
    bool isForUs(const SMidiMessage &message) const;
    void copyFinite(const float *from, std::vector<float> &to, std::size_t frames);
    void play(const SLiveBlock &block);

    CEffectInstance &m_effect;
    const SLiveMidi m_midi;
    const bool m_takesEvents;
    CGate m_gate;
    bool m_isStarted = false;
    double m_secondsBefore = 0.0;      // played before the last start
    std::uint64_t m_framesBefore = 0;  // likewise

    // For the audio thread; the main thread touches them only while the gate is closed.
    double m_sampleRate = 0.0;  // Hz
    std::int32_t m_blockFrames = 0;
    std::vector<float> m_left, m_right;  // one block of input
    CEventList m_events;
    CTimeTeller m_time;

    TLockFreeQueue<SMidiMessage, 256> m_errands;
    std::atomic<std::uint64_t> m_framesPlayed = 0, m_nonFiniteSamples = 0, m_lostMessages = 0;
};

}  // namespace Tessitor::Tool
