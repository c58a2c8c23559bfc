#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/CDSPDelay.h"
#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/parameters/ParameterTable.h"
#include "dspclasses/support/Signals.h"

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

/// The plain version of the strip, for any eighteen modules. The parameter index that the oracle
/// passes is the parameter id.
class CPlainStrip : public CDSPBase {
public:
    using Modules = std::array<std::unique_ptr<CDSPBase>, kSlotCount>;

    explicit CPlainStrip(Modules slots) : modules(std::move(slots)) {
        setTempo(120.0f);
        for (int id = 0; id <= kOutMono; ++id)
            paramCache[index(id)] = moduleOf(id).getParameter(rowOf(id).index);
        setChain({});
    }

    void setParameter(int id, float value) override {
        if (value == paramCache[index(id)])
            return;
        paramCache[index(id)] = value;
        if (id <= kOutMono)
            moduleOf(id).setParameter(rowOf(id).index, rowOf(id).law(value));
    }
    float getParameter(int id) override { return paramCache[index(id)]; }

    /// The value as its module reports it.
    float getModuleParameter(int id) { return moduleOf(id).getParameter(rowOf(id).index); }

    void processReplacing(float **in, float **out, int frames) override {
        run(in, out, frames, floats);
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames, doubles);
    }

    void reset() override {
        for (int slot = kInGainSlot; slot != kNoSlot; slot = order[index(slot)].next)
            modules[index(slot)]->reset();
    }

    /// Including modules outside the chain.
    void resetAllModules() {
        for (auto &module : modules)
            module->reset();
    }

    void setTempo(float bpm) {
        if (bpm == tempo)
            return;
        tempo = bpm;
        modules[kDelaySlot]->setParameter(CDSPDelay::kTempo, bpm);
    }

    void setMonoInput(bool isMono) { monoInput = isMono; }

    /// Replaces everything after the fixed head.
    void setChain(const std::vector<int> &chain) {
        for (auto &pair : order)
            pair = {kNoSlot, kNoSlot};
        order[kInGainSlot].next = kInMonoSlot;
        order[kInMonoSlot].prev = kInGainSlot;
        int last = kInMonoSlot;
        for (const int slot : chain) {
            order[index(last)].next = slot;
            order[index(slot)].prev = last;
            last = slot;
        }
    }

    struct SPair {
        int prev, next;
    };
    SPair &orderEntry(int slot) { return order[index(slot)]; }

private:
    template <typename Sample>
    struct SBuffers {
        int capacity = 0;
        std::vector<Sample> channels[4];
    };

    static std::size_t index(int number) { return static_cast<std::size_t>(number); }
    static const SParameter &rowOf(int id) { return parameterTable[index(id)]; }

    CDSPBase &moduleOf(int id) {
        return id == kOutMono ? static_cast<CDSPBase &>(outMono) : *modules[index(rowOf(id).slot)];
    }

    template <typename Sample>
    void run(Sample **in, Sample **out, int frames, SBuffers<Sample> &buffers) {
        if (buffers.capacity < frames) {
            for (auto &channel : buffers.channels)
                channel.assign(index(frames), 0);
            buffers.capacity = frames;
        }
        auto &channels = buffers.channels;
        Sample *dry[] = {channels[0].data(), channels[1].data()};
        Sample *wet[] = {channels[2].data(), channels[3].data()};
        for (int i = 0; i < frames; ++i)
            dry[0][i] = in[0][i];
        for (int i = 0; i < frames; ++i)
            dry[1][i] = monoInput ? in[0][i] : in[1][i];

        Sample **cur = dry, **alt = wet;
        for (int slot = kInGainSlot; slot != kNoSlot; slot = order[index(slot)].next) {
            process(*modules[index(slot)], cur, alt, frames);
            std::swap(cur, alt);
        }
        if (outMono.getMode() != 3) {
            process(outMono, cur, alt, frames);
            cur = alt;
        }
        if (out[1] == nullptr && monoInput) {
            for (int i = 0; i < frames; ++i)
                out[0][i] = (cur[0][i] + cur[1][i]) * static_cast<Sample>(0.5);
            return;
        }
        for (int i = 0; i < frames; ++i)
            out[0][i] = cur[0][i];
        for (int i = 0; i < frames; ++i)
            out[1][i] = cur[1][i];
    }

    Modules modules;
    CPlainMono outMono;
    SPair order[kSlotCount];
    float paramCache[kParameterCount] = {};
    float tempo = -1.0f;
    bool monoInput = false;
    SBuffers<float> floats;
    SBuffers<double> doubles;
};
