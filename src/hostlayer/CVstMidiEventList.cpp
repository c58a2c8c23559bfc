#include "hostlayer/CVstMidiEventList.h"

namespace Tessitor::Midi {

namespace {

int byteOf(const VstMidiEvent &event, int index) {
    return static_cast<unsigned char>(event.midiData[index]);
}

bool endsAllNotes(int controller) {
    return controller == 123 || controller == 126;
}

}  // namespace

Basics::TClassRecord<CVstMidiEventList> CVstMidiEventList::s_class("CVstMidiEventList",
                                                                   "CMidiEventList");

void CVstMidiEventList::readEvents(const VstEvents &block) {
    VstEvent *const *events = block.events;
    for (std::int32_t i = 0; i < block.numEvents && !isFull(); ++i)
        if (events[i]->type == kVstMidiType)
            readEvent(*reinterpret_cast<const VstMidiEvent *>(events[i]));
}

void CVstMidiEventList::readEvent(const VstMidiEvent &event) {
    // Kept: only the top bit of the channel, so channel 0 receives the first eight channels.
    const int channel = byteOf(event, 0) & 8;
    if (channel != m_channel)
        return;

    const int status = byteOf(event, 0) & 240, second = byteOf(event, 1), third = byteOf(event, 2);
    switch (status) {
    case midiNoteOff:
    case midiNoteOn:
    case midiController: {
        const bool allNotesOff = status == midiController && endsAllNotes(second);
        CMidiEvent &stored = addEvent();
        stored.setStatus(allNotesOff ? midiAllNotesOff : status);
        stored.setValue(allNotesOff ? 0 : second & 127);
        stored.setSubValue(allNotesOff ? 0 : third & 127);
        stored.setChannel(channel);
        stored.setDelta(event.deltaFrames);
        break;
    }
    case midiPitchBend: {
        // Kept: the slot keeps the channel of the event that it held before.
        CMidiEvent &stored = addEvent();
        stored.setStatus(midiPitchBend);
        stored.setValue(0);
        stored.setSubValue(0);
        stored.setPitchBend((third * 128 + second) * 0.0001220703125 - 1.0);
        stored.setDelta(event.deltaFrames);
        break;
    }
    default:
        break;
    }
}

}  // namespace Tessitor::Midi
