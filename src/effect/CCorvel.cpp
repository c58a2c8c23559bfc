#include "effect/CCorvel.h"

#include "editor/CCorvelEditor.h"
#include "effect/FactoryPrograms.h"
#include "foundation/CCriticalSection.h"
#include "hostlayer/PinProperties.h"
#include "toolkit/graphics/StaticColours.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <string_view>

namespace Tessitor::Corvel {

namespace {

struct SPin {
    const char *label;
    const char *shortLabel;
};
constexpr SPin inputPins[] = {{"Left input", "L in"}, {"Right input", "R in"}};
constexpr SPin outputPins[] = {{"Left output", "L out"}, {"Right output", "R out"}};

constexpr std::string_view abilities[] = {"plugAsChannelInsert", "plugAsSend", "2in2out",
                                          "receiveVstMidiEvent"};

// Cuts the name to the length of a record: names from chunks and hosts may lack a terminator.
void copyName(char *to, const char *from) {
    const char *end = std::find(from, from + sizeof(SProgram::name) - 1, '\0');
    *std::copy(from, end, to) = '\0';
}

bool describePin(const SPin (&pins)[2], int index, VstPinProperties &properties) {
    if (index != 0 && index != 1)
        return false;
    fillPinProperties(properties, pins[index].label, pins[index].shortLabel,
                      kVstPinIsActive | kVstPinIsStereo);
    return true;
}

}  // namespace

Basics::TClassRecord<CCorvel> CCorvel::s_class("CCorvel", "CVstEffect");

CCorvel::CCorvel(audioMasterCallback host)
    : CVstEffect(host, kParameterCount, programCount), m_dsp(std::make_unique<CDSPMultiFX>()),
      m_programs(std::make_unique<SProgram[]>(programCount)) {
    s_class.incrementInstanceCount();

    setNumInputs(2);
    setNumOutputs(2);
    canProcessReplacing(true);
    canDoubleReplacing(true);
    setUniqueID(uniqueId);
    programsAreChunks(true);

    initialisePrograms();

    for (int id = 0; id < kParameterCount; ++id) {
        char unit[8] = {};
        m_dsp->getParameterLabel(id, unit);
        m_parameterUnits[std::size_t(id)] = unit;
    }
    buildEditor();
}

void CCorvel::buildEditor() {
    GUI::Windowing::CWindowAttributes attributes;
    attributes.setBackgroundColour(GUI::Basics::StaticColours::black);
    m_editor = std::make_unique<CCorvelEditor>(
        this, MathTools::CRect(0, 0, CCorvelEditor::width, CCorvelEditor::height), attributes);
}

CCorvel::~CCorvel() {
    s_class.decrementInstanceCount();
}

void CCorvel::resume() {
    m_dsp->resetAllModules();
    m_dsp->setMonoInput(!isInputConnected(1));
}

void CCorvel::readTempo() {
    m_tempo.getTempoInformation(kVstTempoValid);
    m_dsp->setTempo(static_cast<float>(m_tempo.getInformation().tempo));
}

template <typename Run, typename Sample>
void CCorvel::runStrip(Run operation, Sample **inputs, Sample **outputs, int sampleFrames) {
    const std::lock_guard lock(*m_criticalSection);
    ((*m_dsp).*operation)(inputs, outputs, sampleFrames);
}

void CCorvel::processReplacing(float **inputs, float **outputs, int sampleFrames) {
    readTempo();
    runStrip(&CDSPMultiFX::processReplacing, inputs, outputs, sampleFrames);
    CVstEffect::processReplacing(inputs, outputs, sampleFrames);
}

void CCorvel::processDoubleReplacing(double **inputs, double **outputs, int sampleFrames) {
    readTempo();
    runStrip(&CDSPMultiFX::processDoubleReplacing, inputs, outputs, sampleFrames);
    CVstEffect::processDoubleReplacing(inputs, outputs, sampleFrames);
}

// Kept: overwrites the outputs, although "process" is the name of the accumulating operation. The
// host cannot call it: the base class handles that entry and does nothing.
void CCorvel::process(float **inputs, float **outputs, long sampleFrames) {
    readTempo();
    runStrip(&CDSPMultiFX::processReplacing, inputs, outputs, static_cast<int>(sampleFrames));
    CVstEffect::process(inputs, outputs, sampleFrames);
}

void CCorvel::setParameter(int index, float value) {
    if (value != m_parameterValues[std::size_t(index)])
        changeParameter(index, value);
    if (m_editor != nullptr)
        m_editor->handleParameterChange(index, value);
}

void CCorvel::changeParameter(int index, float value) {
    if (index == kRvSpread) {
        // The one setter that replaces buffers the audio path reads.
        const std::lock_guard lock(*m_criticalSection);
        m_dsp->setStripParameter(index, value);
    } else {
        m_dsp->setStripParameter(index, value);
    }
    m_parameterValues[std::size_t(index)] = value;
}

float CCorvel::getParameter(int index) {
    return m_parameterValues[std::size_t(index)];
}

void CCorvel::getParameterLabel(int index, char *label) {
    if (label != nullptr)
        m_dsp->getParameterLabel(index, label);
}

void CCorvel::getParameterDisplay(int index, char *text) {
    if (text != nullptr)
        m_dsp->getParameterDisplay(index, text);
}

void CCorvel::getParameterName(int index, char *text) {
    if (text != nullptr)
        m_dsp->getParameterName(index, text);
}

void CCorvel::initialisePrograms() {
    std::copy(factoryPrograms.begin(), factoryPrograms.end(), m_programs.get());
    loadProgram(0);
}

void CCorvel::storeCurrentProgram() {
    SProgram &record = m_programs[std::size_t(curProgram)];
    for (int id = 0; id < kParameterCount; ++id)
        record.parameters[std::size_t(id)] = getParameter(id);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const auto &link = m_dsp->orderEntry(slot);
        record.order[std::size_t(slot)] = {link.prev, link.next};
    }
}

