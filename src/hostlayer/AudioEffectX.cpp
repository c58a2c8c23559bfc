#include "hostlayer/AudioEffectX.h"

#include "values/ToPointer.h"

namespace {

VstKeyCode keyCodeOf(int index, std::intptr_t value, float opt) {
    return {index, static_cast<unsigned char>(value),
            static_cast<unsigned char>(static_cast<int>(opt))};
}

}  // namespace

std::intptr_t AudioEffectX::dispatcher(int opcode, int index, std::intptr_t value, void *ptr,
                                       float opt) {
    char *text = static_cast<char *>(ptr);
    const int number = static_cast<int>(value);
    switch (opcode) {
    case effProcessEvents:
        return processEvents(static_cast<VstEvents *>(ptr));
    case effCanBeAutomated:
        return canParameterBeAutomated(index);
    case effString2Parameter:
        return string2parameter(index, text);
    case effGetProgramNameIndexed:
        return getProgramNameIndexed(number, index, text);
    case effGetNumProgramCategories:
    case effConnectInput:
    case effConnectOutput:
    case effKeysRequired:  // inverted for old hosts: 1 means that no keys are required
        return 1;
    case effGetInputProperties:
        return getInputProperties(index, static_cast<VstPinProperties *>(ptr));
    case effGetOutputProperties:
        return getOutputProperties(index, static_cast<VstPinProperties *>(ptr));
    case effGetPlugCategory:
        return getPlugCategory();
    case effProcessVarIo:
        return processVariableIo(static_cast<VstVariableIo *>(ptr));
    case effSetSpeakerArrangement:
        return setSpeakerArrangement(toPointer<VstSpeakerArrangement *>(value),
                                     static_cast<VstSpeakerArrangement *>(ptr));
    case effGetSpeakerArrangement:
        return getSpeakerArrangement(toPointer<VstSpeakerArrangement **>(value),
                                     static_cast<VstSpeakerArrangement **>(ptr));
    case effSetBlockSizeAndSampleRate:
        setBlockSize(number);
        setSampleRate(opt);
        return 1;
    case effSetBypass:
        return setBypass(value != 0);
    case effGetEffectName:
        return getEffectName(text);
    case effGetVendorString:
        return getVendorString(text);
    case effGetProductString:
        return getProductString(text);
    case effGetVendorVersion:
        return getVendorVersion();
    case effVendorSpecific:
        return vendorSpecific(index, value, ptr, opt);
    case effCanDo:
        return canDo(text);
    case effGetTailSize:
        return getTailSize();
    case effGetParameterProperties:
        return getParameterProperties(index, static_cast<VstParameterProperties *>(ptr));
    case effGetVstVersion:
        return getVstVersion();
    case effEditKeyDown: {
        VstKeyCode key = keyCodeOf(index, value, opt);
        return editor != nullptr && editor->onKeyDown(key);
    }
    case effEditKeyUp: {
        VstKeyCode key = keyCodeOf(index, value, opt);
        return editor != nullptr && editor->onKeyUp(key);
    }
    case effSetEditKnobMode:
        return editor != nullptr && editor->setKnobMode(number);
    case effGetCurrentMidiProgram:
        return -1;
    case effBeginSetProgram:
        return beginSetProgram();
    case effEndSetProgram:
        return endSetProgram();
    case effShellGetNextPlugin:
        return getNextShellPlugin(text);
    case effStartProcess:
        return startProcess();
    case effStopProcess:
        return stopProcess();
    case effSetTotalSampleToProcess:
        return setTotalSampleToProcess(number);
    case effSetPanLaw:
        return setPanLaw(number, opt);
    case effBeginLoadBank:
        return beginLoadBank(static_cast<VstPatchChunkInfo *>(ptr));
    case effBeginLoadProgram:
        return beginLoadProgram(static_cast<VstPatchChunkInfo *>(ptr));
    case effSetProcessPrecision:
        return setProcessPrecision(number);
    case effGetNumMidiInputChannels:
        return getNumMidiInputChannels();
    case effGetNumMidiOutputChannels:
        return getNumMidiOutputChannels();
    default:
        return AudioEffect::dispatcher(opcode, index, value, ptr, opt);
    }
}

