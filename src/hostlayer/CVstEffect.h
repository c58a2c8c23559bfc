#pragma once

#include "foundation/CCriticalSection.h"
#include "foundation/CLong.h"
#include "foundation/TPointerCollection.h"
#include "hostlayer/AudioEffectX.h"
#include "hostlayer/CHostCanDo.h"
#include "hostlayer/CVstMidiEventList.h"
#include "hostlayer/CVstTempo.h"

namespace Tessitor::Vst {

/// An effect with the library's host services: the host's capabilities, its transport, the MIDI of
/// the coming block, and a lock. It does no signal processing.
///
/// This class never takes the lock. The host sets rate and block size on any thread, one at a time.
/// Only the audio thread uses the tempo and, from processEvents to the end of the block, the MIDI
/// list.
class CVstEffect : public AudioEffectX, public Basics::CCountedObject {
public:
    /// Asks the host for its capabilities and names, and never asks again.
    /// @param host  must be ready to answer; null for no host.
    CVstEffect(audioMasterCallback host, int parameters, int programs);
    ~CVstEffect() override;
    Basics::CClass &getClass() const override { return s_class; }

    void setSampleRate(float rate) override;  ///< recorded only
    void setBlockSize(int frames) override;   ///< recorded only

    /// [audio thread] Each ends the block: it clears the MIDI list and leaves the buffers alone.
    void processReplacing(float **inputs, float **outputs, int sampleFrames) override;
    void processDoubleReplacing(double **inputs, double **outputs, int sampleFrames) override;
    using AudioEffectX::process;

    /// [audio thread] Reads the events for the coming block.
    int processEvents(VstEvents *events) override;

    /// From CApplicationInformation, at most 24 characters. @return false if the pointer is null.
    bool getEffectName(char *name) override;
    bool getVendorString(char *text) override;
    bool getProductString(char *text) override;

    /// These return "Default" and "No param", for effects without programs and parameters.
    void setProgramName(char *name) override;
    void getProgramName(char *name) override;
    bool getProgramNameIndexed(int category, int index, char *text) override;
    void getParameterLabel(int index, char *label) override;
    void getParameterDisplay(int index, char *text) override;
    void getParameterName(int index, char *text) override;

    int getNumMidiInputChannels() override { return 1; }

    /// Kept: its frame count is a long, so it does not override AudioEffect::process(), and hosts
    /// cannot reach it through the record.
    virtual void process(float **inputs, float **outputs, long sampleFrames);
    virtual void setMidiChannel(int channel) { m_midiEvents.setChannel(channel); }

protected:
    using NoteValues = Collections::TPointerCollection<Basics::CLong>;

    CHostCanDo m_hostCanDo;
    CVstTempo m_tempo;
    double m_defaultTempo = 120.0;  // beats per minute
    double m_sampleRate = 44100.0;  // Hz
    std::int32_t m_blockSize = 1024;
    bool m_changed = false;  // never set
    bool m_blockSizeChanged = false;
    bool m_sampleRateChanged = false;
    Midi::CVstMidiEventList m_midiEvents;
    Collections::TPointerCollection<NoteValues> m_notes;  // one per MIDI note number, all empty
    Threading::CCriticalSection *m_criticalSection;       // owns one reference

private:
    static Basics::TClassRecord<CVstEffect> s_class;
};

}  // namespace Tessitor::Vst
