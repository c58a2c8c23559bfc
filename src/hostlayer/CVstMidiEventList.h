#pragma once

#include "hostlayer/CMidiEventList.h"
#include "hostlayer/VstInterface.h"

namespace Tessitor::Midi {

/// A list that the host's events are read into.
class CVstMidiEventList : public CMidiEventList {
public:
    CVstMidiEventList() { s_class.incrementInstanceCount(); }
    ~CVstMidiEventList() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    /// Adds the notes, controllers and pitch bends of the block that are for this list's channel.
    /// Events beyond the capacity are lost. The order is the host's.
    void readEvents(const VstEvents &block);

private:
    void readEvent(const VstMidiEvent &event);

    static Basics::TClassRecord<CVstMidiEventList> s_class;
};

}  // namespace Tessitor::Midi
