#include "hostlayer/CMidiEventList.h"

#include "foundation/CopyText.h"

#include <cstdio>

namespace Tessitor::Midi {

Basics::TClassRecord<CMidiEventList> CMidiEventList::s_class("CMidiEventList", "CCountedObject");

void CMidiEventList::getObjectDescription(char *array, long size) const {
    char text[64];
    std::snprintf(text, sizeof text, "[Number Of Events(%li), Channel(%li)]",
                  static_cast<long>(m_count), static_cast<long>(m_channel));
    Basics::copyText(array, size, text);
}

void CMidiEventList::clear() {
    m_count = 0;
    m_position = 0;
}

const CMidiEvent *CMidiEventList::getCurrentEvent() const {
    return m_position == -1 ? nullptr : &m_events[static_cast<std::size_t>(m_position)];
}

const CMidiEvent *CMidiEventList::getEventAtIndex(std::int32_t index) const {
    return index >= 0 && index < m_count ? &m_events[static_cast<std::size_t>(index)] : nullptr;
}

std::int32_t CMidiEventList::advance() {
    const std::int32_t next = ++m_position;
    if (m_position >= m_count)
        m_position = 0;
    return next;
}

std::int32_t CMidiEventList::getFramesToNext() const {
    if (m_position == -1 || !hasNext())
        return 0;
    return getEventAtIndex(m_position + 1)->getDelta() - getCurrentEvent()->getDelta();
}

}  // namespace Tessitor::Midi
