#pragma once

#include "corvel/live/SMidiMessage.h"
#include "hostlayer/VstInterface.h"

#include <array>
#include <cstddef>

namespace Tessitor::Tool {

/// The MIDI of one block in the form that effects read. [audio thread] Allocates nothing.
class CEventList {
public:
    CEventList();
    CEventList(const CEventList &) = delete;
    CEventList &operator=(const CEventList &) = delete;

    bool add(const SMidiMessage &message);  ///< @return false if the list is full
    void clear() { m_record.numEvents = 0; }
    bool isEmpty() const { return m_record.numEvents == 0; }
    /// @return a VstEvents; valid as long as the list.
    void *record() { return &m_record; }

private:
    static constexpr std::size_t capacity = 512;

    // VstEvents with room for more pointers
    struct SRecord {
        std::int32_t numEvents = 0;
        std::intptr_t reserved = 0;
        std::array<VstMidiEvent *, capacity> events{};
    };
    static_assert(offsetof(SRecord, events) == offsetof(VstEvents, events));

    std::array<VstMidiEvent, capacity> m_events{};
    SRecord m_record;
};

}  // namespace Tessitor::Tool
