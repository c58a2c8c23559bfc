#pragma once

#include "corvel/live/CJack.h"
#include "corvel/live/CLiveRack.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

struct SJackOptions {
    std::string name = "corvel";        // of the client; the server adds a number if it is taken
    std::optional<std::string> server;  // by default $JACK_DEFAULT_SERVER or "default"
    bool midi = false;                  // with a MIDI input
    std::int32_t latency = 0;           // of the effect, frames
};

/// @return what is wrong with a client's name; empty if nothing is.
std::string problemOfClientName(const std::string &name);

/// A client of the JACK server: stereo in, stereo out and perhaps MIDI in. It hands the blocks to a
/// rack. [main thread], apart from what says otherwise
class CJackClient {
public:
    /// @throws CJobError if there is no server or it refuses the client. A server is never started.
    explicit CJackClient(const SJackOptions &options);
    /// Leaves the server.
    ~CJackClient();
    CJackClient(const CJackClient &) = delete;
    CJackClient &operator=(const CJackClient &) = delete;

    std::string name() const;
    // Both may change while the client runs.
    std::uint32_t sampleRate() const { return m_sampleRate; }    ///< Hz
    std::uint32_t blockFrames() const { return m_blockFrames; }  ///< the longest block

    /// From now on the audio thread calls the rack, which must outlive this object.
    /// @throws CJobError if the server refuses.
    void activate(CLiveRack &rack);
    /// Connects the inputs to the first two of the system's inputs, the outputs to the first two of
    /// its outputs, and MIDI to all of the system's. A single one serves both sides. Waits until
    /// the connections carry sound, so that both sides begin at once. Call activate() first.
    /// @return what there was nothing to connect to: "inputs", "outputs" or both.
    std::vector<std::string> connectToSystem();

    std::uint32_t xruns() const { return m_xruns; }
    bool isServerGone() const { return m_isServerGone; }

private:
    struct SCloser {
        void operator()(jack_client_t *client) const;
    };

    static CJackClient &self(void *object) { return *static_cast<CJackClient *>(object); }
    static std::unique_ptr<jack_client_t, SCloser> open(const SJackOptions &options);
    jack_port_t *addPort(const char *portName, const char *type, unsigned long flags);
    void setCallbacks();
    std::vector<std::string> systemPorts(const char *type, unsigned long flags) const;
    void connect(const std::string &from, const std::string &to) const;
    void waitForConnections() const;

    // [audio thread]
    int process(jack_nframes_t frames);
    std::size_t readMidi(jack_nframes_t frames);
    STransport readTransport() const;

    void reportLatency(jack_latency_callback_mode_t mode) const;  // a thread of the library

    const CJack &m_jack = CJack::get();
    const std::int32_t m_latency;
    std::unique_ptr<jack_client_t, SCloser> m_client;
    std::array<jack_port_t *, 2> m_in{}, m_out{};  // owned by the client
    jack_port_t *m_midiIn = nullptr;               // likewise; null without MIDI
    CLiveRack *m_rack = nullptr;
    std::array<SMidiMessage, 512> m_messages{};  // of the current block
    std::atomic<std::uint32_t> m_sampleRate = 0, m_blockFrames = 0, m_xruns = 0;
    std::atomic<std::uint32_t> m_cycles = 0;  // of the server, while active
    std::atomic<bool> m_isServerGone = false;
};

}  // namespace Tessitor::Tool