void AudioEffectX::resume() {
    char receiveVstMidiEvent[] = "receiveVstMidiEvent";
    if ((cEffect.flags & effFlagsIsSynth) != 0 || canDo(receiveVstMidiEvent) == 1)
        wantEvents();
}

bool AudioEffectX::getSpeakerArrangement(VstSpeakerArrangement **in, VstSpeakerArrangement **out) {
    *in = nullptr;
    *out = nullptr;
    return false;
}

VstPlugCategory AudioEffectX::getPlugCategory() {
    return (cEffect.flags & effFlagsIsSynth) != 0 ? kPlugCategSynth : kPlugCategUnknown;
}

VstTimeInfo *AudioEffectX::getTimeInfo(int filter) {
    return toPointer<VstTimeInfo *>(askHost(audioMasterGetTime, 0, filter));
}

int AudioEffectX::canHostDo(const char *text) {
    // The published argument is not const, but no host writes to it.
    return static_cast<int>(askHost(audioMasterCanDo, 0, 0, const_cast<char *>(text)));
}

bool AudioEffectX::getHostProductString(char *text) {
    return askHost(audioMasterGetProductString, 0, 0, text) != 0;
}

bool AudioEffectX::getHostVendorString(char *text) {
    return askHost(audioMasterGetVendorString, 0, 0, text) != 0;
}

int AudioEffectX::getHostVendorVersion() {
    return static_cast<int>(askHost(audioMasterGetVendorVersion));
}

bool AudioEffectX::isInputConnected(int input) {
    // 0 means connected, so a host without this opcode reports every input as connected.
    return askHost(audioMasterPinConnected, input) == 0;
}

void AudioEffectX::wantEvents() {
    askHost(audioMasterWantMidi, 0, 1);
}

bool AudioEffectX::sendVstEventsToHost(VstEvents *events) {
    return askHost(audioMasterProcessEvents, 0, 0, events) != 0;
}

float AudioEffectX::updateSampleRate() {
    const std::intptr_t answer = askHost(audioMasterGetSampleRate);
    if (answer > 0)
        sampleRate = static_cast<float>(answer);
    return sampleRate;
}

int AudioEffectX::updateBlockSize() {
    const std::intptr_t answer = askHost(audioMasterGetBlockSize);
    if (answer > 0)
        blockSize = static_cast<int>(answer);
    return blockSize;
}

int AudioEffectX::getInputLatency() {
    return static_cast<int>(askHost(audioMasterGetInputLatency));
}

int AudioEffectX::getOutputLatency() {
    return static_cast<int>(askHost(audioMasterGetOutputLatency));
}

VstProcessLevel AudioEffectX::getCurrentProcessLevel() {
    return static_cast<VstProcessLevel>(askHost(audioMasterGetCurrentProcessLevel));
}

VstAutomationState AudioEffectX::getAutomationState() {
    return static_cast<VstAutomationState>(askHost(audioMasterGetAutomationState));
}

int AudioEffectX::getHostLanguage() {
    return static_cast<int>(askHost(audioMasterGetLanguage));
}

const char *AudioEffectX::getDirectory() {
    return toPointer<const char *>(askHost(audioMasterGetDirectory));
}

bool AudioEffectX::ioChanged() {
    return askHost(audioMasterIOChanged) != 0;
}

bool AudioEffectX::updateDisplay() {
    return askHost(audioMasterUpdateDisplay) != 0;
}

bool AudioEffectX::sizeWindow(int width, int height) {
    return askHost(audioMasterSizeWindow, width, height) != 0;
}

bool AudioEffectX::beginEdit(int index) {
    return askHost(audioMasterBeginEdit, index) != 0;
}

bool AudioEffectX::endEdit(int index) {
    return askHost(audioMasterEndEdit, index) != 0;
}
