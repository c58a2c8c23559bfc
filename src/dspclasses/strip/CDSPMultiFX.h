#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/CDSPMono.h"
#include "dspclasses/parameters/ParameterTable.h"
#include "dspclasses/parameters/Slots.h"
#include "dspclasses/strip/CChainOrder.h"
#include "dspclasses/strip/TStripBuffers.h"
#include "values/TRelaxed.h"

#include <array>
#include <memory>

/// The channel strip. The input goes through the input gain (slot 0), the input routing (slot 1),
/// the modules that the user has put into the running order, and the output routing unless that is
/// set to stereo. All eighteen modules live as long as the strip; the running order links them.
///
/// The audio thread runs it while other threads set parameters and edit the order without a lock.
/// One exception is the caller's to guard: kRvSpread replaces buffers that a run reads, so it must
/// not be set during one.
class CDSPMultiFX : public CDSPBase {
public:
    using Modules = std::array<std::unique_ptr<CDSPBase>, kSlotCount>;

    CDSPMultiFX();
    explicit CDSPMultiFX(Modules slots);  ///< over eighteen modules of a test's own, none null
    ~CDSPMultiFX() override;

    /// [audio thread] The strip and its modules allocate only for a block longer than any they have
    /// seen. A null `in` or `out` does
    /// nothing more; out[1] may be null with a mono input, and out[0] then carries half the sum.
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

    void reset() override;   ///< the modules of the running order; not the output routing
    void resetAllModules();  ///< all eighteen, running or not; not the output routing

    /// In beats per minute. One so slow that a synchronised delay outgrows its lines allocates new
    /// ones. [any thread]
    void setTempo(float bpm);
    float getTempo() const { return tempo; }
    void setMonoInput(bool isMono);  ///< the left input feeds both channels. [any thread]

    // The running order. [any thread] Slots are trusted, from 0 to 17. A module is reset only where
    // that is said.

    void initOrder();                   ///< the empty chain
    SOrderEntry &orderEntry(int slot);  ///< valid as long as the strip
    void setOrderEntry(int slot, int prev, int next);
    void recountFX();        ///< after links were written; 0 if they hold a cycle
    int getFXCount() const;  ///< nodes behind slot 1
    void appendFX(int slot);
    void insertFX(int target, int slot, bool before, bool resetModule);
    void replaceFX(int target, int slot);  ///< the successor's prev goes on naming the target
    void removeFX(int slot);
    void moveFXBefore(int target, int slot);
    void getFXName(int slot, char *text) const;  ///< leaves `text` for a slot above 17

    // The parameters that the host sees. [any thread] Ids are trusted, from 0 to 63; where a text
    // is asked for, an id above leaves it as it is, and the caller's buffer is trusted to have
    // room.

    /// @param value  normalised, from 0 to 1, not clamped. One comparison if it is the last value.
    void setStripParameter(int id, float value);
    float getStripParameter(int id) const;  ///< the last value, 0 for an id above 63
    void getParameterName(int id, char *text) const;
    void getParameterDisplay(int id, char *text);
    void getParameterLabel(int id, char *text) const;

private:
    template <typename Sample>
    void run(Sample **in, Sample **out, int frames, TStripBuffers<Sample> &buffers);
    CDSPBase &moduleIn(int slot) { return *modules[static_cast<std::size_t>(slot)]; }
    CDSPBase &moduleOf(const SParameter &parameter);
    void readParameterCache();

    CChainOrder order;
    Modules modules;
    // Normalised. Until an id is first set it holds what its module was built with, in the
    // module's own unit: a first value that happens to equal it is dropped.
    std::array<TRelaxed<float>, kParameterCount> paramCache;
    TStripBuffers<float> floatBuffers;
    TStripBuffers<double> doubleBuffers;
    TRelaxed<float> tempo = -1.0f;  // beats per minute
    TRelaxed<bool> monoInput = false;
    std::unique_ptr<CDSPMono> outMono;
};
