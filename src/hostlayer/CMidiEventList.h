#pragma once

#include "hostlayer/CMidiEvent.h"

#include <array>

namespace Tessitor::Midi {

/// The MIDI events of a block in the order of arrival, with a read position. The list stores the
/// events by value, so nothing here allocates. [audio thread], or another thread between blocks.
class CMidiEventList : public Basics::CCountedObject {
public:
    static constexpr std::int32_t capacity = 128;

    CMidiEventList() { s_class.incrementInstanceCount(); }
    CMidiEventList(const CMidiEventList &) = delete;
    CMidiEventList &operator=(const CMidiEventList &) = delete;
    ~CMidiEventList() override { s_class.decrementInstanceCount(); }
    void getObjectDescription(char *array, long size) const override;
    Basics::CClass &getClass() const override { return s_class; }

    void setChannel(std::int32_t channel) { m_channel = channel; }  ///< the channel to listen to
    std::int32_t getChannel() const { return m_channel; }
    std::int32_t getCount() const { return m_count; }  ///< number of events
    std::int32_t getPosition() const { return m_position; }

    /// Sets the number of events and the position to 0.
    void clear();
    /// @return the event at the read position; a stale one if the list is empty, null at -1.
    const CMidiEvent *getCurrentEvent() const;
    const CMidiEvent *getEventAtIndex(std::int32_t index) const;  ///< null if out of range
    /// Moves to the next event; from the last event back to the first.
    /// @return the old position plus 1, even after the last event.
    std::int32_t advance();
    bool hasNext() const { return m_position + 1 < m_count; }
    /// @return frames from the event at the read position to the next one; 0 if there is none.
    std::int32_t getFramesToNext() const;

protected:
    bool isFull() const { return m_count == capacity; }
    /// @return the next slot, which still contains its previous event. The list must not be full.
    CMidiEvent &addEvent() { return m_events[static_cast<std::size_t>(m_count++)]; }

    std::array<CMidiEvent, capacity> m_events;
    std::int32_t m_channel = 0;
    std::int32_t m_count = 0;
    std::int32_t m_position = 0;  // -1 is before the first event

private:
    static Basics::TClassRecord<CMidiEventList> s_class;
};

}  // namespace Tessitor::Midi
