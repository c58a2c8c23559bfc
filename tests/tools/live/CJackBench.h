#pragma once

#include "corvel/live/SMidiMessage.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <jack/jack.h>
#include <string>
#include <vector>

/// A sound card on a server without one: its ports are physical ones. It plays a sound that never
/// repeats, and records what comes back.
///
///     source:1, source:2, source:midi -> (corvel) -> sink:1, sink:2
///     source:count -----------------------------> sink:count
///
/// Source and sink are two clients, so that what comes back belongs to the same cycle.
class CJackBench {
public:
    explicit CJackBench(const std::string &server);
    ~CJackBench();
    CJackBench(const CJackBench &) = delete;
    CJackBench &operator=(const CJackBench &) = delete;

    /// @return the sample that the source plays at a frame, counted by the source.
    static float sampleAt(std::size_t channel, std::uint32_t frame);

    struct SRecording {
        std::uint32_t first = 0;  // frame of the source
        std::array<std::vector<float>, 2> samples;
    };
    /// Waits until that many frames are recorded.
    /// @return those after the last call, without silence at the start; whole blocks. Fails the
    ///         test if a cycle was lost.
    SRecording record(std::size_t frames);
    void forget();  ///< what is recorded so far

    /// Sends a message in the next cycle, and waits until that is over.
    void sendMidi(const Tessitor::Tool::SMidiMessage &message);
    void setBlockFrames(std::uint32_t frames) { jack_set_buffer_size(m_source, frames); }
    std::uint32_t blockFrames() const { return jack_get_buffer_size(m_source); }
    void delayNextCycle(int milliseconds) { m_delay = milliseconds; }
    /// Keeps the time for the server: always the middle of the second beat of the third bar.
    void keepTime(double beatsPerMinute);
    jack_client_t *client() const { return m_sink; }
    /// @return the names of the ports that a port is connected to.
    std::vector<std::string> connectionsOf(const std::string &port) const;

private:
    static constexpr std::size_t capacity = 1 << 20;  // frames
    using Ports = std::array<jack_port_t *, 3>;

    void waitForCycles();
    static int processSource(jack_nframes_t frames, void *object);
    static int processSink(jack_nframes_t frames, void *object);

    jack_client_t *m_source, *m_sink;
    Ports m_out{}, m_in{};  // left, right, count
    jack_port_t *m_midiOut = nullptr;
    std::uint32_t m_frame = 0;
    std::array<std::vector<float>, 3> m_recorded;
    std::atomic<std::size_t> m_recordedFrames = 0;
    std::size_t m_taken = 0;
    std::atomic<int> m_delay = 0;
    std::array<unsigned char, 3> m_message{};
    std::atomic<std::size_t> m_messageBytes = 0;
    double m_beatsPerMinute = 0.0;
};
