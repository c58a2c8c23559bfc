#pragma once

#include "dspclasses/modules/PlainModules.h"
#include "dspclasses/strip/PlainStrip.h"
#include "effect/FactoryPrograms.h"

#include <array>
#include <cstring>
#include <optional>
#include <vector>

/// The plain version of the effect: the programs and what each host call does to them, on top of
/// the plain strip. Kept: parameter values start at 0, so a 0 in the first program never reaches
/// its module.
class CPlainEffect {
public:
    using SProgram = Tessitor::Corvel::SProgram;
    using Chunk = std::vector<char>;

    CPlainEffect() { load(0); }

    void setParameter(int id, float value) {
        if (value == values[std::size_t(id)])
            return;
        strip.setParameter(id, value);
        values[std::size_t(id)] = value;
    }
    const std::array<float, kParameterCount> &parameters() const { return values; }

    void setProgram(int program) {
        store();
        if (program != current)
            load(program);
    }
    int program() const { return current; }

    Chunk chunk(bool isPreset) {
        store();
        Chunk bytes(length(isPreset));
        std::memcpy(bytes.data(), target(isPreset), bytes.size());
        return bytes;
    }
    void setChunk(const Chunk &bytes, bool isPreset) {
        std::memcpy(target(isPreset), bytes.data(), length(isPreset));
        apply(*target(isPreset));
    }

    /// What effMainsChanged with the value 1 does.
    void resume(bool isRightConnected) {
        strip.resetAllModules();
        strip.setMonoInput(!isRightConnected);
    }

    /// @param bpm  the host's tempo at the next block; unset if the host has no time information.
    void setTempo(std::optional<double> bpm) {
        if (bpm)
            strip.setTempo(static_cast<float>(*bpm));
    }

    void processReplacing(float **in, float **out, int frames) {
        strip.processReplacing(in, out, frames);
    }
    void processDoubleReplacing(double **in, double **out, int frames) {
        strip.processDoubleReplacing(in, out, frames);
    }

private:
    SProgram *target(bool isPreset) { return &programs[isPreset ? std::size_t(current) : 0]; }
    static std::size_t length(bool isPreset) { return isPreset ? 424 : 8480; }

    void store() {
        SProgram &record = programs[std::size_t(current)];
        record.parameters = values;
        for (int slot = 0; slot < kSlotCount; ++slot) {
            const CPlainStrip::SPair &pair = strip.orderEntry(slot);
            record.order[std::size_t(slot)] = {pair.prev, pair.next};
        }
    }

    void load(int program) {
        current = program;
        apply(programs[std::size_t(program)]);
    }

    void apply(const SProgram &record) {
        for (int id = 0; id < kParameterCount; ++id)
            setParameter(id, record.parameters[std::size_t(id)]);
        for (int slot = 0; slot < kSlotCount; ++slot) {
            const auto &link = record.order[std::size_t(slot)];
            strip.orderEntry(slot) = {link.prev, link.next};
        }
    }

    CPlainStrip strip{makePlainModules()};
    std::array<SProgram, 20> programs = Tessitor::Corvel::factoryPrograms;
    std::array<float, kParameterCount> values{};
    int current = 0;
};
