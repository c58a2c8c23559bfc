#include "hostlayer/CMidiEvent.h"

#include "foundation/CopyText.h"

#include <cstdio>

namespace Tessitor::Midi {

Basics::TClassRecord<CMidiEvent> CMidiEvent::s_class("CMidiEvent", "CCountedObject");

// The copy is counted as an instance and has no references yet.
CMidiEvent::CMidiEvent(const CMidiEvent &other) : CMidiEvent() {
    *this = other;
}

bool CMidiEvent::isNoteOff() const {
    return m_status == midiNoteOff || (m_status == midiNoteOn && m_subValue == 0);
}

void CMidiEvent::getObjectDescription(char *array, long size) const {
    const long status = m_status, value = m_value, subValue = m_subValue, channel = m_channel,
               delta = m_delta;
    char text[256];
    if (isNoteOff() || isNoteOn()) {
        std::snprintf(text, sizeof text,
                      "[Note %-10s: Note(%03li), Velocity(%03li), Channel(%03li), Delta(%03li)]",
                      isNoteOff() ? "Off" : "On", value, subValue, channel, delta);
    } else if (isController()) {
        std::snprintf(text, sizeof text,
                      "[Control Change : CC(%03li), Value(%03li), Channel(%03li), Delta(%03li)]",
                      value, subValue, channel, delta);
    } else {
        std::snprintf(text, sizeof text,
                      "[Other Message  : Status(%03li), Value(%03li), SubValue(%03li), "
                      "Channel(%03li), Delta(%03li)]",
                      status, value, subValue, channel, delta);
    }
    Basics::copyText(array, size, text);
}

int CMidiEvent::compare(const CMidiEvent *first, const CMidiEvent *second) {
    if (first == second)
        return 0;
    if (first == nullptr)
        return 1;
    if (second == nullptr)
        return -1;
    if (*first == *second)
        return 0;
    return *first < *second ? -1 : 1;
}

}  // namespace Tessitor::Midi
