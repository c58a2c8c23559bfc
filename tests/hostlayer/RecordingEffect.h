#pragma once

#include "hostlayer/ProbeEffect.h"

#include <cstdio>
#include <string>

/// A call of a virtual operation: its name and numbers as text, and its pointers.
struct SReached {
    std::string text;
    const void *first = nullptr;
    const void *second = nullptr;

    bool operator==(const SReached &) const = default;
};

/// Records the last operation called. Every result is 7 or true.
class RecordingEffect : public ProbeEffect {
public:
    using ProbeEffect::ProbeEffect;

    SReached reached;

    void open() override { note("open"); }
    void close() override { note("close"); }
    void suspend() override { note("suspend"); }
    void resume() override { note("resume"); }
    void process(float **in, float **out, int frames) override { note("process", in, out, frames); }
    void processReplacing(float **in, float **out, int frames) override {
        note("processReplacing", in, out, frames);
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        note("processDoubleReplacing", in, out, frames);
    }
    void setParameter(int index, float value) override {
        note("setParameter", nullptr, nullptr, index, value);
    }
    float getParameter(int index) override {
        note("getParameter", nullptr, nullptr, index);
        return 0.25f;
    }
    bool canParameterBeAutomated(int index) override {
        return note("canParameterBeAutomated", nullptr, nullptr, index);
    }
    void setProgram(int program) override { note("setProgram", nullptr, nullptr, program); }
    int getProgram() override { return note("getProgram"); }
    void setProgramName(char *name) override { note("setProgramName", name); }
    void getProgramName(char *name) override { note("getProgramName", name); }
    void getParameterLabel(int index, char *text) override {
        note("getParameterLabel", text, nullptr, index);
    }
    void getParameterDisplay(int index, char *text) override {
        note("getParameterDisplay", text, nullptr, index);
    }
    void getParameterName(int index, char *text) override {
        note("getParameterName", text, nullptr, index);
    }
    int getChunk(void **data, bool isPreset) override {
        return note("getChunk", data, nullptr, isPreset);
    }
    int setChunk(void *data, int byteSize, bool isPreset) override {
        return note("setChunk", data, nullptr, byteSize, isPreset);
    }
    void setSampleRate(float rate) override { note("setSampleRate", nullptr, nullptr, rate); }
    void setBlockSize(int frames) override { note("setBlockSize", nullptr, nullptr, frames); }

    int processEvents(VstEvents *events) override { return note("processEvents", events); }
    bool string2parameter(int index, char *text) override {
        return note("string2parameter", text, nullptr, index);
    }
    bool getParameterProperties(int index, VstParameterProperties *properties) override {
        return note("getParameterProperties", properties, nullptr, index);
    }
    bool getProgramNameIndexed(int category, int index, char *text) override {
        return note("getProgramNameIndexed", text, nullptr, category, index);
    }
    bool beginSetProgram() override { return note("beginSetProgram"); }
    bool endSetProgram() override { return note("endSetProgram"); }
    int beginLoadBank(VstPatchChunkInfo *info) override { return note("beginLoadBank", info); }
    int beginLoadProgram(VstPatchChunkInfo *info) override {
        return note("beginLoadProgram", info);
    }
    bool getInputProperties(int index, VstPinProperties *pin) override {
        return note("getInputProperties", pin, nullptr, index);
    }
    bool getOutputProperties(int index, VstPinProperties *pin) override {
        return note("getOutputProperties", pin, nullptr, index);
    }
    bool setSpeakerArrangement(VstSpeakerArrangement *in, VstSpeakerArrangement *out) override {
        return note("setSpeakerArrangement", in, out);
    }
    bool getSpeakerArrangement(VstSpeakerArrangement **in, VstSpeakerArrangement **out) override {
        return note("getSpeakerArrangement", in, out);
    }
    bool getEffectName(char *text) override { return note("getEffectName", text); }
    bool getVendorString(char *text) override { return note("getVendorString", text); }
    bool getProductString(char *text) override { return note("getProductString", text); }
    int getVendorVersion() override { return note("getVendorVersion"); }
    int getVstVersion() override { return note("getVstVersion"); }
    VstPlugCategory getPlugCategory() override {
        note("getPlugCategory");
        return kPlugSurroundFx;
    }
    int canDo(char *text) override { return note("canDo", text); }
    int getTailSize() override { return note("getTailSize"); }
    std::intptr_t vendorSpecific(int index, std::intptr_t value, void *ptr, float opt) override {
        return note("vendorSpecific", ptr, nullptr, index, static_cast<int>(value), opt);
    }
    int getNextShellPlugin(char *name) override { return note("getNextShellPlugin", name); }
    bool setBypass(bool on) override { return note("setBypass", nullptr, nullptr, on); }
    bool setPanLaw(int type, float gain) override {
        return note("setPanLaw", nullptr, nullptr, type, gain);
    }
    bool setProcessPrecision(int precision) override {
        return note("setProcessPrecision", nullptr, nullptr, precision);
    }
    int setTotalSampleToProcess(int frames) override {
        return note("setTotalSampleToProcess", nullptr, nullptr, frames);
    }
    int startProcess() override { return note("startProcess"); }
    int stopProcess() override { return note("stopProcess"); }
    bool processVariableIo(VstVariableIo *io) override { return note("processVariableIo", io); }
    int getNumMidiInputChannels() override { return note("getNumMidiInputChannels"); }
    int getNumMidiOutputChannels() override { return note("getNumMidiOutputChannels"); }

private:
    template <typename... Arguments>
    int note(const char *name, const void *first = nullptr, const void *second = nullptr,
             Arguments... arguments) {
        reached = {name, first, second};
        (append(arguments), ...);
        return 7;
    }
    void append(int argument) { reached.text += " " + std::to_string(argument); }
    void append(float argument) {
        char digits[32];
        std::snprintf(digits, sizeof digits, " %g", static_cast<double>(argument));
        reached.text += digits;
    }
};
