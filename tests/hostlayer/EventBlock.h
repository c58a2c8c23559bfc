#pragma once

#include "hostlayer/VstInterface.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <new>
#include <vector>

/// A block of events in the host's memory layout. It must outlive the pointer from get().
class EventBlock {
public:
    EventBlock &midi(int byte0, int byte1, int byte2, std::int32_t delta = 0) {
        VstMidiEvent event{};
        event.type = kVstMidiType;
        event.byteSize = sizeof event;
        event.deltaFrames = delta;
        event.midiData[0] = static_cast<char>(byte0);
        event.midiData[1] = static_cast<char>(byte1);
        event.midiData[2] = static_cast<char>(byte2);
        m_pointers.push_back(reinterpret_cast<VstEvent *>(&m_midi.emplace_back(event)));
        return *this;
    }

    /// Read as a MIDI event by mistake, its bytes would be a note on.
    EventBlock &sysex() {
        VstMidiSysexEvent event{};
        event.type = kVstSysExType;
        event.byteSize = sizeof event;
        event.resvd1 = 0x643C90;
        m_pointers.push_back(reinterpret_cast<VstEvent *>(&m_sysex.emplace_back(event)));
        return *this;
    }

    VstEvents *get() {
        constexpr std::size_t head = offsetof(VstEvents, events) / sizeof(void *);
        m_memory.assign(head + std::max<std::size_t>(m_pointers.size(), 2), nullptr);
        auto *block = new (m_memory.data()) VstEvents{};
        block->numEvents = static_cast<std::int32_t>(m_pointers.size());
        std::copy(m_pointers.begin(), m_pointers.end(),
                  reinterpret_cast<VstEvent **>(m_memory.data() + head));
        return block;
    }

private:
    std::deque<VstMidiEvent> m_midi;
    std::deque<VstMidiSysexEvent> m_sysex;
    std::vector<VstEvent *> m_pointers;
    std::vector<void *> m_memory;
};
