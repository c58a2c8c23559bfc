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

/// The channel strip:
///
///     in --> input gain --> input routing --> modules in running order --> output routing --> out
///                                                                          (skipped if stereo)
///
/// All eighteen modules live as long as the strip; the running order links those in use.
///
/// The audio thread runs it while other threads set parameters and edit the order without a lock.
/// The one exception is kRvSpread: setting it replaces buffers that a run reads, so the caller must
/// not set it during a run.
class CDSPMultiFX : public CDSPBase {
public:
    using Modules = std::array<std::unique_ptr<CDSPBase>, kSlotCount>;

    CDSPMultiFX();
    explicit CDSPMultiFX(Modules slots);  ///< for tests, with their own modules; none may be null
    ~CDSPMultiFX() override;

    /// [audio thread] Allocates only for a block that is longer than all before. Does nothing more
    /// if `in` or `out` is null. With a mono input, out[1] may be null, and out[0] is half the sum.
    /// Asserts in single precision that the first block has frames.
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

    void reset() override;   ///< the modules in the running order; not the output routing
    void resetAllModules();  ///< all eighteen modules; not the output routing

    /// @param bpm  beats per minute. Allocates if a synchronised delay outgrows its lines.
    /// [any thread]
    void setTempo(float bpm);
    float getTempo() const { return tempo; }
    void setMonoInput(bool isMono);  ///< the left input feeds both channels. [any thread]

    // The running order. [any thread] Slots are trusted. Only insertFX resets a module, on request.

    void initOrder();                   ///< the empty chain
    SOrderEntry &orderEntry(int slot);  ///< valid for the life of the strip
    void setOrderEntry(int slot, int prev, int next);
    void recountFX();        ///< call after writing links; a cycle counts as 0
    int getFXCount() const;  ///< modules after the fixed head
    void appendFX(int slot);
    void insertFX(int target, int slot, bool before, bool resetModule);
    void replaceFX(int target, int slot);  ///< kept: the successor's prev still names `target`
    void removeFX(int slot);
    void moveFXBefore(int target, int slot);
    void getFXName(int slot, char *text) const;  ///< leaves `text` alone if there is no such slot

    // The parameters that the host sees. [any thread] Ids are trusted, but the functions that write
    // a text leave it alone for an id above 63. The caller's buffer must be long enough.

    /// @param value  normalised, 0 to 1, not clamped. Cheap if it equals the last value.
    void setStripParameter(int id, float value);
    float getStripParameter(int id) const;  ///< the last value; 0 for an id above 63
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
    // Normalised. Kept: until an id is first set, its entry is the module's initial value in the
    // module's own unit, and a first value that happens to equal that number is ignored.
    std::array<TRelaxed<float>, kParameterCount> paramCache;
    TStripBuffers<float> floatBuffers;
    TStripBuffers<double> doubleBuffers;
    TRelaxed<float> tempo = -1.0f;  // beats per minute
    TRelaxed<bool> monoInput = false;
    std::unique_ptr<CDSPMono> outMono;
};
