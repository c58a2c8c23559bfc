#pragma once

#include "hostlayer/AEffEditor.h"
#include "hostlayer/VstInterface.h"

#include <cstdint>

/// The published base class of every effect. It owns the AEffect record, receives the host's calls
/// and turns them into virtual operations. An operation that is not overridden returns the
/// published default.
///
/// The host is trusted: indices, pointers and lengths are not checked. Parameters are set and read
/// on [any thread], even by two threads at once during a process call (Ardour 7.3). Calls for
/// programs and settings also come on any thread, but one at a time.
class AudioEffect {
public:
    /// Starts at 44100 Hz, blocks of 1024 frames, program 0 and processReplacing. The effect is
    /// usable at once: Audacity 3.2.4 and the scanner of Qtractor 0.9.31 call it before effOpen.
    AudioEffect(audioMasterCallback host, int programs, int parameters);
    virtual ~AudioEffect();
    AudioEffect(const AudioEffect &) = delete;
    AudioEffect &operator=(const AudioEffect &) = delete;

    /// The record for the host. Lives as long as the effect.
    AEffect *getAeffect() { return &cEffect; }

    /// @return the published result of `opcode`. An unknown opcode returns 0 and changes nothing.
    virtual std::intptr_t dispatcher(int opcode, int index, std::intptr_t value, void *ptr,
                                     float opt);

    virtual void open() {}
    virtual void close() {}    ///< the host's last call; the effect is then deleted
    virtual void suspend() {}  ///< mains off; may come twice in a row, or before resume()
    virtual void resume() {}   ///< mains on; may come twice in a row

    /// [audio thread] The deprecated accumulating entry.
    virtual void process(float **inputs, float **outputs, int sampleFrames);
    /// [audio thread] Overwrites the outputs, which may be the input buffers.
    virtual void processReplacing(float **inputs, float **outputs, int sampleFrames) = 0;
    /// [audio thread] The same in double precision; called only after canDoubleReplacing().
    virtual void processDoubleReplacing(double **inputs, double **outputs, int sampleFrames);

    /// @param value  0 to 1. MusE 4.1 calls both operations on the audio thread.
    virtual void setParameter(int /*index*/, float /*value*/) {}
    virtual float getParameter(int /*index*/) { return 0.0f; }
    /// For changes made in the editor: sets the parameter, then informs the host.
    virtual void setParameterAutomated(int index, float value);
    virtual bool canParameterBeAutomated(int /*index*/) { return true; }

    virtual void setProgram(int program) { curProgram = program; }
    virtual int getProgram() { return curProgram; }
    virtual void setProgramName(char * /*name*/) {}
    virtual void getProgramName(char *name) { *name = '\0'; }  ///< up to kVstMaxProgNameLen bytes

    virtual void getParameterLabel(int /*index*/, char *label) { *label = '\0'; }
    virtual void getParameterDisplay(int /*index*/, char *text) { *text = '\0'; }
    virtual void getParameterName(int /*index*/, char *text) { *text = '\0'; }

    /// @param data      receives a pointer to memory that the effect owns.
    /// @param isPreset  true for the current program alone, false for the whole bank.
    /// @return the number of bytes; 0 if there is no chunk.
    virtual int getChunk(void ** /*data*/, bool /*isPreset*/) { return 0; }
    /// @return 0 if the effect rejects the data.
    virtual int setChunk(void * /*data*/, int /*byteSize*/, bool /*isPreset*/) { return 0; }

    virtual void setSampleRate(float rate) { sampleRate = rate; }  ///< Hz
    virtual void setBlockSize(int frames) { blockSize = frames; }  ///< longest block
    float getSampleRate() const { return sampleRate; }
    int getBlockSize() const { return blockSize; }

    /// Sets effFlagsHasEditor and takes ownership: the effect's destructor deletes the editor.
    /// Ownership of the previous editor goes back to the caller. Null removes the editor.
    void setEditor(AEffEditor *newEditor);
    AEffEditor *getEditor() const { return editor; }

    void setNumInputs(int inputs) { cEffect.numInputs = inputs; }
    void setNumOutputs(int outputs) { cEffect.numOutputs = outputs; }
    void setUniqueID(std::int32_t id) { cEffect.uniqueID = id; }
    void setInitialDelay(int frames) { cEffect.initialDelay = frames; }  ///< then call ioChanged()
    void canProcessReplacing(bool state = true) { setFlag(effFlagsCanReplacing, state); }
    void canDoubleReplacing(bool state = true) { setFlag(effFlagsCanDoubleReplacing, state); }
    void programsAreChunks(bool state = true) { setFlag(effFlagsProgramChunks, state); }

    int getMasterVersion() { return static_cast<int>(askHost(audioMasterVersion)); }
    int getCurrentUniqueId() { return static_cast<int>(askHost(audioMasterCurrentId)); }
    void masterIdle() { askHost(audioMasterIdle); }

protected:
    /// @return the host's answer; 0 if there is no host.
    std::intptr_t askHost(AudioMasterOpcode opcode, int index = 0, std::intptr_t value = 0,
                          void *ptr = nullptr, float opt = 0.0f);
    void setFlag(VstAEffectFlags flag, bool state);

    audioMasterCallback audioMaster;
    AEffEditor *editor = nullptr;  // owned
    float sampleRate = 44100.0f;   // Hz
    int blockSize = 1024;          // frames
    int curProgram = 0;
    AEffect cEffect{};
};
