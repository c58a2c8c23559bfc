#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/strip/CDSPMultiFX.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The calls that the eighteen witnesses of a strip received, in order, such as "Delay: reset".
struct SWitnessLog {
    std::vector<std::string> calls;
    std::vector<const void *> buffers;  // in[0], in[1], out[0], out[1] of each run

    std::vector<std::string> take() { return std::exchange(calls, {}); }
};

/// A module that logs every call and passes the signal. The value of a parameter that was never set
/// is 100 * (slot + 1) + index.
class CWitness : public CDSPBase {
public:
    CWitness(int place, SWitnessLog &log) : slot(place), seen(log) {}
    ~CWitness() override { note("destroy"); }

    void setParameter(int index, float value) override {
        values[index] = value;
        note("set " + std::to_string(index) + " " + std::to_string(value));
    }
    float getParameter(int index) override {
        const auto found = values.find(index);
        return found != values.end() ? found->second : static_cast<float>(100 * (slot + 1) + index);
    }
    void processReplacing(float **in, float **out, int frames) override { run(in, out, frames); }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames);
    }
    void reset() override { note("reset"); }

private:
    void note(const std::string &what) {
        seen.calls.push_back(slotLabels[static_cast<std::size_t>(slot)] + (": " + what));
    }
    template <typename Sample>
    void run(Sample **in, Sample **out, int frames) {
        note("run " + std::to_string(frames));
        seen.buffers.insert(seen.buffers.end(), {in[0], in[1], out[0], out[1]});
        std::copy_n(in[0], frames, out[0]);
        std::copy_n(in[1], frames, out[1]);
    }

    int slot;
    SWitnessLog &seen;
    std::map<int, float> values;
};

/// The log must outlive the modules.
inline CDSPMultiFX::Modules makeWitnesses(SWitnessLog &log) {
    CDSPMultiFX::Modules modules;
    for (std::size_t slot = 0; slot < modules.size(); ++slot)
        modules[slot] = std::make_unique<CWitness>(static_cast<int>(slot), log);
    return modules;
}
