#pragma once

#include "foundation/CCountedObject.h"

#include <compare>

namespace Tessitor::Midi {

/// The status of a message without its channel; see CMidiEvent::getStatus().
enum EMidiStatus : std::int32_t {
    midiAllNotesOff = 123,
    midiNoteOff = 128,
    midiNoteOn = 144,
    midiController = 176,
    midiPitchBend = 224
};

/// One MIDI message of a block. Comparison looks only at the position in the block.
class CMidiEvent : public Basics::CCountedObject {
public:
    CMidiEvent() { s_class.incrementInstanceCount(); }
    CMidiEvent(const CMidiEvent &other);
    CMidiEvent &operator=(const CMidiEvent &) = default;
    ~CMidiEvent() override { s_class.decrementInstanceCount(); }
    void getObjectDescription(char *array, long size) const override;
    Basics::CClass &getClass() const override { return s_class; }

    void setStatus(std::int32_t status) { m_status = status; }
    void setValue(std::int32_t value) { m_value = value; }
    void setSubValue(std::int32_t subValue) { m_subValue = subValue; }
    void setChannel(std::int32_t channel) { m_channel = channel; }
    void setDelta(std::int32_t frames) { m_delta = frames; }
    void setPitchBend(double pitchBend) { m_pitchBend = pitchBend; }

    std::int32_t getStatus() const { return m_status; }
    std::int32_t getValue() const { return m_value; }        ///< note or controller number
    std::int32_t getSubValue() const { return m_subValue; }  ///< velocity or controller value
    std::int32_t getChannel() const { return m_channel; }
    std::int32_t getDelta() const { return m_delta; }    ///< frames from the start of the block
    double getPitchBend() const { return m_pitchBend; }  ///< -1 to just under 1; midiPitchBend only

    bool isNoteOn() const { return m_status == midiNoteOn && m_subValue != 0; }
    /// True also for a note on with velocity 0.
    bool isNoteOff() const;
    bool isController() const { return m_status == midiController; }

    bool operator==(const CMidiEvent &other) const { return m_delta == other.m_delta; }
    std::strong_ordering operator<=>(const CMidiEvent &other) const {
        return m_delta <=> other.m_delta;
    }

    /// For sorting by position in the block, with null pointers last.
    /// @return -1, 0 or 1. The same pointer compares as 0, otherwise a null `first` as 1 and a null
    ///         `second` as -1.
    static int compare(const CMidiEvent *first, const CMidiEvent *second);

private:
    static Basics::TClassRecord<CMidiEvent> s_class;

    std::int32_t m_status = 0;
    std::int32_t m_value = 0;
    std::int32_t m_subValue = 0;
    std::int32_t m_channel = 1;
    std::int32_t m_delta = 0;
    double m_pitchBend = 0.0;
};

}  // namespace Tessitor::Midi
