#pragma once

#include "editor/IStripOwner.h"
#include "effect/SProgram.h"
#include "foundation/TClassRecord.h"
#include "hostlayer/CVstEffect.h"
#include "values/TRelaxed.h"

#include <array>
#include <memory>

namespace Tessitor::Corvel {

class CCorvelEditor;

/// The effect that the host talks to. It combines the channel strip, the parameters as the host
/// sees them and the stored programs. The constructor sets up all state, so calls may come in any
/// order. The host's sample rate and block size are recorded but never passed to the strip.
class CCorvel : public Vst::CVstEffect, public IStripOwner {
public:
    explicit CCorvel(audioMasterCallback host);
    ~CCorvel() override;

    /// Resets every module, including those outside the chain. Also asks the host whether the right
    /// input is connected; if not, the left input feeds both channels. [gui thread]
    void resume() override;

    /// [audio thread] Reads the tempo and runs the strip under the lock.
    void processReplacing(float **inputs, float **outputs, int sampleFrames) override;
    void processDoubleReplacing(double **inputs, double **outputs, int sampleFrames) override;
    void process(float **inputs, float **outputs, long sampleFrames) override;

    /// Every parameter value reaches the strip through here. [any thread]
    /// @param index  0 to 63, not checked.  @param value  normalised, not clamped.
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void getParameterLabel(int index, char *label) override;
    void getParameterDisplay(int index, char *text) override;
    void getParameterName(int index, char *text) override;

    /// Saves the current values in the current program's record, then loads the other program: its
    /// values through setParameter, then its running order. No module is reset. [gui thread]
    void setProgram(int program) override;
    void setProgramName(char *name) override;
    void getProgramName(char *name) override;
    bool getProgramNameIndexed(int category, int index, char *text) override;

    /// @param data  receives a pointer to the effect's own records, valid as long as the effect.
    /// @return the size in bytes: one record if isPreset, otherwise all twenty. [gui thread]
    int getChunk(void **data, bool isPreset) override;
    /// Loads one record into the current program, or all twenty. The bytes are trusted; byteSize is
    /// ignored. Kept: a bank sets the values of its first program but keeps the program number.
    /// @return the number of bytes read. [gui thread]
    int setChunk(void *data, int byteSize, bool isPreset) override;

    bool getInputProperties(int index, VstPinProperties *properties) override;
    bool getOutputProperties(int index, VstPinProperties *properties) override;
    /// @return 1 if the effect can do `text`, otherwise -1; never 0.
    int canDo(char *text) override;

    // IStripOwner
    CDSPMultiFX &getStrip() override { return *m_dsp; }
    const Basics::CString &getParameterUnit(int id) const override {
        return m_parameterUnits[std::size_t(id)];
    }

    Basics::CClass &getClass() const override { return s_class; }

private:
    void readTempo();
    template <typename Run, typename Sample>
    void runStrip(Run operation, Sample **inputs, Sample **outputs, int sampleFrames);
    void buildEditor();
    void changeParameter(int index, float value);
    void initialisePrograms();
    void storeCurrentProgram();
    void loadProgram(int program);
    void applyProgram(const SProgram &program);

    static Basics::TClassRecord<CCorvel> s_class;

    std::array<Basics::CString, kParameterCount> m_parameterUnits;  // for the editor's labels
    std::unique_ptr<CDSPMultiFX> m_dsp;
    // Normalised, as the host sees them
    std::array<TRelaxed<float>, kParameterCount> m_parameterValues;
    std::unique_ptr<SProgram[]> m_programs;
    std::unique_ptr<CCorvelEditor> m_editor;  // built last, as it reads all of the others
};

}  // namespace Tessitor::Corvel