void CCorvel::loadProgram(int program) {
    curProgram = program;
    applyProgram(m_programs[std::size_t(program)]);
}

// Takes no lock, so a block that is processed meanwhile may mix values and links of the old program
// with those of the new one.
void CCorvel::applyProgram(const SProgram &program) {
    for (int id = 0; id < kParameterCount; ++id)
        setParameter(id, program.parameters[std::size_t(id)]);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const SChainLink &link = program.order[std::size_t(slot)];
        m_dsp->setOrderEntry(slot, link.prev, link.next);
    }
    m_dsp->recountFX();
    if (m_editor != nullptr)
        m_editor->handleChainChange();
}

void CCorvel::setProgram(int program) {
    storeCurrentProgram();
    if (program != curProgram)
        loadProgram(program);
}

void CCorvel::setProgramName(char *name) {
    copyName(m_programs[std::size_t(curProgram)].name.data(), name);
}

void CCorvel::getProgramName(char *name) {
    copyName(name, m_programs[std::size_t(curProgram)].name.data());
}

bool CCorvel::getProgramNameIndexed(int /*category*/, int index, char *text) {
    if (static_cast<unsigned>(index) >= unsigned{programCount})
        return false;
    copyName(text, m_programs[std::size_t(index)].name.data());
    return true;
}

int CCorvel::getChunk(void **data, bool isPreset) {
    storeCurrentProgram();
    *data = &m_programs[isPreset ? std::size_t(curProgram) : 0];
    return static_cast<int>(sizeof(SProgram)) * (isPreset ? 1 : programCount);
}

int CCorvel::setChunk(void *data, int /*byteSize*/, bool isPreset) {
    SProgram &target = m_programs[isPreset ? std::size_t(curProgram) : 0];
    const std::size_t size = sizeof(SProgram) * (isPreset ? 1 : programCount);
    std::memmove(&target, data, size);  // a host may pass the effect's own records back
    applyProgram(target);
    return static_cast<int>(size);
}

bool CCorvel::getInputProperties(int index, VstPinProperties *properties) {
    return describePin(inputPins, index, *properties);
}

bool CCorvel::getOutputProperties(int index, VstPinProperties *properties) {
    return describePin(outputPins, index, *properties);
}

int CCorvel::canDo(char *text) {
    if (text == nullptr)
        return -1;
    return std::ranges::find(abilities, std::string_view(text)) != std::end(abilities) ? 1 : -1;
}

}  // namespace Tessitor::Corvel
