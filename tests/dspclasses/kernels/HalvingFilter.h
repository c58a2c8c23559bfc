#pragma once

#include "dspclasses/kernels/GuardedRecursion.h"
#include "dspclasses/support/Signals.h"

/// y = x + y1 / 2, guarded.
struct SHalving {
    SDoubles2 y1 = inBothChannels(0.0);

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        return y1 = guard.contain(guard.flush(x + inBothChannels(0.5) * y1));
    }
};

template <typename Sample>
TStereo<Sample> halve(SHalving &filter, TStereo<Sample> input) {
    TStereo<Sample> output(input.frames());
    const auto in = input.pointers(), out = output.pointers();
    runGuarded<EInput::Read>(filter, in.data(), out.data(), input.frames(), [](SHalving &) {});
    return output;
}
template <typename Sample>
TStereo<Sample> halve(const TStereo<Sample> &input) {
    SHalving filter;
    return halve(filter, input);
}
