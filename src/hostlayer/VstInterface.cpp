#include "hostlayer/VstInterface.h"

#include <cstddef>

// Hosts were compiled against these numbers, so nothing here may move.

static_assert(sizeof(void *) == 8, "the published layout of 64-bit systems");

static_assert(sizeof(AEffect) == 192);
static_assert(offsetof(AEffect, magic) == 0);
static_assert(offsetof(AEffect, dispatcher) == 8);
static_assert(offsetof(AEffect, process) == 16);
static_assert(offsetof(AEffect, setParameter) == 24);
static_assert(offsetof(AEffect, getParameter) == 32);
static_assert(offsetof(AEffect, numPrograms) == 40);
static_assert(offsetof(AEffect, numParams) == 44);
static_assert(offsetof(AEffect, numInputs) == 48);
static_assert(offsetof(AEffect, numOutputs) == 52);
static_assert(offsetof(AEffect, flags) == 56);
static_assert(offsetof(AEffect, resvd1) == 64);
static_assert(offsetof(AEffect, resvd2) == 72);
static_assert(offsetof(AEffect, initialDelay) == 80);
static_assert(offsetof(AEffect, realQualities) == 84);
static_assert(offsetof(AEffect, offQualities) == 88);
static_assert(offsetof(AEffect, ioRatio) == 92);
static_assert(offsetof(AEffect, object) == 96);
static_assert(offsetof(AEffect, user) == 104);
static_assert(offsetof(AEffect, uniqueID) == 112);
static_assert(offsetof(AEffect, version) == 116);
static_assert(offsetof(AEffect, processReplacing) == 120);
static_assert(offsetof(AEffect, processDoubleReplacing) == 128);
static_assert(offsetof(AEffect, future) == 136);

static_assert(sizeof(ERect) == 8);
static_assert(offsetof(ERect, top) == 0);
static_assert(offsetof(ERect, left) == 2);
static_assert(offsetof(ERect, bottom) == 4);
static_assert(offsetof(ERect, right) == 6);

static_assert(sizeof(VstTimeInfo) == 88);
static_assert(offsetof(VstTimeInfo, samplePos) == 0);
static_assert(offsetof(VstTimeInfo, sampleRate) == 8);
static_assert(offsetof(VstTimeInfo, nanoSeconds) == 16);
static_assert(offsetof(VstTimeInfo, ppqPos) == 24);
static_assert(offsetof(VstTimeInfo, tempo) == 32);
static_assert(offsetof(VstTimeInfo, barStartPos) == 40);
static_assert(offsetof(VstTimeInfo, cycleStartPos) == 48);
static_assert(offsetof(VstTimeInfo, cycleEndPos) == 56);
static_assert(offsetof(VstTimeInfo, timeSigNumerator) == 64);
static_assert(offsetof(VstTimeInfo, timeSigDenominator) == 68);
static_assert(offsetof(VstTimeInfo, smpteOffset) == 72);
static_assert(offsetof(VstTimeInfo, smpteFrameRate) == 76);
static_assert(offsetof(VstTimeInfo, samplesToNextClock) == 80);
static_assert(offsetof(VstTimeInfo, flags) == 84);

static_assert(sizeof(VstEvent) == 32);
static_assert(offsetof(VstEvent, type) == 0);
static_assert(offsetof(VstEvent, byteSize) == 4);
static_assert(offsetof(VstEvent, deltaFrames) == 8);
static_assert(offsetof(VstEvent, flags) == 12);
static_assert(offsetof(VstEvent, data) == 16);

static_assert(sizeof(VstMidiEvent) == 32);
static_assert(offsetof(VstMidiEvent, type) == 0);
static_assert(offsetof(VstMidiEvent, byteSize) == 4);
static_assert(offsetof(VstMidiEvent, deltaFrames) == 8);
static_assert(offsetof(VstMidiEvent, flags) == 12);
static_assert(offsetof(VstMidiEvent, noteLength) == 16);
static_assert(offsetof(VstMidiEvent, noteOffset) == 20);
static_assert(offsetof(VstMidiEvent, midiData) == 24);
static_assert(offsetof(VstMidiEvent, detune) == 28);
static_assert(offsetof(VstMidiEvent, noteOffVelocity) == 29);
static_assert(offsetof(VstMidiEvent, reserved1) == 30);
static_assert(offsetof(VstMidiEvent, reserved2) == 31);

