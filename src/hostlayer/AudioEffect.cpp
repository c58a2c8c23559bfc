#include "hostlayer/AudioEffect.h"

#include "foundation/CaughtException.h"

namespace {

AudioEffect *effectOf(AEffect *record) {
    return static_cast<AudioEffect *>(record->object);
}

// The plain functions in the record. Each calls the virtual operation of the same name.

void processEntry(AEffect *record, float **inputs, float **outputs, std::int32_t sampleFrames) {
    effectOf(record)->process(inputs, outputs, sampleFrames);
}

void processReplacingEntry(AEffect *record, float **inputs, float **outputs,
                           std::int32_t sampleFrames) {
    effectOf(record)->processReplacing(inputs, outputs, sampleFrames);
}

void processDoubleReplacingEntry(AEffect *record, double **inputs, double **outputs,
                                 std::int32_t sampleFrames) {
    effectOf(record)->processDoubleReplacing(inputs, outputs, sampleFrames);
}

void setParameterEntry(AEffect *record, std::int32_t index, float value) {
    effectOf(record)->setParameter(index, value);
}

float getParameterEntry(AEffect *record, std::int32_t index) {
    return effectOf(record)->getParameter(index);
}

bool isForEditor(std::int32_t opcode) {
    switch (opcode) {
    case effEditGetRect:
    case effEditOpen:
    case effEditClose:
    case effEditIdle:
    case effEditKeyDown:
    case effEditKeyUp:
    case effSetEditKnobMode:
        return true;
    default:
        return false;
    }
}

void reportFailureOfEditor(std::int32_t opcode) {
    Tessitor::Exceptions::traceCaughtException("Caught an exception in a call of the host");
    if (opcode == effEditOpen)
        Tessitor::Exceptions::displayCaughtException("Exception occurred");
}

std::intptr_t dispatcherEntry(AEffect *record, std::int32_t opcode, std::int32_t index,
                              std::intptr_t value, void *ptr, float opt) {
    AudioEffect *effect = effectOf(record);
    std::intptr_t result = 0;
    try {
        result = effect->dispatcher(opcode, index, value, ptr, opt);
    } catch (...) {
        if (!isForEditor(opcode))
            throw;
        reportFailureOfEditor(opcode);
    }
    if (opcode != effClose)
        return result;
    delete effect;
    return 1;
}

}  // namespace

AudioEffect::AudioEffect(audioMasterCallback host, int programs, int parameters)
    : audioMaster(host) {
    cEffect.magic = kEffectMagic;
    cEffect.dispatcher = dispatcherEntry;
    cEffect.process = processEntry;
    cEffect.setParameter = setParameterEntry;
    cEffect.getParameter = getParameterEntry;
    cEffect.processReplacing = processReplacingEntry;
    cEffect.processDoubleReplacing = processDoubleReplacingEntry;
    cEffect.numPrograms = programs;
    cEffect.numParams = parameters;
    cEffect.flags = effFlagsCanReplacing;
    cEffect.ioRatio = 1.0f;
    cEffect.object = this;
    cEffect.version = 1;
}

AudioEffect::~AudioEffect() {
    delete editor;
}

std::intptr_t AudioEffect::dispatcher(int opcode, int index, std::intptr_t value, void *ptr,
                                      float opt) {
    char *text = static_cast<char *>(ptr);
    switch (opcode) {
    case effOpen:
        open();
        return 0;
    case effClose:
        close();
        return 1;
    case effSetProgram:
        // Kept: a negative number gets through, since hosts are trusted with indices.
        if (value < cEffect.numPrograms)
            setProgram(static_cast<int>(value));
        return 0;
    case effGetProgram:
        return getProgram();
    case effSetProgramName:
        setProgramName(text);
        return 0;
    case effGetProgramName:
        getProgramName(text);
        return 0;
    case effGetParamLabel:
        getParameterLabel(index, text);
        return 0;
    case effGetParamDisplay:
        getParameterDisplay(index, text);
        return 0;
    case effGetParamName:
        getParameterName(index, text);
        return 0;
    case effSetSampleRate:
        setSampleRate(opt);
        return 0;
    case effSetBlockSize:
        setBlockSize(static_cast<int>(value));
        return 0;
    case effMainsChanged:
        value != 0 ? resume() : suspend();
        return 0;
    case effEditGetRect:
        return editor != nullptr && editor->getRect(static_cast<ERect **>(ptr));
    case effEditOpen:
        return editor != nullptr && editor->open(ptr);
    case effEditClose:
        if (editor != nullptr)
            editor->close();
        return 0;
    case effEditIdle:
        if (editor != nullptr)
            editor->idle();
        return 0;
    case effIdentify:
        return kEffectIdentity;
    case effGetChunk:
        return getChunk(static_cast<void **>(ptr), index != 0);
    case effSetChunk:
        return setChunk(ptr, static_cast<int>(value), index != 0);
    default:
        return 0;
    }
}

// Kept empty: the record's accumulating entry ends here and adds nothing to the outputs.
void AudioEffect::process(float ** /*inputs*/, float ** /*outputs*/, int /*sampleFrames*/) {}

void AudioEffect::processDoubleReplacing(double ** /*inputs*/, double ** /*outputs*/,
                                         int /*sampleFrames*/) {}

void AudioEffect::setParameterAutomated(int index, float value) {
    setParameter(index, value);
    askHost(audioMasterAutomate, index, 0, nullptr, value);
}

void AudioEffect::setEditor(AEffEditor *newEditor) {
    editor = newEditor;
    setFlag(effFlagsHasEditor, newEditor != nullptr);
}

std::intptr_t AudioEffect::askHost(AudioMasterOpcode opcode, int index, std::intptr_t value,
                                   void *ptr, float opt) {
    return audioMaster != nullptr ? audioMaster(&cEffect, opcode, index, value, ptr, opt) : 0;
}

void AudioEffect::setFlag(VstAEffectFlags flag, bool state) {
    cEffect.flags = state ? cEffect.flags | flag : cEffect.flags & ~flag;
}
