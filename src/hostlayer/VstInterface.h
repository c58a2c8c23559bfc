#pragma once

#include "hostlayer/VstOpcodes.h"

#include <cstdint>

/// The published plug-in interface, version 2.4, in its 64-bit memory layout. Names are the
/// published ones. VstInterface.cpp checks every size and offset.

struct AEffect;

/// The host's entry. The effect may be null for audioMasterVersion only.
using audioMasterCallback = std::intptr_t (*)(AEffect *effect, std::int32_t opcode,
                                              std::int32_t index, std::intptr_t value, void *ptr,
                                              float opt);
using AEffectDispatcherProc = std::intptr_t (*)(AEffect *effect, std::int32_t opcode,
                                                std::int32_t index, std::intptr_t value, void *ptr,
                                                float opt);
using AEffectProcessProc = void (*)(AEffect *effect, float **inputs, float **outputs,
                                    std::int32_t sampleFrames);
using AEffectProcessDoubleProc = void (*)(AEffect *effect, double **inputs, double **outputs,
                                          std::int32_t sampleFrames);
using AEffectSetParameterProc = void (*)(AEffect *effect, std::int32_t index, float parameter);
using AEffectGetParameterProc = float (*)(AEffect *effect, std::int32_t index);

constexpr std::int32_t kEffectMagic = 0x56737450;     // 'VstP'
constexpr std::int32_t kEffectIdentity = 0x4E764566;  // 'NvEf', the answer to effIdentify
constexpr std::int32_t kVstVersion = 2400;

/// Published sizes of text buffers, with the terminator.
enum VstStringLength : std::int32_t {
    kVstMaxParamStrLen = 8,
    kVstMaxShortLabelLen = 8,
    kVstMaxProgNameLen = 24,
    kVstMaxCategLabelLen = 24,
    kVstMaxEffectNameLen = 32,
    kVstMaxLabelLen = 64,
    kVstMaxNameLen = 64,
    kVstMaxVendorStrLen = 64,
    kVstMaxProductStrLen = 64
};

/// AEffect::flags
enum VstAEffectFlags : std::int32_t {
    effFlagsHasEditor = 1 << 0,
    effFlagsHasClip = 1 << 1,  ///< deprecated
    effFlagsHasVu = 1 << 2,    ///< deprecated
    effFlagsCanMono = 1 << 3,  ///< deprecated
    effFlagsCanReplacing = 1 << 4,
    effFlagsProgramChunks = 1 << 5,
    effFlagsIsSynth = 1 << 8,
    effFlagsNoSoundInStop = 1 << 9,
    effFlagsExtIsAsync = 1 << 10,    ///< deprecated
    effFlagsExtHasBuffer = 1 << 11,  ///< deprecated
    effFlagsCanDoubleReplacing = 1 << 12
};

/// The record that the entry function returns. It is part of the effect; effClose destroys both.
struct AEffect {
    std::int32_t magic;  ///< kEffectMagic
    AEffectDispatcherProc dispatcher;
    AEffectProcessProc process;  ///< deprecated: adds to the outputs
    AEffectSetParameterProc setParameter;
    AEffectGetParameterProc getParameter;
    std::int32_t numPrograms;
    std::int32_t numParams;
    std::int32_t numInputs;
    std::int32_t numOutputs;
    std::int32_t flags;          ///< VstAEffectFlags
    std::intptr_t resvd1;        ///< the host's own
    std::intptr_t resvd2;        ///< the host's own
    std::int32_t initialDelay;   ///< latency, frames
    std::int32_t realQualities;  ///< deprecated
    std::int32_t offQualities;   ///< deprecated
    float ioRatio;               ///< deprecated
    void *object;                ///< the effect's own
    void *user;
    std::int32_t uniqueID;
    std::int32_t version;
    AEffectProcessProc processReplacing;
    AEffectProcessDoubleProc processDoubleReplacing;
    char future[56];
};

/// The editor's rectangle, in pixels.
struct ERect {
    std::int16_t top;
    std::int16_t left;
    std::int16_t bottom;
    std::int16_t right;
};

/// VstTimeInfo::flags, and the mask of audioMasterGetTime.
enum VstTimeInfoFlags : std::int32_t {
    kVstTransportChanged = 1 << 0,
    kVstTransportPlaying = 1 << 1,
    kVstTransportCycleActive = 1 << 2,
    kVstTransportRecording = 1 << 3,
    kVstAutomationWriting = 1 << 6,
    kVstAutomationReading = 1 << 7,
    kVstNanosValid = 1 << 8,
    kVstPpqPosValid = 1 << 9,
    kVstTempoValid = 1 << 10,
    kVstBarsValid = 1 << 11,
    kVstCyclePosValid = 1 << 12,
    kVstTimeSigValid = 1 << 13,
    kVstSmpteValid = 1 << 14,
    kVstClockValid = 1 << 15
};

/// The host's transport. A field is valid only if its flag is set; samplePos and sampleRate always
/// are.
struct VstTimeInfo {
    double samplePos;   ///< frames
    double sampleRate;  ///< Hz
    double nanoSeconds;
    double ppqPos;         ///< quarter notes
    double tempo;          ///< beats per minute
    double barStartPos;    ///< quarter notes
    double cycleStartPos;  ///< quarter notes
    double cycleEndPos;    ///< quarter notes
    std::int32_t timeSigNumerator;
    std::int32_t timeSigDenominator;
    std::int32_t smpteOffset;
    std::int32_t smpteFrameRate;
    std::int32_t samplesToNextClock;
    std::int32_t flags;  ///< VstTimeInfoFlags
};

enum VstEventType : std::int32_t { kVstMidiType = 1, kVstSysExType = 6 };

