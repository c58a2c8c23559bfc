#include "tools/live/CJackBench.h"

#include "tools/live/WaitUntil.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <jack/midiport.h>
#include <stdexcept>

namespace {

jack_client_t *open(const char *name, const std::string &server) {
    jack_client_t *client =
        jack_client_open(name, static_cast<jack_options_t>(JackNoStartServer | JackServerName),
                         nullptr, server.c_str());
    if (client == nullptr)
        throw std::runtime_error("the JACK server refuses the test");
    return client;
}

std::array<jack_port_t *, 3> addPorts(jack_client_t *client, unsigned long direction) {
    const auto add = [&](const char *name, unsigned long flags) {
        return jack_port_register(client, name, JACK_DEFAULT_AUDIO_TYPE, direction | flags, 0);
    };
    return {add("1", JackPortIsPhysical), add("2", JackPortIsPhysical), add("count", 0)};
}

float *bufferOf(jack_port_t *port, jack_nframes_t frames) {
    return static_cast<float *>(jack_port_get_buffer(port, frames));
}

}  // namespace

CJackBench::CJackBench(const std::string &server)
    : m_source(open("source", server)), m_sink(open("sink", server)) {
    m_out = addPorts(m_source, JackPortIsOutput);
    m_midiOut = jack_port_register(m_source, "midi", JACK_DEFAULT_MIDI_TYPE,
                                   JackPortIsOutput | JackPortIsPhysical, 0);
    m_in = addPorts(m_sink, JackPortIsInput);
    for (auto &channel : m_recorded)
        channel.resize(capacity);
    jack_set_process_callback(m_source, processSource, this);
    jack_set_process_callback(m_sink, processSink, this);
    jack_activate(m_source);
    jack_activate(m_sink);
    jack_connect(m_source, "source:count", "sink:count");
}

CJackBench::~CJackBench() {
    jack_client_close(m_source);
    jack_client_close(m_sink);
}

// Multiples of 2^-15 below half of full scale, never 0
float CJackBench::sampleAt(std::size_t channel, std::uint32_t frame) {
    std::uint32_t noise = frame * 2654435761u + static_cast<std::uint32_t>(channel) * 40503u;
    noise ^= noise >> 15;
    noise *= 2246822519u;
    noise ^= noise >> 13;
    return (static_cast<float>(noise % 32768u) - 16383.5f) / 32768.0f;
}

int CJackBench::processSource(jack_nframes_t frames, void *object) {
    auto &bench = *static_cast<CJackBench *>(object);
    for (std::size_t channel = 0; channel < 2; ++channel) {
        float *out = bufferOf(bench.m_out[channel], frames);
        for (jack_nframes_t i = 0; i < frames; ++i)
            out[i] = sampleAt(channel, bench.m_frame + i);
    }
    float *count = bufferOf(bench.m_out[2], frames);
    for (jack_nframes_t i = 0; i < frames; ++i)
        count[i] = static_cast<float>(bench.m_frame + i);
    bench.m_frame += frames;

    void *midi = jack_port_get_buffer(bench.m_midiOut, frames);
    jack_midi_clear_buffer(midi);
    if (const std::size_t bytes = bench.m_messageBytes)
        jack_midi_event_write(midi, 0, bench.m_message.data(), bytes);
    bench.m_messageBytes = 0;
    return 0;
}

int CJackBench::processSink(jack_nframes_t frames, void *object) {
    auto &bench = *static_cast<CJackBench *>(object);
    const std::size_t recorded = bench.m_recordedFrames;
    if (recorded + frames <= capacity) {
        for (std::size_t channel = 0; channel < 3; ++channel)
            std::copy_n(bufferOf(bench.m_in[channel], frames), frames,
                        bench.m_recorded[channel].begin() + static_cast<std::ptrdiff_t>(recorded));
        bench.m_recordedFrames = recorded + frames;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(bench.m_delay.exchange(0)));
    return 0;
}

CJackBench::SRecording CJackBench::record(std::size_t frames) {
    const auto &[left, right, count] = m_recorded;
    const std::size_t block = blockFrames();
    SRecording recording;
    for (std::size_t at = m_taken; recording.samples[0].size() < frames; at += block) {
        if (!waitUntil([&] { return m_recordedFrames >= at + block; }))
            throw std::runtime_error("the JACK server does not run, or the recording is full");
        const auto begin = static_cast<std::ptrdiff_t>(at), end = begin + std::ptrdiff_t(block);
        const auto isSilent = [&](const std::vector<float> &channel) {
            return std::all_of(channel.begin() + begin, channel.begin() + end,
                               [](float sample) { return sample == 0.0f; });
        };
        m_taken = at + block;
        if (recording.samples[0].empty() && isSilent(left) && isSilent(right))
            continue;
        if (recording.samples[0].empty())
            recording.first = static_cast<std::uint32_t>(count[at]);
        EXPECT_EQ(count[at], static_cast<float>(recording.first + recording.samples[0].size()))
            << "a cycle was lost";
        recording.samples[0].insert(recording.samples[0].end(), left.begin() + begin,
                                    left.begin() + end);
        recording.samples[1].insert(recording.samples[1].end(), right.begin() + begin,
                                    right.begin() + end);
    }
    return recording;
}

void CJackBench::forget() {
    m_taken = m_recordedFrames;
}

void CJackBench::waitForCycles() {
    const std::size_t before = m_recordedFrames;
    waitUntil([&] { return m_recordedFrames >= before + 2 * blockFrames(); });
    forget();
}

void CJackBench::sendMidi(const Tessitor::Tool::SMidiMessage &message) {
    waitForCycles();  // since a connection may be new
    m_message = {message.status, message.data1, message.data2};
    m_messageBytes = message.isProgramChange() ? 2 : 3;
    waitUntil([this] { return m_messageBytes == 0; });
    waitForCycles();  // since the source may be a cycle ahead
}

void CJackBench::keepTime(double beatsPerMinute) {
    m_beatsPerMinute = beatsPerMinute;
    jack_set_timebase_callback(
        m_source, 0,
        [](jack_transport_state_t, jack_nframes_t, jack_position_t *position, int, void *object) {
            position->valid = JackPositionBBT;
            position->bar = 3;
            position->beat = 2;
            position->tick = 960;
            position->beats_per_bar = position->beat_type = 4.0f;
            position->ticks_per_beat = 1920.0;
            position->beats_per_minute = static_cast<CJackBench *>(object)->m_beatsPerMinute;
        },
        this);
}

std::vector<std::string> CJackBench::connectionsOf(const std::string &port) const {
    std::vector<std::string> names;
    jack_port_t *found = jack_port_by_name(m_sink, port.c_str());
    const char **connections =
        found == nullptr ? nullptr : jack_port_get_all_connections(m_sink, found);
    for (const char **name = connections; name != nullptr && *name != nullptr; ++name)
        names.emplace_back(*name);
    jack_free(connections);
    return names;
}