static_assert(sizeof(VstMidiSysexEvent) == 48);
static_assert(offsetof(VstMidiSysexEvent, type) == 0);
static_assert(offsetof(VstMidiSysexEvent, byteSize) == 4);
static_assert(offsetof(VstMidiSysexEvent, deltaFrames) == 8);
static_assert(offsetof(VstMidiSysexEvent, flags) == 12);
static_assert(offsetof(VstMidiSysexEvent, dumpBytes) == 16);
static_assert(offsetof(VstMidiSysexEvent, resvd1) == 24);
static_assert(offsetof(VstMidiSysexEvent, sysexDump) == 32);
static_assert(offsetof(VstMidiSysexEvent, resvd2) == 40);

static_assert(sizeof(VstEvents) == 32);
static_assert(offsetof(VstEvents, numEvents) == 0);
static_assert(offsetof(VstEvents, reserved) == 8);
static_assert(offsetof(VstEvents, events) == 16);

static_assert(sizeof(VstPinProperties) == 128);
static_assert(offsetof(VstPinProperties, label) == 0);
static_assert(offsetof(VstPinProperties, flags) == 64);
static_assert(offsetof(VstPinProperties, arrangementType) == 68);
static_assert(offsetof(VstPinProperties, shortLabel) == 72);
static_assert(offsetof(VstPinProperties, future) == 80);

static_assert(sizeof(VstParameterProperties) == 152);
static_assert(offsetof(VstParameterProperties, stepFloat) == 0);
static_assert(offsetof(VstParameterProperties, smallStepFloat) == 4);
static_assert(offsetof(VstParameterProperties, largeStepFloat) == 8);
static_assert(offsetof(VstParameterProperties, label) == 12);
static_assert(offsetof(VstParameterProperties, flags) == 76);
static_assert(offsetof(VstParameterProperties, minInteger) == 80);
static_assert(offsetof(VstParameterProperties, maxInteger) == 84);
static_assert(offsetof(VstParameterProperties, stepInteger) == 88);
static_assert(offsetof(VstParameterProperties, largeStepInteger) == 92);
static_assert(offsetof(VstParameterProperties, shortLabel) == 96);
static_assert(offsetof(VstParameterProperties, displayIndex) == 104);
static_assert(offsetof(VstParameterProperties, category) == 106);
static_assert(offsetof(VstParameterProperties, numParametersInCategory) == 108);
static_assert(offsetof(VstParameterProperties, reserved) == 110);
static_assert(offsetof(VstParameterProperties, categoryLabel) == 112);
static_assert(offsetof(VstParameterProperties, future) == 136);

static_assert(sizeof(VstPatchChunkInfo) == 64);
static_assert(offsetof(VstPatchChunkInfo, version) == 0);
static_assert(offsetof(VstPatchChunkInfo, pluginUniqueID) == 4);
static_assert(offsetof(VstPatchChunkInfo, pluginVersion) == 8);
static_assert(offsetof(VstPatchChunkInfo, numElements) == 12);
static_assert(offsetof(VstPatchChunkInfo, future) == 16);

static_assert(sizeof(VstSpeakerProperties) == 112);
static_assert(offsetof(VstSpeakerProperties, azimuth) == 0);
static_assert(offsetof(VstSpeakerProperties, elevation) == 4);
static_assert(offsetof(VstSpeakerProperties, radius) == 8);
static_assert(offsetof(VstSpeakerProperties, reserved) == 12);
static_assert(offsetof(VstSpeakerProperties, name) == 16);
static_assert(offsetof(VstSpeakerProperties, type) == 80);
static_assert(offsetof(VstSpeakerProperties, future) == 84);

static_assert(sizeof(VstSpeakerArrangement) == 904);
static_assert(offsetof(VstSpeakerArrangement, type) == 0);
static_assert(offsetof(VstSpeakerArrangement, numChannels) == 4);
static_assert(offsetof(VstSpeakerArrangement, speakers) == 8);
