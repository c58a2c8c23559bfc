#pragma once

#include "hostlayer/AudioEffect.h"

#include <cstdint>

/// The published second base class: the operations behind the later opcodes, and the questions that
/// an effect may ask its host. Opcodes that are deprecated or that need records which are not
/// declared here give their published default.
class AudioEffectX : public AudioEffect {
public:
    using AudioEffect::AudioEffect;

    std::intptr_t dispatcher(int opcode, int index, std::intptr_t value, void *ptr,
                             float opt) override;

    /// Asks for MIDI if the effect is a synth or says yes to "receiveVstMidiEvent".
    void resume() override;

    /// Comes ahead of the process call that the events belong to. @return 1 if they were taken.
    virtual int processEvents(VstEvents * /*events*/) { return 0; }

    /// @param text  null asks whether the effect can read texts at all.
    virtual bool string2parameter(int /*index*/, char * /*text*/) { return false; }
    virtual bool getParameterProperties(int /*index*/, VstParameterProperties *) { return false; }
    /// @param category  -1 or 0 from most hosts. @return whether there is such a program.
    virtual bool getProgramNameIndexed(int /*category*/, int /*index*/, char * /*text*/) {
        return false;
    }
    /// Around setProgram, or around many setParameter.
    virtual bool beginSetProgram() { return false; }
    virtual bool endSetProgram() { return false; }
    /// Before setChunk. @return 1 can load, -1 cannot, 0 not known.
    virtual int beginLoadBank(VstPatchChunkInfo *) { return 0; }
    virtual int beginLoadProgram(VstPatchChunkInfo *) { return 0; }

    /// Fill with fillPinProperties, since some hosts' record is short.
    /// @return whether it was filled.
    virtual bool getInputProperties(int /*index*/, VstPinProperties *) { return false; }
    virtual bool getOutputProperties(int /*index*/, VstPinProperties *) { return false; }
    virtual bool setSpeakerArrangement(VstSpeakerArrangement * /*in*/,
                                       VstSpeakerArrangement * /*out*/) {
        return false;
    }
    virtual bool getSpeakerArrangement(VstSpeakerArrangement **in, VstSpeakerArrangement **out);

    virtual bool getEffectName(char * /*name*/) { return false; }     ///< kVstMaxEffectNameLen
    virtual bool getVendorString(char * /*text*/) { return false; }   ///< kVstMaxVendorStrLen
    virtual bool getProductString(char * /*text*/) { return false; }  ///< kVstMaxProductStrLen
    virtual int getVendorVersion() { return 0; }
    virtual int getVstVersion() { return kVstVersion; }
    /// kPlugCategSynth after isSynth, else kPlugCategUnknown.
    virtual VstPlugCategory getPlugCategory();
    virtual int canDo(char * /*text*/) { return 0; }  ///< 1 yes, 0 unknown, -1 no
    virtual int getTailSize() { return 0; }           ///< frames; 0 default, 1 none
    virtual std::intptr_t vendorSpecific(int /*index*/, std::intptr_t /*value*/, void * /*ptr*/,
                                         float /*opt*/) {
        return 0;
    }
    /// @return the unique id of the next effect in a shell, its name in `name`; 0 at the end.
    virtual int getNextShellPlugin(char * /*name*/) { return 0; }

    virtual bool setBypass(bool /*on*/) { return false; }
    virtual bool setPanLaw(int /*type*/, float /*gain*/) { return false; }
    virtual bool setProcessPrecision(int /*precision*/) { return false; }
    virtual int setTotalSampleToProcess(int frames) { return frames; }
    virtual int startProcess() { return 0; }
    virtual int stopProcess() { return 0; }
    virtual bool processVariableIo(VstVariableIo *) { return false; }

    virtual int getNumMidiInputChannels() { return 0; }
    virtual int getNumMidiOutputChannels() { return 0; }

    void isSynth(bool state = true) { setFlag(effFlagsIsSynth, state); }

    // Questions to the host. Without a host they answer 0, false or null.

    /// [audio thread] @param filter  VstTimeInfoFlags that are wanted; the host may give others.
    /// @return null if the host keeps no time. Valid during the process call.
    VstTimeInfo *getTimeInfo(int filter);
    /// @return as the host gives it: 1 yes, 0 unknown, -1 no.
    int canHostDo(const char *text);
    /// @param text  receives at most kVstMaxProductStrLen. Some hosts leave it, so it is zeroed.
    bool getHostProductString(char *text);
    bool getHostVendorString(char *text);
    int getHostVendorVersion();
    /// @return true as well if the host does not know.
    bool isInputConnected(int input);
    void wantEvents();
    bool sendVstEventsToHost(VstEvents *events);

    float updateSampleRate();  ///< takes over the host's rate, unless it gives none
    int updateBlockSize();     ///< takes over the host's block size, unless it gives none
    int getInputLatency();     ///< frames
    int getOutputLatency();    ///< frames
    VstProcessLevel getCurrentProcessLevel();
    VstAutomationState getAutomationState();
    int getHostLanguage();       ///< 1 is English
    const char *getDirectory();  ///< the host's memory

    bool ioChanged();  ///< after a change of pins or latency
    bool updateDisplay();
    bool sizeWindow(int width, int height);  ///< pixels
    bool beginEdit(int index);               ///< around the setParameterAutomated of one gesture
    bool endEdit(int index);
};
