#include "corvel/live/CJackClient.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace Tessitor::Tool {

namespace {

constexpr const char *audioType = JACK_DEFAULT_AUDIO_TYPE;
constexpr const char *midiType = JACK_DEFAULT_MIDI_TYPE;

// The library would print its own errors and remarks, some of them on the audio thread.
void silenceLibrary() {
    CJack::get().setErrorFunction([](const char *) {});
    CJack::get().setInfoFunction([](const char *) {});
}

std::string describeFailure(const SJackOptions &options, jack_status_t status) {
    const std::string server =
        options.server ? "JACK server " + inQuotes(*options.server) : "JACK server";
    if ((status & (JackServerFailed | JackServerError)) != 0)
        return "no " + server + " is running" +
               (options.server ? "" : "; start JACK or PipeWire, or name a server with --server");
    if ((status & JackVersionError) != 0)
        return "the " + server + " and this computer's JACK library have different versions";
    return "the " + server + " refuses the client";
}

}  // namespace

std::string problemOfClientName(const std::string &name) {
    const auto longest = static_cast<std::size_t>(CJack::get().clientNameSize()) - 1;
    const auto isControl = [](char letter) { return static_cast<unsigned char>(letter) < ' '; };
    if (name.empty())
        return "the name is empty";
    if (name.size() > longest)
        return "the name is longer than " + std::to_string(longest) + " bytes";
    if (name.find(':') != std::string::npos)
        return "a name has no colon";
    if (std::any_of(name.begin(), name.end(), isControl))
        return "a name has no control characters";
    return {};
}

std::unique_ptr<jack_client_t, CJackClient::SCloser>
CJackClient::open(const SJackOptions &options) {
    silenceLibrary();
    jack_status_t status{};
    jack_client_t *client =
        options.server ? CJack::get().clientOpen(
                             options.name.c_str(),
                             static_cast<jack_options_t>(JackNoStartServer | JackServerName),
                             &status, options.server->c_str())
                       : CJack::get().clientOpen(options.name.c_str(), JackNoStartServer, &status);
    if (client == nullptr)
        throw CJobError(describeFailure(options, status));
    return std::unique_ptr<jack_client_t, SCloser>(client);
}

CJackClient::CJackClient(const SJackOptions &options)
    : m_latency(options.latency), m_client(open(options)),
      m_sampleRate(m_jack.getSampleRate(m_client.get())),
      m_blockFrames(m_jack.getBufferSize(m_client.get())) {
    m_in = {addPort("in_left", audioType, JackPortIsInput),
            addPort("in_right", audioType, JackPortIsInput)};
    m_out = {addPort("out_left", audioType, JackPortIsOutput),
             addPort("out_right", audioType, JackPortIsOutput)};
    if (options.midi)
        m_midiIn = addPort("midi_in", midiType, JackPortIsInput);
    setCallbacks();
}

void CJackClient::SCloser::operator()(jack_client_t *client) const {
    CJack::get().clientClose(client);
}

std::string CJackClient::name() const {
    return m_jack.getClientName(m_client.get());
}

CJackClient::~CJackClient() {
    m_jack.deactivate(m_client.get());
}

jack_port_t *CJackClient::addPort(const char *portName, const char *type, unsigned long flags) {
    jack_port_t *port = m_jack.portRegister(m_client.get(), portName, type, flags, 0);
    if (port == nullptr)
        throw CJobError("the JACK server has no port left for " + name());
    return port;
}

void CJackClient::setCallbacks() {
    jack_client_t *client = m_client.get();
    m_jack.setProcessCallback(
        client, [](jack_nframes_t frames, void *object) { return self(object).process(frames); },
        this);
    m_jack.setSampleRateCallback(
        client,
        [](jack_nframes_t rate, void *object) {
            self(object).m_sampleRate = rate;
            return 0;
        },
        this);
    m_jack.setBufferSizeCallback(
        client,
        [](jack_nframes_t frames, void *object) {
            self(object).m_blockFrames = frames;
            return 0;
        },
        this);
    m_jack.setXrunCallback(
        client,
        [](void *object) {
            ++self(object).m_xruns;
            return 0;
        },
        this);
    m_jack.onShutdown(
        client, [](void *object) { self(object).m_isServerGone = true; }, this);
    m_jack.setLatencyCallback(
        client,
        [](jack_latency_callback_mode_t mode, void *object) { self(object).reportLatency(mode); },
        this);
}

void CJackClient::activate(CLiveRack &rack) {
    m_rack = &rack;
    if (m_jack.activate(m_client.get()) != 0)
        throw CJobError("the JACK server does not start the client");
}

