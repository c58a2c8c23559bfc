#pragma once

#include "hostlayer/CMidiEventList.h"
#include "hostlayer/VstInterface.h"

namespace Tessitor::Midi {

/// A list filled from the host's events.
class CVstMidiEventList : public CMidiEventList {
public:
    CVstMidiEventList() { s_class.incrementInstanceCount(); }
    ~CVstMidiEventList() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    /// Adds the notes, controllers and pitch bends for this list's channel, in the host's order.
    /// Events beyond the capacity are lost.
    void readEvents(const VstEvents &block);

private:
    void readEvent(const VstMidiEvent &event);

    static Basics::TClassRecord<CVstMidiEventList> s_class;
};

}  // namespace Tessitor::Midi
