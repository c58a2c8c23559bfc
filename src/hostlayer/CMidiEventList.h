#pragma once

#include "hostlayer/CMidiEvent.h"

#include <array>

namespace Tessitor::Midi {

/// The MIDI events of a block in the order in which they came, with a read position. The events lie
/// in the list, so nothing here allocates. [audio thread], or any other while no block is running.
class CMidiEventList : public Basics::CCountedObject {
public:
    static constexpr std::int32_t capacity = 128;

    CMidiEventList() { s_class.incrementInstanceCount(); }
    CMidiEventList(const CMidiEventList &) = delete;
    CMidiEventList &operator=(const CMidiEventList &) = delete;
    ~CMidiEventList() override { s_class.decrementInstanceCount(); }
    void getObjectDescription(char *array, long size) const override;
    Basics::CClass &getClass() const override { return s_class; }

    void setChannel(std::int32_t channel) { m_channel = channel; }  ///< the one to listen to
    std::int32_t getChannel() const { return m_channel; }
    std::int32_t getCount() const { return m_count; }  ///< events held
    std::int32_t getPosition() const { return m_position; }

    /// Back to no events and position 0.
    void clear();
    /// The event at the read position, in an empty list a stale one; null at -1.
    const CMidiEvent *getCurrentEvent() const;
    const CMidiEvent *getEventAtIndex(std::int32_t index) const;  ///< null outside the events held
    /// @return the new position; the number of events where the list has gone back to 0.
    std::int32_t advance();
    bool hasNext() const { return m_position + 1 < m_count; }
    /// Frames between the event at the read position and the next; 0 if there is none.
    std::int32_t getFramesToNext() const;

protected:
    bool isFull() const { return m_count == capacity; }
    /// Takes the next slot, which still holds what was in it before. Not for a full list.
    CMidiEvent &addEvent() { return m_events[static_cast<std::size_t>(m_count++)]; }

    std::array<CMidiEvent, capacity> m_events;
    std::int32_t m_channel = 0;
    std::int32_t m_count = 0;
    std::int32_t m_position = 0;  // -1 stands before the first event

private:
    static Basics::TClassRecord<CMidiEventList> s_class;
};

}  // namespace Tessitor::Midi
