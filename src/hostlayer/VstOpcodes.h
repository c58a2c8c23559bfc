#pragma once

#include <cstdint>

/// Calls from the host to the effect, through AEffect::dispatcher. `index`, `value`, `ptr` and
/// `opt` are the arguments, `->` is the result. Lengths of texts include the terminator. A host may
/// send any of these before effOpen, and none after effClose.
enum AEffectOpcode : std::int32_t {
    effOpen = 0,
    effClose = 1,           ///< the effect deletes itself
    effSetProgram = 2,      ///< value = program
    effGetProgram = 3,      ///< -> program
    effSetProgramName = 4,  ///< ptr = text, at most 24
    effGetProgramName = 5,  ///< ptr receives at most 24
    effGetParamLabel = 6,   ///< index; ptr receives at most 8
    effGetParamDisplay = 7,
    effGetParamName = 8,
    effGetVu = 9,           ///< deprecated
    effSetSampleRate = 10,  ///< opt = Hz
    effSetBlockSize = 11,   ///< value = longest block, frames
    effMainsChanged = 12,   ///< value 1 = resume, 0 = suspend; may repeat
    effEditGetRect = 13,    ///< ptr = ERect **, the record stays the effect's -> 1
    effEditOpen = 14,       ///< ptr = the parent: HWND, or X window id -> 1
    effEditClose = 15,
    effEditDraw = 16,   ///< deprecated
    effEditMouse = 17,  ///< deprecated
    effEditKey = 18,    ///< deprecated
    effEditIdle = 19,
    effEditTop = 20,    ///< deprecated
    effEditSleep = 21,  ///< deprecated
    effIdentify = 22,   ///< -> kEffectIdentity
    effGetChunk = 23,   ///< index 0 = bank, else program; ptr = void ** -> bytes
    effSetChunk = 24,   ///< index as above; ptr = data, value = bytes -> 1

    effProcessEvents = 25,            ///< ptr = VstEvents * -> 1
    effCanBeAutomated = 26,           ///< index (in Audacity 3.2.4 value) = parameter -> 1 or 0
    effString2Parameter = 27,         ///< index; ptr = text, or null to ask if texts are supported
    effGetNumProgramCategories = 28,  ///< deprecated
    effGetProgramNameIndexed = 29,  ///< index = program, value = category; ptr as effGetProgramName
    effCopyProgram = 30,            ///< deprecated
    effConnectInput = 31,           ///< deprecated
    effConnectOutput = 32,          ///< deprecated
    effGetInputProperties = 33,     ///< index = pin; ptr = VstPinProperties * -> 1 if filled
    effGetOutputProperties = 34,
    effGetPlugCategory = 35,       ///< -> VstPlugCategory
    effGetCurrentPosition = 36,    ///< deprecated
    effGetDestinationBuffer = 37,  ///< deprecated
    effOfflineNotify = 38,
    effOfflinePrepare = 39,
    effOfflineRun = 40,
    effProcessVarIo = 41,           ///< ptr = VstVariableIo *
    effSetSpeakerArrangement = 42,  ///< value, ptr = VstSpeakerArrangement * in, out -> 1 if taken
    effSetBlockSizeAndSampleRate = 43,  ///< deprecated; value, opt
    effSetBypass = 44,                  ///< value -> 1 if the effect bypasses itself
    effGetEffectName = 45,              ///< ptr receives at most 32 -> 1
    effGetErrorText = 46,               ///< deprecated
    effGetVendorString = 47,            ///< ptr receives at most 64 -> 1
    effGetProductString = 48,           ///< ptr receives at most 64 -> 1
    effGetVendorVersion = 49,
    effVendorSpecific = 50,
    effCanDo = 51,                   ///< ptr = text -> 1 yes, 0 unknown, -1 no
    effGetTailSize = 52,             ///< -> 0 default, 1 none, otherwise frames
    effIdle = 53,                    ///< deprecated
    effGetIcon = 54,                 ///< deprecated
    effSetViewPosition = 55,         ///< deprecated
    effGetParameterProperties = 56,  ///< index; ptr = VstParameterProperties * -> 1 if filled
    effKeysRequired = 57,            ///< deprecated; inverted: 1 means that no keys are required
    effGetVstVersion = 58,           ///< -> kVstVersion

