#pragma once

#include "foundation/CCriticalSection.h"
#include "foundation/CLong.h"
#include "foundation/TPointerCollection.h"
#include "hostlayer/AudioEffectX.h"
#include "hostlayer/CHostCanDo.h"
#include "hostlayer/CVstMidiEventList.h"
#include "hostlayer/CVstTempo.h"

namespace Tessitor::Vst {

/// An effect with the library's host services: what the host can do, its transport, the MIDI of the
/// coming block, and the lock. It makes no sound of its own.
///
/// It takes no lock itself. The host sets rate and block size on any thread, one at a time; the
/// audio thread alone uses the tempo and, from processEvents to the end of the block, the MIDI
/// list.
class CVstEffect : public AudioEffectX, public Basics::CCountedObject {
public:
    /// Asks the host what it can do and who it is, this once; a later change is not noticed.
    /// @param host  answers from now on, or null.
    CVstEffect(audioMasterCallback host, int parameters, int programs);
    ~CVstEffect() override;
    Basics::CClass &getClass() const override { return s_class; }

    void setSampleRate(float rate) override;  ///< recorded, and nothing further
    void setBlockSize(int frames) override;   ///< recorded, and nothing further

    /// [audio thread] Each ends the block: it clears the MIDI list and touches no buffer.
    void processReplacing(float **inputs, float **outputs, int sampleFrames) override;
    void processDoubleReplacing(double **inputs, double **outputs, int sampleFrames) override;
    using AudioEffectX::process;

    /// [audio thread] Reads the events for the coming block.
    int processEvents(VstEvents *events) override;

    /// From the application's information, at most 24 characters. @return false for a null text.
    bool getEffectName(char *name) override;
    bool getVendorString(char *text) override;
    bool getProductString(char *text) override;

    /// What stands in for the texts of an effect that has none: "Default" and "No param".
    void setProgramName(char *name) override;
    void getProgramName(char *name) override;
    bool getProgramNameIndexed(int category, int index, char *text) override;
    void getParameterLabel(int index, char *label) override;
    void getParameterDisplay(int index, char *text) override;
    void getParameterName(int index, char *text) override;

    int getNumMidiInputChannels() override { return 1; }

    /// Kept: for its type of count this is not the operation that the record's process entry
    /// reaches, but one more behind all the published ones, and no host calls it.
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
    Collections::TPointerCollection<NoteValues> m_notes;  // one per MIDI note number, left empty
    Threading::CCriticalSection *m_criticalSection;       // one reference held

private:
    static Basics::TClassRecord<CVstEffect> s_class;
};

}  // namespace Tessitor::Vst