std::vector<std::string> CJackClient::connectToSystem() {
    const auto sources = systemPorts(audioType, JackPortIsOutput);
    const auto sinks = systemPorts(audioType, JackPortIsInput);
    for (std::size_t i = 0; i < m_in.size(); ++i) {
        if (!sources.empty())
            connect(sources[std::min(i, sources.size() - 1)], m_jack.portName(m_in[i]));
        if (!sinks.empty())
            connect(m_jack.portName(m_out[i]), sinks[std::min(i, sinks.size() - 1)]);
    }
    if (m_midiIn != nullptr)
        for (const std::string &source : systemPorts(midiType, JackPortIsOutput))
            connect(source, m_jack.portName(m_midiIn));
    waitForConnections();
    std::vector<std::string> missing;
    if (sources.empty())
        missing.emplace_back("inputs");
    if (sinks.empty())
        missing.emplace_back("outputs");
    return missing;
}

std::vector<std::string> CJackClient::systemPorts(const char *type, unsigned long flags) const {
    const std::unique_ptr<const char *, decltype(&jack_free)> ports(
        m_jack.getPorts(m_client.get(), nullptr, type, flags | JackPortIsPhysical), m_jack.free);
    std::vector<std::string> names;
    for (const char **port = ports.get(); port != nullptr && *port != nullptr; ++port)
        names.emplace_back(*port);
    return names;
}

// A connection that the server refuses, since a port has just gone, is left to the user.
void CJackClient::connect(const std::string &from, const std::string &to) const {
    m_jack.connect(m_client.get(), from.c_str(), to.c_str());
}

// A new connection comes into effect at the start of a cycle. The current one may have started.
void CJackClient::waitForConnections() const {
    constexpr std::uint32_t cycles = 2;
    const std::uint32_t before = m_cycles;
    // A server that has stopped calls nobody.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    while (m_cycles - before < cycles && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

// The audio thread

int CJackClient::process(jack_nframes_t frames) {
    ++m_cycles;
    setProcessLevelOfThread(kVstProcessLevelRealtime);
    const auto buffer = [this, frames](jack_port_t *port) {
        return static_cast<float *>(m_jack.portGetBuffer(port, frames));
    };
    const std::size_t messages = readMidi(frames);
    m_rack->process({{buffer(m_in[0]), buffer(m_in[1])},
                     {buffer(m_out[0]), buffer(m_out[1])},
                     static_cast<std::int32_t>(frames),
                     {m_messages.data(), messages},
                     readTransport()});
    return 0;
}

std::size_t CJackClient::readMidi(jack_nframes_t frames) {
    if (m_midiIn == nullptr)
        return 0;
    void *buffer = m_jack.portGetBuffer(m_midiIn, frames);
    const std::uint32_t events = m_jack.midiGetEventCount(buffer);
    std::size_t count = 0;
    for (std::uint32_t i = 0; i < events && count < m_messages.size(); ++i) {
        jack_midi_event_t event{};
        if (m_jack.midiEventGet(&event, buffer, i) != 0)
            continue;
        if (const auto message =
                midiMessageFrom({event.buffer, event.size}, static_cast<std::int32_t>(event.time)))
            m_messages[count++] = *message;
    }
    return count;
}

STransport CJackClient::readTransport() const {
    jack_position_t position{};
    STransport transport;
    transport.isRolling = m_jack.transportQuery(m_client.get(), &position) == JackTransportRolling;
    transport.frame = position.frame;
    const bool isSensible = position.beats_per_minute > 0.0 && position.beats_per_bar > 0.0f &&
                            position.beat_type > 0.0f && position.ticks_per_beat > 0.0;
    if ((position.valid & JackPositionBBT) == 0 || !isSensible)
        return transport;
    // Beats count from 1, ticks from 0.
    transport.beat = {position.beats_per_minute, position.beats_per_bar, position.beat_type,
                      position.bar, position.beat - 1 + position.tick / position.ticks_per_beat};
    return transport;
}

// Other threads of the library

void CJackClient::reportLatency(jack_latency_callback_mode_t mode) const {
    const auto latency = static_cast<jack_nframes_t>(m_latency);
    const auto &from = mode == JackCaptureLatency ? m_in : m_out;
    const auto &to = mode == JackCaptureLatency ? m_out : m_in;
    for (std::size_t i = 0; i < from.size(); ++i) {
        jack_latency_range_t range{};
        m_jack.portGetLatencyRange(from[i], mode, &range);
        range.min += latency;
        range.max += latency;
        m_jack.portSetLatencyRange(to[i], mode, &range);
    }
}

}  // namespace Tessitor::Tool