    effEditKeyDown = 59,  ///< index = character, value = virtual key, opt = modifiers -> 1 if used
    effEditKeyUp = 60,
    effSetEditKnobMode = 61,  ///< value = VstKnobMode
    effGetMidiProgramName = 62,
    effGetCurrentMidiProgram = 63,
    effGetMidiProgramCategory = 64,
    effHasMidiProgramsChanged = 65,
    effGetMidiKeyName = 66,
    effBeginSetProgram = 67,
    effEndSetProgram = 68,

    /// value, ptr = VstSpeakerArrangement ** in, out -> 1 if filled
    effGetSpeakerArrangement = 69,
    effShellGetNextPlugin = 70,  ///< ptr receives at most 64 -> unique id, 0 at the end
    effStartProcess = 71,
    effStopProcess = 72,
    effSetTotalSampleToProcess = 73,  ///< value = frames -> value
    effSetPanLaw = 74,                ///< value = type, opt = gain
    effBeginLoadBank = 75,  ///< ptr = VstPatchChunkInfo * -> 1 can, -1 cannot, 0 not known
    effBeginLoadProgram = 76,
    effSetProcessPrecision = 77,  ///< value = VstProcessPrecision
    effGetNumMidiInputChannels = 78,
    effGetNumMidiOutputChannels = 79
};

/// Calls from the effect to the host, through audioMasterCallback. A host may answer 0 to any of
/// them and may leave any text unwritten.
enum AudioMasterOpcode : std::int32_t {
    audioMasterAutomate = 0,  ///< index, opt = value
    /// -> the host's version; the only call allowed before there is an effect
    audioMasterVersion = 1,
    audioMasterCurrentId = 2,  ///< -> in a shell, the unique id to create
    audioMasterIdle = 3,
    audioMasterPinConnected = 4,   ///< deprecated; index -> 0 if connected
    audioMasterWantMidi = 6,       ///< deprecated; value 1
    audioMasterGetTime = 7,        ///< value = wanted flags -> VstTimeInfo *, or null
    audioMasterProcessEvents = 8,  ///< ptr = VstEvents *
    audioMasterSetTime = 9,        ///< deprecated
    audioMasterTempoAt = 10,       ///< deprecated
    audioMasterGetNumAutomatableParameters = 11,  ///< deprecated
    audioMasterGetParameterQuantization = 12,     ///< deprecated
    audioMasterIOChanged = 13,                    ///< after a change of pins or latency
    audioMasterNeedIdle = 14,                     ///< deprecated
    audioMasterSizeWindow = 15,                   ///< index = width, value = height -> 1
    audioMasterGetSampleRate = 16,
    audioMasterGetBlockSize = 17,
    audioMasterGetInputLatency = 18,
    audioMasterGetOutputLatency = 19,
    audioMasterGetPreviousPlug = 20,          ///< deprecated
    audioMasterGetNextPlug = 21,              ///< deprecated
    audioMasterWillReplaceOrAccumulate = 22,  ///< deprecated
    audioMasterGetCurrentProcessLevel = 23,   ///< -> VstProcessLevel
    audioMasterGetAutomationState = 24,       ///< -> VstAutomationState
    audioMasterOfflineStart = 25,
    audioMasterOfflineRead = 26,
    audioMasterOfflineWrite = 27,
    audioMasterOfflineGetCurrentPass = 28,
    audioMasterOfflineGetCurrentMetaPass = 29,
    audioMasterSetOutputSampleRate = 30,          ///< deprecated
    audioMasterGetOutputSpeakerArrangement = 31,  ///< deprecated
    audioMasterGetVendorString = 32,              ///< ptr receives at most 64
    audioMasterGetProductString = 33,             ///< ptr receives at most 64
    audioMasterGetVendorVersion = 34,
    audioMasterVendorSpecific = 35,
    audioMasterSetIcon = 36,
    audioMasterCanDo = 37,        ///< ptr = text -> 1 yes, 0 unknown, -1 no
    audioMasterGetLanguage = 38,  ///< -> 1 for English
    audioMasterOpenWindow = 39,   ///< deprecated
    audioMasterCloseWindow = 40,  ///< deprecated
    audioMasterGetDirectory = 41,
    audioMasterUpdateDisplay = 42,
    audioMasterBeginEdit = 43,  ///< index
    audioMasterEndEdit = 44,    ///< index
    audioMasterOpenFileSelector = 45,
    audioMasterCloseFileSelector = 46,
    audioMasterEditFile = 47,                   ///< deprecated
    audioMasterGetChunkFile = 48,               ///< deprecated
    audioMasterGetInputSpeakerArrangement = 49  ///< deprecated
};
