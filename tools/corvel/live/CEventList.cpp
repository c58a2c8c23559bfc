#include "corvel/live/CEventList.h"

namespace Tessitor::Tool {

CEventList::CEventList() {
    for (std::size_t i = 0; i < capacity; ++i) {
        m_events[i].type = kVstMidiType;
        m_events[i].byteSize = sizeof(VstMidiEvent);
        m_events[i].flags = kVstMidiEventIsRealtime;
        m_record.events[i] = &m_events[i];
    }
}

bool CEventList::add(const SMidiMessage &message) {
    const auto index = static_cast<std::size_t>(m_record.numEvents);
    if (index == capacity)
        return false;
    VstMidiEvent &event = m_events[index];
    event.deltaFrames = message.frame;
    event.midiData[0] = static_cast<char>(message.status);
    event.midiData[1] = static_cast<char>(message.data1);
    event.midiData[2] = static_cast<char>(message.data2);
    ++m_record.numEvents;
    return true;
}

}  // namespace Tessitor::Tool