/// VstMidiEvent::flags
enum VstMidiEventFlags : std::int32_t { kVstMidiEventIsRealtime = 1 << 0 };

/// The header common to all events.
struct VstEvent {
    std::int32_t type;         ///< VstEventType
    std::int32_t byteSize;     ///< unreliable: may be less than the size of the structure
    std::int32_t deltaFrames;  ///< from the start of the coming block
    std::int32_t flags;
    char data[16];
};

struct VstMidiEvent {
    std::int32_t type;  ///< kVstMidiType
    std::int32_t byteSize;
    std::int32_t deltaFrames;
    std::int32_t flags;       ///< VstMidiEventFlags
    std::int32_t noteLength;  ///< frames, 0 if not known
    std::int32_t noteOffset;  ///< frames
    char midiData[4];         ///< one to three bytes of MIDI
    std::int8_t detune;       ///< cents
    char noteOffVelocity;
    char reserved1;
    char reserved2;
};

struct VstMidiSysexEvent {
    std::int32_t type;  ///< kVstSysExType
    std::int32_t byteSize;
    std::int32_t deltaFrames;
    std::int32_t flags;
    std::int32_t dumpBytes;  ///< length of sysexDump
    std::intptr_t resvd1;
    char *sysexDump;
    std::intptr_t resvd2;
};

/// The events of the coming block. The array contains numEvents pointers, which may be more than
/// declared here.
struct VstEvents {
    std::int32_t numEvents;
    std::intptr_t reserved;
    VstEvent *events[2];
};

/// VstPinProperties::flags
enum VstPinPropertiesFlags : std::int32_t {
    kVstPinIsActive = 1 << 0,
    kVstPinIsStereo = 1 << 1,  ///< one of a stereo pair
    kVstPinUseSpeaker = 1 << 2
};

/// One input or output. Giada's record ends before `future`, so an effect must not write there.
struct VstPinProperties {
    char label[kVstMaxLabelLen];
    std::int32_t flags;            ///< VstPinPropertiesFlags
    std::int32_t arrangementType;  ///< VstSpeakerArrangementType, with kVstPinUseSpeaker
    char shortLabel[kVstMaxShortLabelLen];
    char future[48];
};

/// VstParameterProperties::flags
enum VstParameterFlags : std::int32_t {
    kVstParameterIsSwitch = 1 << 0,
    kVstParameterUsesIntegerMinMax = 1 << 1,
    kVstParameterUsesFloatStep = 1 << 2,
    kVstParameterUsesIntStep = 1 << 3,
    kVstParameterSupportsDisplayIndex = 1 << 4,
    kVstParameterSupportsDisplayCategory = 1 << 5,
    kVstParameterCanRamp = 1 << 6
};

struct VstParameterProperties {
    float stepFloat;
    float smallStepFloat;
    float largeStepFloat;
    char label[kVstMaxLabelLen];
    std::int32_t flags;  ///< VstParameterFlags
    std::int32_t minInteger;
    std::int32_t maxInteger;
    std::int32_t stepInteger;
    std::int32_t largeStepInteger;
    char shortLabel[kVstMaxShortLabelLen];
    std::int16_t displayIndex;
    std::int16_t category;
    std::int16_t numParametersInCategory;
    std::int16_t reserved;
    char categoryLabel[kVstMaxCategLabelLen];
    char future[16];
};

/// Announces what effSetChunk is about to load.
struct VstPatchChunkInfo {
    std::int32_t version;  ///< 1
    std::int32_t pluginUniqueID;
    std::int32_t pluginVersion;
    std::int32_t numElements;  ///< programs of a bank, parameters of a program
    char future[48];
};

enum VstSpeakerArrangementType : std::int32_t {
    kSpeakerArrUserDefined = -2,
    kSpeakerArrEmpty = -1,
    kSpeakerArrMono = 0,
    kSpeakerArrStereo = 1
};

struct VstSpeakerProperties {
    float azimuth;
    float elevation;
    float radius;
    float reserved;
    char name[kVstMaxNameLen];
    std::int32_t type;
    char future[28];
};

struct VstSpeakerArrangement {
    std::int32_t type;  ///< VstSpeakerArrangementType
    std::int32_t numChannels;
    VstSpeakerProperties speakers[8];  ///< more follow if numChannels is above 8
};

struct VstVariableIo;  ///< only passed through

/// A key, from the arguments of effEditKeyDown and effEditKeyUp.
struct VstKeyCode {
    std::int32_t character;
    unsigned char virt;
    unsigned char modifier;
};

enum VstPlugCategory : std::int32_t {
    kPlugCategUnknown = 0,
    kPlugCategEffect,
    kPlugCategSynth,
    kPlugCategAnalysis,
    kPlugCategMastering,
    kPlugCategSpacializer,
    kPlugCategRoomFx,
    kPlugSurroundFx,
    kPlugCategRestoration,
    kPlugCategOfflineProcess,
    kPlugCategShell,
    kPlugCategGenerator
};

enum VstProcessPrecision : std::int32_t { kVstProcessPrecision32 = 0, kVstProcessPrecision64 = 1 };

enum VstKnobMode : std::int32_t { kCircularMode = 0, kRelativeMode = 1, kLinearMode = 2 };

enum VstProcessLevel : std::int32_t {
    kVstProcessLevelUnknown = 0,
    kVstProcessLevelUser,
    kVstProcessLevelRealtime,
    kVstProcessLevelPrefetch,
    kVstProcessLevelOffline
};

enum VstAutomationState : std::int32_t {
    kVstAutomationUnsupported = 0,
    kVstAutomationOff,
    kVstAutomationRead,
    kVstAutomationWrite,
    kVstAutomationReadWrite
};
