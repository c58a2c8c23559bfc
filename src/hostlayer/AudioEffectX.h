#pragma once

#include "hostlayer/AudioEffect.h"

#include <cstdint>

/// The published second base class: the operations for the later opcodes, and the questions that an
/// effect may ask its host. Deprecated opcodes, and those whose records are not declared here,
/// return their published default.
class AudioEffectX : public AudioEffect {
public:
    using AudioEffect::AudioEffect;

    std::intptr_t dispatcher(int opcode, int index, std::intptr_t value, void *ptr,
                             float opt) override;

    /// Asks the host for MIDI if the effect is a synth or answers 1 to "receiveVstMidiEvent".
    void resume() override;

    /// Called before the process call that the events belong to. @return 1 if they were taken.
    virtual int processEvents(VstEvents * /*events*/) { return 0; }

    /// @param text  null to ask whether the effect can convert texts at all.
    virtual bool string2parameter(int /*index*/, char * /*text*/) { return false; }
    virtual bool getParameterProperties(int /*index*/, VstParameterProperties *) { return false; }
    /// @param category  0 from Ardour 7.3 and Audacity 3.2.4; other hosts may send -1.
    /// @return true if there is such a program.
    virtual bool getProgramNameIndexed(int /*category*/, int /*index*/, char * /*text*/) {
        return false;
    }
    /// Called around setProgram, or around a run of setParameter calls.
    virtual bool beginSetProgram() { return false; }
    virtual bool endSetProgram() { return false; }
    /// Called before setChunk. @return 1 if the effect can load it, -1 if it cannot, 0 if unknown.
    virtual int beginLoadBank(VstPatchChunkInfo *) { return 0; }
    virtual int beginLoadProgram(VstPatchChunkInfo *) { return 0; }

    /// Fill the record with fillPinProperties(): in Giada it lacks the last field.
    /// @return true if the record was filled.
    virtual bool getInputProperties(int /*index*/, VstPinProperties *) { return false; }
    virtual bool getOutputProperties(int /*index*/, VstPinProperties *) { return false; }
    virtual bool setSpeakerArrangement(VstSpeakerArrangement * /*in*/,
                                       VstSpeakerArrangement * /*out*/) {
        return false;
    }
    virtual bool getSpeakerArrangement(VstSpeakerArrangement **in, VstSpeakerArrangement **out);

    /// The buffers have kVstMaxEffectNameLen, kVstMaxVendorStrLen and kVstMaxProductStrLen bytes.
    virtual bool getEffectName(char * /*name*/) { return false; }
    virtual bool getVendorString(char * /*text*/) { return false; }
    virtual bool getProductString(char * /*text*/) { return false; }
    virtual int getVendorVersion() { return 0; }
    virtual int getVstVersion() { return kVstVersion; }
    /// @return kPlugCategSynth after isSynth(), otherwise kPlugCategUnknown.
    virtual VstPlugCategory getPlugCategory();
    virtual int canDo(char * /*text*/) { return 0; }  ///< 1 yes, 0 unknown, -1 no
    virtual int getTailSize() { return 0; }           ///< frames; 0 default, 1 none
    virtual std::intptr_t vendorSpecific(int /*index*/, std::intptr_t /*value*/, void * /*ptr*/,
                                         float /*opt*/) {
        return 0;
    }
    /// @param name  receives the name of the next effect in a shell.
    /// @return its unique id; 0 after the last.
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

    // Questions to the host. If there is no host, its answer counts as 0.

    /// [audio thread] @param filter  the VstTimeInfoFlags wanted; the host may set others.
    /// @return valid during the process call; null if the host has no time information.
    VstTimeInfo *getTimeInfo(int filter);
    /// @return the host's answer unchanged: 1 yes, 0 unknown, -1 no.
    int canHostDo(const char *text);
    /// @param text  receives at most kVstMaxProductStrLen bytes. Fill it with zeros first: the
    ///              plug-in scanners of Ardour 7.3 and Qtractor 0.9.31 write nothing.
    bool getHostProductString(char *text);
    bool getHostVendorString(char *text);
    int getHostVendorVersion();
    /// @return true if the input is connected, or if the host does not know.
    bool isInputConnected(int input);
    void wantEvents();
    bool sendVstEventsToHost(VstEvents *events);

    float updateSampleRate();  ///< adopts the host's rate if it reports one
    int updateBlockSize();     ///< adopts the host's block size if it reports one
    int getInputLatency();     ///< frames
    int getOutputLatency();    ///< frames
    VstProcessLevel getCurrentProcessLevel();
    VstAutomationState getAutomationState();
    int getHostLanguage();       ///< 1 is English
    const char *getDirectory();  ///< owned by the host

    bool ioChanged();  ///< call after a change of pins or latency
    bool updateDisplay();
    bool sizeWindow(int width, int height);  ///< pixels
    bool beginEdit(int index);  ///< call before the setParameterAutomated() calls of one gesture
    bool endEdit(int index);    ///< call after them
};
