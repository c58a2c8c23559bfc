#include "hostlayer/CVstEffect.h"

#include "foundation/CApplicationInformation.h"

#include <cstring>
#include <memory>

namespace Tessitor::Vst {

namespace {

constexpr int numberOfNotes = 128;

bool copyName(char *destination, const Basics::CString &name) {
    if (destination == nullptr)
        return false;
    *destination = '\0';
    std::strncat(destination, name.getString(), 24);
    return true;
}

template <std::size_t size>
void copyWhole(char *destination, const char (&text)[size]) {
    std::memcpy(destination, text, size);
}

void copyDefaultProgramName(char *name) {
    copyWhole(name, "Default");
}

// Nine bytes, although the published length is eight: hosts have larger buffers.
void copyDefaultParameterText(char *text) {
    copyWhole(text, "No param");
}

}  // namespace

Basics::TClassRecord<CVstEffect> CVstEffect::s_class("CVstEffect", "CCountedObject");

CVstEffect::CVstEffect(audioMasterCallback host, int parameters, int programs)
    : AudioEffectX(host, programs, parameters) {
    m_hostCanDo.clear();
    m_hostCanDo.setFromAudioEffectX(this);
    m_blockSize = getBlockSize();
    m_sampleRate = getSampleRate();
    m_tempo.setEffect(this);
    for (int note = 0; note < numberOfNotes; ++note) {
        auto values = std::make_unique<NoteValues>();
        m_notes.addElement(values.get());
        // Owned by the collection from here on; addElement() may have thrown before.
        static_cast<void>(values.release());
    }
    m_midiEvents.setChannel(0);
    m_criticalSection = new Threading::CCriticalSection;
    m_criticalSection->reference();
    s_class.incrementInstanceCount();
}

CVstEffect::~CVstEffect() {
    m_criticalSection->dereference();
    s_class.decrementInstanceCount();
}

void CVstEffect::setSampleRate(float rate) {
    AudioEffectX::setSampleRate(rate);
    if (rate == m_sampleRate)
        return;
    m_sampleRateChanged = true;
    m_sampleRate = rate;
}

void CVstEffect::setBlockSize(int frames) {
    AudioEffectX::setBlockSize(frames);
    if (frames == m_blockSize)
        return;
    m_blockSizeChanged = true;
    m_blockSize = frames;
}

void CVstEffect::processReplacing(float ** /*inputs*/, float ** /*outputs*/, int /*sampleFrames*/) {
    m_midiEvents.clear();
}

void CVstEffect::processDoubleReplacing(double ** /*inputs*/, double ** /*outputs*/,
                                        int /*sampleFrames*/) {
    m_midiEvents.clear();
}

void CVstEffect::process(float ** /*inputs*/, float ** /*outputs*/, long /*sampleFrames*/) {
    m_midiEvents.clear();
}

int CVstEffect::processEvents(VstEvents *events) {
    m_midiEvents.readEvents(*events);
    return 1;
}

bool CVstEffect::getEffectName(char *name) {
    return copyName(name, Basics::CApplicationInformation::getApplicationName());
}

bool CVstEffect::getVendorString(char *text) {
    return copyName(text, Basics::CApplicationInformation::getCompanyName());
}

bool CVstEffect::getProductString(char *text) {
    return copyName(text, Basics::CApplicationInformation::getDescription());
}

// Kept: the name is not stored, and the caller's text is overwritten with "Default".
void CVstEffect::setProgramName(char *name) {
    copyDefaultProgramName(name);
}

void CVstEffect::getProgramName(char *name) {
    copyDefaultProgramName(name);
}

bool CVstEffect::getProgramNameIndexed(int /*category*/, int /*index*/, char *text) {
    copyDefaultProgramName(text);
    return true;
}

void CVstEffect::getParameterLabel(int /*index*/, char *label) {
    copyDefaultParameterText(label);
}

void CVstEffect::getParameterDisplay(int /*index*/, char *text) {
    copyDefaultParameterText(text);
}

void CVstEffect::getParameterName(int /*index*/, char *text) {
    copyDefaultParameterText(text);
}

}  // namespace Tessitor::Vst
