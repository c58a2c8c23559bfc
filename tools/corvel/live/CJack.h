#pragma once

#include "corvel/files/CSystemLibrary.h"

#include <jack/jack.h>
#include <jack/midiport.h>

namespace Tessitor::Tool {

/// The functions of JACK that play live. The library is opened when the first of them is needed.
class CJack {
public:
    /// @throws CJobError if JACK is not installed, or too old. [main thread]
    static const CJack &get() {
        static const CJack jack;
        return jack;
    }
    CJack(const CJack &) = delete;
    CJack &operator=(const CJack &) = delete;

private:
    CJack() = default;
    CSystemLibrary::SFunction find(const char *name) const { return m_library.function(name); }

    const CSystemLibrary m_library{"libjack.so.0", "corvel live plays through it"};

public:
    decltype(&jack_activate) activate = find("jack_activate");
    decltype(&jack_client_close) clientClose = find("jack_client_close");
    decltype(&jack_client_name_size) clientNameSize = find("jack_client_name_size");
    decltype(&jack_client_open) clientOpen = find("jack_client_open");
    decltype(&jack_connect) connect = find("jack_connect");
    decltype(&jack_deactivate) deactivate = find("jack_deactivate");
    decltype(&jack_free) free = find("jack_free");
    decltype(&jack_get_buffer_size) getBufferSize = find("jack_get_buffer_size");
    decltype(&jack_get_client_name) getClientName = find("jack_get_client_name");
    decltype(&jack_get_ports) getPorts = find("jack_get_ports");
    decltype(&jack_get_sample_rate) getSampleRate = find("jack_get_sample_rate");
    decltype(&jack_midi_event_get) midiEventGet = find("jack_midi_event_get");
    decltype(&jack_midi_get_event_count) midiGetEventCount = find("jack_midi_get_event_count");
    decltype(&jack_on_shutdown) onShutdown = find("jack_on_shutdown");
    decltype(&jack_port_get_buffer) portGetBuffer = find("jack_port_get_buffer");
    decltype(&jack_port_get_latency_range) portGetLatencyRange =
        find("jack_port_get_latency_range");
    decltype(&jack_port_name) portName = find("jack_port_name");
    decltype(&jack_port_register) portRegister = find("jack_port_register");
    decltype(&jack_port_set_latency_range) portSetLatencyRange =
        find("jack_port_set_latency_range");
    decltype(&jack_set_buffer_size_callback) setBufferSizeCallback =
        find("jack_set_buffer_size_callback");
    decltype(&jack_set_error_function) setErrorFunction = find("jack_set_error_function");
    decltype(&jack_set_info_function) setInfoFunction = find("jack_set_info_function");
    decltype(&jack_set_latency_callback) setLatencyCallback = find("jack_set_latency_callback");
    decltype(&jack_set_process_callback) setProcessCallback = find("jack_set_process_callback");
    decltype(&jack_set_sample_rate_callback) setSampleRateCallback =
        find("jack_set_sample_rate_callback");
    decltype(&jack_set_xrun_callback) setXrunCallback = find("jack_set_xrun_callback");
    decltype(&jack_transport_query) transportQuery = find("jack_transport_query");
};

}  // namespace Tessitor::Tool
